// Filters of native events: Qt 5.
#ifndef QT_5_QT_NATIVE_EVENTS_H_
#define QT_5_QT_NATIVE_EVENTS_H_

namespace qt {

using NativeResult = long;  // what QAbstractNativeEventFilter::nativeEventFilter answers a message with

}  // namespace qt

#endif  // QT_5_QT_NATIVE_EVENTS_H_
