// Type "Observe": looks around on a second point while the key is held.
#ifndef KEYMAP_OBSERVE_CONFIG_ITEM_H_
#define KEYMAP_OBSERVE_CONFIG_ITEM_H_

#include "keymap/composable_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD ObserveConfigItem : ComposableConfigItem {
  int sensitivity_x = 100;   // horizontal, in per cent; 100 is one display pixel per count
  int sensitivity_y = 100;   // vertical, likewise
  double sensitivity = 1.0;  // factor on both
  int move_interval_ms = 0;  // minimum time between sends
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_OBSERVE_CONFIG_ITEM_H_
