// The movement of wheel events: Qt 6.
#ifndef QT_6_QT_WHEEL_EVENTS_H_
#define QT_6_QT_WHEEL_EVENTS_H_

#include <QWheelEvent>

namespace qt {

// In eighths of a degree; positive is up, away from the user. As in Qt 5, the axis that moves further counts, and if
// equal, the vertical one.
inline int TurnOf(const QWheelEvent& event) {
  const QPoint angle = event.angleDelta();
  return qAbs(angle.x()) > qAbs(angle.y()) ? angle.x() : angle.y();
}

}  // namespace qt

#endif  // QT_6_QT_WHEEL_EVENTS_H_
