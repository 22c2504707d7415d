// Type "BunchClick": rapid taps on one point.
#ifndef KEYMAP_BUNCH_CLICK_CONFIG_ITEM_H_
#define KEYMAP_BUNCH_CLICK_CONFIG_ITEM_H_

#include "keymap/composable_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD BunchClickConfigItem : ComposableConfigItem {
  QString bunch_mode;        // "Continue": while the key is held; "One_Off": a fixed number when it is released
  int bunch_frequency = 10;  // taps per second, for "Continue"
  int bunch_count = 1;       // number of taps, for "One_Off"
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_BUNCH_CLICK_CONFIG_ITEM_H_
