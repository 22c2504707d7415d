// The fire button of a shooter: type "Fire". The left mouse button reaches it while staring.
#ifndef KEYMAP_FIRE_CONFIG_ITEM_H_
#define KEYMAP_FIRE_CONFIG_ITEM_H_

#include "keymap/composable_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD FireConfigItem : ComposableConfigItem {
  bool relative_mode = false;   // relative mouse counts drive the fire finger while the key is down
  double alt_rel_x = 0;         // with alt_rel_y, unless both are 0: the press point in place of the item's
  double alt_rel_y = 0;         // see alt_rel_x
  double range_radius = 0;      // of the fire range, fraction of the display height
  int cancel_swipe_steps = 0;   // of the swipe to the spell-cancel point
  bool offset_enabled = false;  // a one-off offset at the first real movement
  double offset_length = 0;     // fraction of the display height
  double offset_threshold = 0;  // travel that triggers the offset, fraction of the display height
  QString range_mode;           // "Fire_range_unlimited"; any other limits the range
  int move_interval_ms = 0;     // least time between sends
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_FIRE_CONFIG_ITEM_H_
