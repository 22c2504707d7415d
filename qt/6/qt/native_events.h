// Filters of native events: Qt 6.
#ifndef QT_6_QT_NATIVE_EVENTS_H_
#define QT_6_QT_NATIVE_EVENTS_H_

#include <QtGlobal>

namespace qt {

using NativeResult = qintptr;  // the type of the result of QAbstractNativeEventFilter::nativeEventFilter

}  // namespace qt

#endif  // QT_6_QT_NATIVE_EVENTS_H_
