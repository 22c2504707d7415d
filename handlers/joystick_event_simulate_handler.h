// Applies the keymap to gamepad events.
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

// Buttons are keys of the device "joystick", identified by name. While "A" is held, "B" is first looked up as "A+B",
// and by itself only if no such chord has an effect.
//
// Main thread. It remembers names only: no item is kept after a call, and a release goes to the item that has the key's
// name at that time. A new config changes nothing of this.
//
// Names are recorded after a press or release has been handled: a macro that presses or releases its own button while
// it runs finds no record of it. If a host does that during a call, the record is corrected at the end.
class JoystickEventSimulateHandler : public JoystickEventHandler {
 public:
  static JoystickEventSimulateHandler* GetInstance();

  void SetCallbacks(InputManagerCallbacks* callbacks) { callbacks_ = callbacks; }
  void SetConfig(tavikeymapmanager::KeymapConfig* config) { joystick_config_ = config; }
  // The config is about to be deleted.
  void ForgetConfig() { joystick_config_ = nullptr; }

  bool OnAxis(JoystickAxisEvent* event) override;
  bool OnButtonPress(JoystickButtonEvent* event, int simulate_mode) override;
  bool OnButtonRelease(JoystickButtonEvent* event, int simulate_mode) override;

 private:
  JoystickEventSimulateHandler() = default;

  bool OnLeftStick(JoystickAxisEvent* event);
  bool OnRightStick(JoystickAxisEvent* event);
  // Null if nothing matches. A match is reported to the host.
  tavikeymapmanager::ConfigItem* FindItem(const tavikeymapmanager::ConfigKey& key) const;
  static EventSimulator* SimulatorFor(const tavikeymapmanager::ConfigItem* item);
  // Each returns whether an item and its simulator handled the key named `text`.
  bool TryPress(const QString& text);
  bool TryRelease(const QString& text);
  // Releases every active text that ends with the button `name`. Returns whether there was one.
  bool Release(const QString& name);

  tavikeymapmanager::KeymapConfig* joystick_config_ = nullptr;  // owned by the input manager
  QStringList held_buttons_;                                    // by name, in the order of pressing
  QStringList active_texts_;                                    // pressed and not yet released
  QStringList pressing_;                        // presses in progress that the host has not released meanwhile
  QStringList releasing_;                       // the same for releases
  InputManagerCallbacks* callbacks_ = nullptr;  // owned by the host
};

}  // namespace taviinputmanager

#endif  // HANDLERS_JOYSTICK_EVENT_SIMULATE_HANDLER_H_
