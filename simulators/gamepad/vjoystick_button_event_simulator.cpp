#include "simulators/gamepad/vjoystick_button_event_simulator.h"

#include "keymap/virtual_joystick_button_config_item.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::VirtualJoystickButtonConfigItem;

VJoystickButtonEventSimulator* VJoystickButtonEventSimulator::GetInstance() {
  static VJoystickButtonEventSimulator instance;
  return &instance;
}

void VJoystickButtonEventSimulator::Press(ConfigItem* item, ConfigKey* /*key*/) { Tell(item, true); }

void VJoystickButtonEventSimulator::Release(ConfigItem* item, ConfigKey* /*key*/) { Tell(item, false); }

void VJoystickButtonEventSimulator::Tell(const ConfigItem* item, bool press) {
  const auto* button = dynamic_cast<const VirtualJoystickButtonConfigItem*>(item);
  if (!button) return;  // not such a button
  QString text = button->map_text;
  Q_EMIT sigVJoystickButtonPressOrRelease(text, press);
}

}  // namespace taviinputmanager
