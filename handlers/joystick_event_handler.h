// The base class of the handlers of gamepad events.
#ifndef HANDLERS_JOYSTICK_EVENT_HANDLER_H_
#define HANDLERS_JOYSTICK_EVENT_HANDLER_H_

#include "core/event_handler.h"

namespace taviinputmanager {

class JoystickAxisEvent;
class JoystickButtonEvent;

// Each operation returns whether the event was consumed.
class JoystickEventHandler : public EventHandler {
 public:
  // One function for each kind of event. `simulate_mode` is the keymap's.
  virtual bool OnAxis(JoystickAxisEvent* event) = 0;
  virtual bool OnButtonPress(JoystickButtonEvent* event, int simulate_mode) = 0;
  virtual bool OnButtonRelease(JoystickButtonEvent* event, int simulate_mode) = 0;

  // A press or a release, by the event's type.
  bool HandleButtonEvent(JoystickButtonEvent* event, int simulate_mode);

 protected:
  // JoystickAxisEvent::stick
  static constexpr int kLeftStick = 0;
  static constexpr int kRightStick = 1;
};

}  // namespace taviinputmanager

#endif  // HANDLERS_JOYSTICK_EVENT_HANDLER_H_
