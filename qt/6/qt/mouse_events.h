// Positions of mouse events: Qt 6.
#ifndef QT_6_QT_MOUSE_EVENTS_H_
#define QT_6_QT_MOUSE_EVENTS_H_

#include <QMouseEvent>
#include <QPointF>

namespace qt {

// In the receiver, in its logical pixels.
inline QPointF PlaceOf(const QMouseEvent& event) { return event.position(); }

// In the window of the receiver.
inline QPointF PlaceInWindow(const QMouseEvent& event) { return event.scenePosition(); }

// On the screen.
inline QPointF PlaceOnScreen(const QMouseEvent& event) { return event.globalPosition(); }

}  // namespace qt

#endif  // QT_6_QT_MOUSE_EVENTS_H_
