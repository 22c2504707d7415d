#include "guest_events.h"

QPointF PlaceOf(const QMouseEvent& event) { return event.position(); }

QMouseEvent MouseForGuest(QEvent::Type type, const QMouseEvent& event, const PlaceMap& to_guest) {
  return {type,
          to_guest(event.position()),
          event.scenePosition(),
          event.globalPosition(),
          event.button(),
          event.buttons(),
          event.modifiers()};
}

// A point that a program creates has no device, so the library reads its scene position: Qt lets programs set no other.
QTouchEvent TouchForGuest(const QTouchEvent& event, const PlaceMap& to_guest) {
  QList<QEventPoint> points;
  for (const QEventPoint& point : event.points()) {
    if (point.state() == QEventPoint::Released) continue;
    const QPointF place = to_guest(point.device() ? point.position() : point.scenePosition());
    points.append(QEventPoint(point.id(), point.state(), place, place));
  }
  return QTouchEvent(event.type(), nullptr, event.modifiers(), points);
}

QTouchEvent TouchEnd() { return QTouchEvent(QEvent::TouchEnd); }
