// The movement of wheel events: Qt 5.
#ifndef QT_5_QT_WHEEL_EVENTS_H_
#define QT_5_QT_WHEEL_EVENTS_H_

#include <QWheelEvent>

namespace qt {

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
// In eighths of a degree; positive is up, away from the user. Deprecated, but still the only value that is correct
// however a host creates the event.
inline int TurnOf(const QWheelEvent& event) { return event.delta(); }
QT_WARNING_POP

}  // namespace qt

#endif  // QT_5_QT_WHEEL_EVENTS_H_
