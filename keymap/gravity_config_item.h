// The guest's gravity sensor tilted by four keys: type "Gravity".
#ifndef KEYMAP_GRAVITY_CONFIG_ITEM_H_
#define KEYMAP_GRAVITY_CONFIG_ITEM_H_

#include "keymap/config_item.h"
#include "keymap/four_key_match.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD GravityConfigItem : ConfigItem {
  bool IsKeyMatch(const ConfigKey& pressed) const override { return IsDirectionKeyMatch(*this, pressed); }

  ConfigKey key_up;
  ConfigKey key_right;
  ConfigKey key_down;
  ConfigKey key_left;
  int speed = 100;  // per cent
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_GRAVITY_CONFIG_ITEM_H_
