#include "simulators/gamepad/vstick_left_shift_button_event_simulator.h"

#include "keymap/virtual_stick_left_shift_button_config_item.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::VirtualStickLeftShiftButtonConfigItem;

VStickLeftShiftButtonEventSimulator* VStickLeftShiftButtonEventSimulator::GetInstance() {
  static VStickLeftShiftButtonEventSimulator instance;
  return &instance;
}

void VStickLeftShiftButtonEventSimulator::Press(ConfigItem* item, ConfigKey* /*key*/) { Tell(item, true); }

void VStickLeftShiftButtonEventSimulator::Release(ConfigItem* item, ConfigKey* /*key*/) { Tell(item, false); }

void VStickLeftShiftButtonEventSimulator::Tell(const ConfigItem* item, bool press) {
  const auto* button = dynamic_cast<const VirtualStickLeftShiftButtonConfigItem*>(item);
  if (!button) return;  // not such a button
  Q_EMIT sigVStickLeftShiftButtonPressOrRelease(button->factor, press);
}

}  // namespace taviinputmanager
