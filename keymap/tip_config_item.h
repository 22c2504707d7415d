// Type "Tip": a label on the guest view. It matches no key.
#ifndef KEYMAP_TIP_CONFIG_ITEM_H_
#define KEYMAP_TIP_CONFIG_ITEM_H_

#include "keymap/composable_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD TipConfigItem : ComposableConfigItem {
  bool IsKeyMatch(const ConfigKey&) const override { return false; }
  bool IsChordMatch(const ConfigKey&, const ConfigKey&) const override { return false; }
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_TIP_CONFIG_ITEM_H_
