// Gamepad events as the guest's gamepad.
#ifndef HANDLERS_JOYSTICK_EVENT_TRANSPARENT_HANDLER_H_
#define HANDLERS_JOYSTICK_EVENT_TRANSPARENT_HANDLER_H_

#include "handlers/joystick_event_handler.h"

namespace taviinputmanager {

struct InputManagerCallbacks;

class JoystickEventTransparentHandler : public JoystickEventHandler {
 public:
  static JoystickEventTransparentHandler* GetInstance();

  void SetCallbacks(InputManagerCallbacks* callbacks) { callbacks_ = callbacks; }
  // Connects or disconnects the keymap's virtual gamepad.
  void SetVirtualJoystick(bool enable);

  bool OnAxis(JoystickAxisEvent* event) override;

 protected:
  bool OnButtonPress(JoystickButtonEvent* event, int simulate_mode) override;
  bool OnButtonRelease(JoystickButtonEvent* event, int simulate_mode) override;

 private:
  JoystickEventTransparentHandler() = default;

  InputManagerCallbacks* callbacks_ = nullptr;  // the host's
};

}  // namespace taviinputmanager

#endif  // HANDLERS_JOYSTICK_EVENT_TRANSPARENT_HANDLER_H_
