// What a wheel event of the host says.
#ifndef CORE_WHEEL_EVENT_H_
#define CORE_WHEEL_EVENT_H_

#include <QWheelEvent>

namespace taviinputmanager {

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
// The turn in eighths of a degree; positive is up, away from the user. Deprecated, and still the only answer that is
// right for every way in which a host builds the event.
inline int WheelDelta(const QWheelEvent* event) { return event->delta(); }
QT_WARNING_POP

}  // namespace taviinputmanager

#endif  // CORE_WHEEL_EVENT_H_
