#include "handlers/joystick_event_transparent_handler.h"

namespace taviinputmanager {

JoystickEventTransparentHandler* JoystickEventTransparentHandler::GetInstance() {
  static JoystickEventTransparentHandler instance;
  return &instance;
}

bool JoystickEventTransparentHandler::OnAxis(JoystickAxisEvent* /*event*/) { return false; }

bool JoystickEventTransparentHandler::OnButtonPress(JoystickButtonEvent* /*event*/, int /*simulate_mode*/) {
  return false;
}

bool JoystickEventTransparentHandler::OnButtonRelease(JoystickButtonEvent* /*event*/, int /*simulate_mode*/) {
  return false;
}

void JoystickEventTransparentHandler::SetVirtualJoystick(bool /*enable*/) {}

}  // namespace taviinputmanager
