// Creates the view's events for the library, with positions in the guest's pixels. The two Qts read and create events
// differently, so there is a file for each.
#ifndef EXAMPLES_HOST_WINDOW_GUEST_EVENTS_H_
#define EXAMPLES_HOST_WINDOW_GUEST_EVENTS_H_

#include <functional>

#include <QMouseEvent>
#include <QTouchEvent>

using PlaceMap = std::function<QPointF(const QPointF&)>;  // converts the view's pixels to the guest's

// The event's position in the view.
QPointF PlaceOf(const QMouseEvent& event);

QMouseEvent MouseForGuest(QEvent::Type type, const QMouseEvent& event, const PlaceMap& to_guest);

// The library compares which contacts are there. Qt lists a lifted one once more, and then sends nothing while the
// others do not move: so lifted ones are left out.
QTouchEvent TouchForGuest(const QTouchEvent& event, const PlaceMap& to_guest);

// No contact is left.
QTouchEvent TouchEnd();

#endif  // EXAMPLES_HOST_WINDOW_GUEST_EVENTS_H_
