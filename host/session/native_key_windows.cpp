#include <QKeyEvent>

#include "host/session/native_key.h"

namespace tavi {

NativeKey NativeKeyOf(const QKeyEvent& event) { return {event.nativeScanCode(), event.nativeVirtualKey()}; }

}  // namespace tavi
