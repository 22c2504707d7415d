// Filters of native events: Qt 5.
#ifndef QT_5_QT_NATIVE_EVENTS_H_
#define QT_5_QT_NATIVE_EVENTS_H_

namespace qt {

using NativeResult = long;  // the type of the result of QAbstractNativeEventFilter::nativeEventFilter

}  // namespace qt

#endif  // QT_5_QT_NATIVE_EVENTS_H_
