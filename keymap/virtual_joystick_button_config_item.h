// Type "VirtualJoystickButton": a key that acts as a virtual gamepad button.
#ifndef KEYMAP_VIRTUAL_JOYSTICK_BUTTON_CONFIG_ITEM_H_
#define KEYMAP_VIRTUAL_JOYSTICK_BUTTON_CONFIG_ITEM_H_

#include "keymap/composable_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD VirtualJoystickButtonConfigItem : ComposableConfigItem {
  QString map_text;  // the virtual button's name
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_VIRTUAL_JOYSTICK_BUTTON_CONFIG_ITEM_H_
