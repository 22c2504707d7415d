// Type "Fire": the fire button of a shooter. The left mouse button presses it while view control is on.
#ifndef KEYMAP_FIRE_CONFIG_ITEM_H_
#define KEYMAP_FIRE_CONFIG_ITEM_H_

#include "keymap/composable_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD FireConfigItem : ComposableConfigItem {
  bool relative_mode = false;   // relative mouse counts drag the contact while the key is down
  double alt_rel_x = 0;         // with alt_rel_y, unless both are 0: the press point, instead of the item's
  double alt_rel_y = 0;         // see alt_rel_x
  double range_radius = 0;      // of the fire range, fraction of the display's height
  int cancel_swipe_steps = 0;   // of the swipe to the SpellCancel point
  bool offset_enabled = false;  // jump once, at the first real movement
  double offset_length = 0;     // of that jump, fraction of the display's height
  double offset_threshold = 0;  // movement that triggers the jump, fraction of the display's height
  QString range_mode;           // "Fire_range_unlimited"; any other value limits the range
  int move_interval_ms = 0;     // minimum time between sends
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_FIRE_CONFIG_ITEM_H_
