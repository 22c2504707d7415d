// Looking around on a second point while the key is held: type "Observe".
#ifndef KEYMAP_OBSERVE_CONFIG_ITEM_H_
#define KEYMAP_OBSERVE_CONFIG_ITEM_H_

#include "keymap/composable_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD ObserveConfigItem : ComposableConfigItem {
  int sensitivity_x = 100;   // per cent; 100 is one display pixel a count
  int sensitivity_y = 100;   // the same, upright
  double sensitivity = 1.0;  // factor on both
  int move_interval_ms = 0;  // least time between sends
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_OBSERVE_CONFIG_ITEM_H_
