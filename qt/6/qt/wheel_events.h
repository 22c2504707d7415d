// How far a wheel event turns: Qt 6.
#ifndef QT_6_QT_WHEEL_EVENTS_H_
#define QT_6_QT_WHEEL_EVENTS_H_

#include <QWheelEvent>

namespace qt {

// In eighths of a degree; positive is up, away from the user. As Qt 5 has it: on the axis that turns further, and of
// equal ones on the upright one.
inline int TurnOf(const QWheelEvent& event) {
  const QPoint angle = event.angleDelta();
  return qAbs(angle.x()) > qAbs(angle.y()) ? angle.x() : angle.y();
}

}  // namespace qt

#endif  // QT_6_QT_WHEEL_EVENTS_H_
