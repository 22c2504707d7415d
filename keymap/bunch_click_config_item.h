// Rapid taps on one point: type "BunchClick".
#ifndef KEYMAP_BUNCH_CLICK_CONFIG_ITEM_H_
#define KEYMAP_BUNCH_CLICK_CONFIG_ITEM_H_

#include "keymap/composable_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD BunchClickConfigItem : ComposableConfigItem {
  QString bunch_mode;        // "Continue" while the key is held; "One_Off", a run of taps when it comes up
  int bunch_frequency = 10;  // taps per second
  int bunch_count = 1;       // taps of a one-off run
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_BUNCH_CLICK_CONFIG_ITEM_H_
