// Filters of native events: Qt 6.
#ifndef QT_6_QT_NATIVE_EVENTS_H_
#define QT_6_QT_NATIVE_EVENTS_H_

#include <QtGlobal>

namespace qt {

using NativeResult = qintptr;  // what QAbstractNativeEventFilter::nativeEventFilter answers a message with

}  // namespace qt

#endif  // QT_6_QT_NATIVE_EVENTS_H_
