#include <QKeyEvent>

#include "host/native_key.h"

namespace tavi {

NativeKey NativeKeyOf(const QKeyEvent& event) { return {event.nativeScanCode(), event.nativeVirtualKey()}; }

}  // namespace tavi
