// Events of the view, as the library is told them: with places in the guest's pixels. The two Qts read and make them
// otherwise, so there is a file for each.
#ifndef EXAMPLES_HOST_WINDOW_GUEST_EVENTS_H_
#define EXAMPLES_HOST_WINDOW_GUEST_EVENTS_H_

#include <functional>

#include <QMouseEvent>
#include <QTouchEvent>

using PlaceMap = std::function<QPointF(const QPointF&)>;  // from the view's pixels to the guest's

// Where the event is in the view.
QPointF PlaceOf(const QMouseEvent& event);

QMouseEvent MouseForGuest(QEvent::Type type, const QMouseEvent& event, const PlaceMap& to_guest);

// The library goes by which fingers are there. Qt lists one that goes up once more, and then says nothing for as long
// as the others rest: those that go up are left out.
QTouchEvent TouchForGuest(const QTouchEvent& event, const PlaceMap& to_guest);

// No finger is left.
QTouchEvent TouchEnd();

#endif  // EXAMPLES_HOST_WINDOW_GUEST_EVENTS_H_
