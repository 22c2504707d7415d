// Gamepad events as keymap actions.
#ifndef HANDLERS_JOYSTICK_EVENT_SIMULATE_HANDLER_H_
#define HANDLERS_JOYSTICK_EVENT_SIMULATE_HANDLER_H_

#include "handlers/joystick_event_handler.h"

namespace tavikeymapmanager {
struct KeymapConfig;
}

namespace taviinputmanager {

struct InputManagerCallbacks;

class JoystickEventSimulateHandler : public JoystickEventHandler {
 public:
  static JoystickEventSimulateHandler* GetInstance();

  void SetCallbacks(InputManagerCallbacks* callbacks) { callbacks_ = callbacks; }
  void SetConfig(tavikeymapmanager::KeymapConfig* config) { joystick_config_ = config; }
  // The config is about to go.
  void ForgetConfig() { joystick_config_ = nullptr; }

  bool OnAxis(JoystickAxisEvent* event) override;

 protected:
  bool OnButtonPress(JoystickButtonEvent* event, int simulate_mode) override;
  bool OnButtonRelease(JoystickButtonEvent* event, int simulate_mode) override;

 private:
  JoystickEventSimulateHandler() = default;

  tavikeymapmanager::KeymapConfig* joystick_config_ = nullptr;  // the input manager's
  InputManagerCallbacks* callbacks_ = nullptr;                  // the host's
};

}  // namespace taviinputmanager

#endif  // HANDLERS_JOYSTICK_EVENT_SIMULATE_HANDLER_H_
