// Type "RightWalk": walks towards a right click. The item's point is the centre of the guest's stick.
#ifndef KEYMAP_MOUSE_RIGHT_WALK_CONFIG_ITEM_H_
#define KEYMAP_MOUSE_RIGHT_WALK_CONFIG_ITEM_H_

#include "keymap/composable_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD MouseRightWalkConfigItem : ComposableConfigItem {
  double character_rel_x = 0.5;  // the character's position, fraction of the display's width
  double character_rel_y = 0.5;  // fraction of its height
  double continue_factor = 1.0;  // seconds that a short click walks on, per radius of distance
  int press_hold_ms = 0;         // time on the centre before the slide to the target
  int swipe_steps = 1;           // of that slide
  int swipe_step_ms = 0;         // between two steps
  double walk_radius = 0;        // of the stick, fraction of the display's width
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_MOUSE_RIGHT_WALK_CONFIG_ITEM_H_
