// Reading and creating touch events: Qt 6.
#ifndef QT_6_QT_TOUCH_EVENTS_H_
#define QT_6_QT_TOUCH_EVENTS_H_

#include <QEventPoint>
#include <QList>
#include <QPointF>
#include <QTouchEvent>

namespace qt {

using TouchPoint = QEventPoint;

inline const QList<TouchPoint>& PointsOf(const QTouchEvent& event) { return event.points(); }

// In the receiver, in its logical pixels.
//
// A point that Qt delivers has a device, and Qt sets its position in the receiver. A program that creates a point can
// only set its position in the scene; such a point has no device.
inline QPointF PlaceOf(const TouchPoint& point) { return point.device() ? point.position() : point.scenePosition(); }

inline Qt::TouchPointState StateOf(const TouchPoint& point) { return static_cast<Qt::TouchPointState>(point.state()); }

// PlaceOf returns `place` for it.
inline TouchPoint MakeTouchPoint(int id, Qt::TouchPointState state, const QPointF& place) {
  return {id, static_cast<QEventPoint::State>(state), place, place};
}

// Without a device.
inline QTouchEvent MakeTouchEvent(QEvent::Type type, Qt::KeyboardModifiers modifiers, const QList<TouchPoint>& points) {
  return QTouchEvent(type, nullptr, modifiers, points);
}

}  // namespace qt

#endif  // QT_6_QT_TOUCH_EVENTS_H_
