// Reading and creating touch events: Qt 5.
#ifndef QT_5_QT_TOUCH_EVENTS_H_
#define QT_5_QT_TOUCH_EVENTS_H_

#include <QList>
#include <QPointF>
#include <QTouchEvent>

namespace qt {

using TouchPoint = QTouchEvent::TouchPoint;

inline const QList<TouchPoint>& PointsOf(const QTouchEvent& event) { return event.touchPoints(); }

// In the receiver, in its logical pixels.
inline QPointF PlaceOf(const TouchPoint& point) { return point.pos(); }

inline Qt::TouchPointState StateOf(const TouchPoint& point) { return point.state(); }

// PlaceOf returns `place` for it.
inline TouchPoint MakeTouchPoint(int id, Qt::TouchPointState state, const QPointF& place) {
  TouchPoint point(id);
  point.setState(state);
  point.setPos(place);
  return point;
}

// Without a device.
inline QTouchEvent MakeTouchEvent(QEvent::Type type, Qt::KeyboardModifiers modifiers, const QList<TouchPoint>& points) {
  Qt::TouchPointStates states;
  for (const TouchPoint& point : points) states |= point.state();
  return QTouchEvent(type, nullptr, modifiers, states, points);
}

}  // namespace qt

#endif  // QT_5_QT_TOUCH_EVENTS_H_
