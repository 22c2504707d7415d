// Gamepad events as keymap actions.
#ifndef HANDLERS_JOYSTICK_EVENT_SIMULATE_HANDLER_H_
#define HANDLERS_JOYSTICK_EVENT_SIMULATE_HANDLER_H_

#include <QStringList>

#include "handlers/joystick_event_handler.h"

namespace tavikeymapmanager {
struct ConfigItem;
struct ConfigKey;
struct KeymapConfig;
}  // namespace tavikeymapmanager

namespace taviinputmanager {

class EventSimulator;
struct InputManagerCallbacks;

// Buttons are keys of the device "joystick", known by name. While "A" is held, "B" is first looked up as "A+B" and by
// itself only where no such combination does anything.
//
// Main thread. What it remembers are names: no item is held beyond a call, and a press is released through whatever
// item answers to its name by then. A new config leaves all of it as it is.
//
// Names are noted when a press or release is through: a macro that presses or releases its own button while it runs
// finds nothing of it. Where a host does that from inside a send, it is made up for at the end.
class JoystickEventSimulateHandler : public JoystickEventHandler {
 public:
  static JoystickEventSimulateHandler* GetInstance();

  void SetCallbacks(InputManagerCallbacks* callbacks) { callbacks_ = callbacks; }
  void SetConfig(tavikeymapmanager::KeymapConfig* config) { joystick_config_ = config; }
  // The config is about to go.
  void ForgetConfig() { joystick_config_ = nullptr; }

  bool OnAxis(JoystickAxisEvent* event) override;
  bool OnButtonPress(JoystickButtonEvent* event, int simulate_mode) override;
  bool OnButtonRelease(JoystickButtonEvent* event, int simulate_mode) override;

 private:
  JoystickEventSimulateHandler() = default;

  bool OnLeftStick(JoystickAxisEvent* event);
  bool OnRightStick(JoystickAxisEvent* event);
  // Null when nothing matches. A match is told to the host.
  tavikeymapmanager::ConfigItem* FindItem(const tavikeymapmanager::ConfigKey& key) const;
  static EventSimulator* SimulatorFor(const tavikeymapmanager::ConfigItem* item);
  // Each tells whether an item and its simulator took the key called `text`.
  bool TryPress(const QString& text);
  bool TryRelease(const QString& text);
  // Releases every active text that ends with the button `name`. Tells whether there was one.
  bool Release(const QString& name);

  tavikeymapmanager::KeymapConfig* joystick_config_ = nullptr;  // the input manager's
  QStringList held_buttons_;                                    // by name, in the order of pressing
  QStringList active_texts_;                                    // pressed and not yet released
  QStringList pressing_;                                        // presses under way that the host has not taken back
  QStringList releasing_;                                       // the same of releases
  InputManagerCallbacks* callbacks_ = nullptr;                  // the host's
};

}  // namespace taviinputmanager

#endif  // HANDLERS_JOYSTICK_EVENT_SIMULATE_HANDLER_H_
