#include "guest_events.h"

QPointF PlaceOf(const QMouseEvent& event) { return event.localPos(); }

QMouseEvent MouseForGuest(QEvent::Type type, const QMouseEvent& event, const PlaceMap& to_guest) {
  return {type,
          to_guest(event.localPos()),
          event.windowPos(),
          event.screenPos(),
          event.button(),
          event.buttons(),
          event.modifiers()};
}

QTouchEvent TouchForGuest(const QTouchEvent& event, const PlaceMap& to_guest) {
  QList<QTouchEvent::TouchPoint> points;
  for (QTouchEvent::TouchPoint point : event.touchPoints()) {
    if (point.state() == Qt::TouchPointReleased) continue;
    point.setPos(to_guest(point.pos()));
    points.append(point);
  }
  return QTouchEvent(event.type(), nullptr, event.modifiers(), event.touchPointStates(), points);
}

QTouchEvent TouchEnd() { return QTouchEvent(QEvent::TouchEnd); }
