#include "handlers/joystick_event_simulate_handler.h"

namespace taviinputmanager {

JoystickEventSimulateHandler* JoystickEventSimulateHandler::GetInstance() {
  static JoystickEventSimulateHandler instance;
  return &instance;
}

bool JoystickEventSimulateHandler::OnAxis(JoystickAxisEvent* /*event*/) { return false; }

bool JoystickEventSimulateHandler::OnButtonPress(JoystickButtonEvent* /*event*/, int /*simulate_mode*/) {
  return false;
}

bool JoystickEventSimulateHandler::OnButtonRelease(JoystickButtonEvent* /*event*/, int /*simulate_mode*/) {
  return false;
}

}  // namespace taviinputmanager
