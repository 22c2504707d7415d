// The event types of gamepad events.
#ifndef KEYMAP_JOYSTICK_EVENT_H_
#define KEYMAP_JOYSTICK_EVENT_H_

#include <QEvent>

#include "keymap/keymap_export.h"

namespace tavikeymapmanager {

class TAVI_KEYMAP_EXPORT JoystickEvent {
 public:
  static const QEvent::Type ButtonPress;    // of a JoystickButtonEvent
  static const QEvent::Type ButtonRelease;  // likewise
  static const QEvent::Type AxisTriggle;    // of a JoystickAxisEvent
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_JOYSTICK_EVENT_H_
