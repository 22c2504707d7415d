// Type "VirtualJoystickBunchButton": rapid presses of a virtual gamepad button.
#ifndef KEYMAP_VIRTUAL_JOYSTICK_BUNCH_BUTTON_CONFIG_ITEM_H_
#define KEYMAP_VIRTUAL_JOYSTICK_BUNCH_BUTTON_CONFIG_ITEM_H_

#include "keymap/composable_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD VirtualJoystickBunchButtonConfigItem : ComposableConfigItem {
  QString map_text;            // the virtual button's name
  bool bunch_enabled = false;  // false: a plain button
  QString bunch_mode;          // as in BunchClickConfigItem
  int bunch_frequency = 10;    // presses per second, for "Continue"
  int bunch_count = 1;         // number of presses, for "One_Off"
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_VIRTUAL_JOYSTICK_BUNCH_BUTTON_CONFIG_ITEM_H_
