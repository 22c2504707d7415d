// The event types of gamepad events.
#ifndef KEYMAP_JOYSTICK_EVENT_H_
#define KEYMAP_JOYSTICK_EVENT_H_

#include <QEvent>

#include "keymap/keymap_export.h"

namespace tavikeymapmanager {

class TAVI_KEYMAP_EXPORT JoystickEvent {
 public:
  static const QEvent::Type ButtonPress;
  static const QEvent::Type ButtonRelease;
  static const QEvent::Type AxisTriggle;
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_JOYSTICK_EVENT_H_
