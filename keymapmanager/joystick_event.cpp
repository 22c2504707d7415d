#include "keymap/joystick_event.h"

namespace tavikeymapmanager {

namespace {

// Registered, so that no event type of the host or of another library has the same number.
QEvent::Type Register() { return static_cast<QEvent::Type>(QEvent::registerEventType()); }

}  // namespace

const QEvent::Type JoystickEvent::ButtonPress = Register();
const QEvent::Type JoystickEvent::ButtonRelease = Register();
const QEvent::Type JoystickEvent::AxisTriggle = Register();

}  // namespace tavikeymapmanager
