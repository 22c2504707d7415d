#include <QKeyEvent>

#include "host/session/native_key.h"

namespace tavi {

quint32 ScanCodeOf(const QKeyEvent& event) { return event.nativeScanCode(); }

NativeKey NativeKeyOf(const QKeyEvent& event) { return {event.nativeScanCode(), event.nativeVirtualKey()}; }

}  // namespace tavi
