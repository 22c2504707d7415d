// An item whose key may require that another key is held.
#ifndef KEYMAP_COMPOSABLE_CONFIG_ITEM_H_
#define KEYMAP_COMPOSABLE_CONFIG_ITEM_H_

#include "keymap/config_item.h"

namespace tavikeymapmanager {

// The base of all items with one key. If `first_key` is set, only the chord triggers the item.
struct TAVI_KEYMAP_RECORD ComposableConfigItem : ConfigItem {
  // Whether this is the item's chord: `pressed` went down while `armed`, which no item had taken, is held.
  virtual bool IsChordMatch(const ConfigKey& armed, const ConfigKey& pressed) const {
    return IsSameKey(first_key, armed) && IsSameKey(key, pressed);
  }

  ConfigKey first_key;  // unset: a single key
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_COMPOSABLE_CONFIG_ITEM_H_
