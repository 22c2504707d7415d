// Positions of mouse events: Qt 5.
#ifndef QT_5_QT_MOUSE_EVENTS_H_
#define QT_5_QT_MOUSE_EVENTS_H_

#include <QMouseEvent>
#include <QPointF>

namespace qt {

// In the receiver, in its logical pixels.
inline QPointF PlaceOf(const QMouseEvent& event) { return event.localPos(); }

// In the window of the receiver.
inline QPointF PlaceInWindow(const QMouseEvent& event) { return event.windowPos(); }

// On the screen.
inline QPointF PlaceOnScreen(const QMouseEvent& event) { return event.screenPos(); }

}  // namespace qt

#endif  // QT_5_QT_MOUSE_EVENTS_H_
