// Walking towards a right click: type "RightWalk". The item's point is the centre of the guest's stick.
#ifndef KEYMAP_MOUSE_RIGHT_WALK_CONFIG_ITEM_H_
#define KEYMAP_MOUSE_RIGHT_WALK_CONFIG_ITEM_H_

#include "keymap/composable_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD MouseRightWalkConfigItem : ComposableConfigItem {
  double character_rel_x = 0.5;  // the character on screen, fraction of the display's width
  double character_rel_y = 0.5;  // the same, of its height
  double continue_factor = 1.0;  // on the time that a short click walks on
  int press_hold_ms = 0;         // rest on the centre before the slide to the target
  int swipe_steps = 1;           // of that slide
  int swipe_step_ms = 0;         // between two of them
  double walk_radius = 0;        // fraction of the display width
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_MOUSE_RIGHT_WALK_CONFIG_ITEM_H_
