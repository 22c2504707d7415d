// An item whose key may need another key held before it.
#ifndef KEYMAP_COMPOSABLE_CONFIG_ITEM_H_
#define KEYMAP_COMPOSABLE_CONFIG_ITEM_H_

#include "keymap/config_item.h"

namespace tavikeymapmanager {

// Base of every item with one key. While `first_key` is set, the item answers only as a chord.
struct TAVI_KEYMAP_RECORD ComposableConfigItem : ConfigItem {
  // Whether `armed`, held and taken by nothing, and then `pressed` make this item's chord.
  virtual bool IsChordMatch(const ConfigKey& armed, const ConfigKey& pressed) const {
    return IsSameKey(first_key, armed) && IsSameKey(key, pressed);
  }

  ConfigKey first_key;  // unset: a single key
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_COMPOSABLE_CONFIG_ITEM_H_
