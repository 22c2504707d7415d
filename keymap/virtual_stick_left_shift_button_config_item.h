// Type "VirtualLeftStickShiftButton": a key that scales the virtual left stick while it is held.
#ifndef KEYMAP_VIRTUAL_STICK_LEFT_SHIFT_BUTTON_CONFIG_ITEM_H_
#define KEYMAP_VIRTUAL_STICK_LEFT_SHIFT_BUTTON_CONFIG_ITEM_H_

#include "keymap/composable_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD VirtualStickLeftShiftButtonConfigItem : ComposableConfigItem {
  double factor = 1.0;  // factor on the stick's deflection; 0.5 walks at half speed
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_VIRTUAL_STICK_LEFT_SHIFT_BUTTON_CONFIG_ITEM_H_
