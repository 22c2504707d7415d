// The guest's gravity sensor tilted by four keys: type "Gravity".
#ifndef KEYMAP_GRAVITY_CONFIG_ITEM_H_
#define KEYMAP_GRAVITY_CONFIG_ITEM_H_

#include "keymap/config_item.h"
#include "keymap/four_key_match.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD GravityConfigItem : ConfigItem {
  bool IsKeyMatch(const ConfigKey& pressed) const override { return IsDirectionKeyMatch(*this, pressed); }

  ConfigKey key_up;     // of the direction up; unset, here and below: that direction has no key
  ConfigKey key_right;  // of the direction right
  ConfigKey key_down;   // of the direction down
  ConfigKey key_left;   // of the direction left
  int speed = 100;      // per cent of how fast the tilt grows
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_GRAVITY_CONFIG_ITEM_H_
