#include "handlers/qt_wheel_event_handler.h"

#include <QWheelEvent>

namespace taviinputmanager {

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
// Deprecated, and still the only answer that is right for every way in which a host builds the event.
int WheelDelta(const QWheelEvent* event) { return event->delta(); }
QT_WARNING_POP

}  // namespace taviinputmanager
