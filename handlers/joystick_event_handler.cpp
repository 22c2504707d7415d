#include "handlers/joystick_event_handler.h"

#include "keymap/joystick_event.h"
#include "taviinputmanager/joystick_event.h"

namespace taviinputmanager {

using tavikeymapmanager::JoystickEvent;

bool JoystickEventHandler::HandleButtonEvent(JoystickButtonEvent* event, int simulate_mode) {
  if (event->type() == JoystickEvent::ButtonPress) return OnButtonPress(event, simulate_mode);
  if (event->type() == JoystickEvent::ButtonRelease) return OnButtonRelease(event, simulate_mode);
  return false;
}

}  // namespace taviinputmanager
