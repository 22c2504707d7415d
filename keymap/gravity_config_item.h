// Type "Gravity": four keys tilt the guest's gravity sensor.
#ifndef KEYMAP_GRAVITY_CONFIG_ITEM_H_
#define KEYMAP_GRAVITY_CONFIG_ITEM_H_

#include "keymap/config_item.h"
#include "keymap/four_key_match.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD GravityConfigItem : ConfigItem {
  bool IsKeyMatch(const ConfigKey& pressed) const override { return IsDirectionKeyMatch(*this, pressed); }

  ConfigKey key_up;     // up; unset, here and below: this direction has no key
  ConfigKey key_right;  // right
  ConfigKey key_down;   // down
  ConfigKey key_left;   // left
  int speed = 100;      // how fast the tilt grows, in per cent
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_GRAVITY_CONFIG_ITEM_H_
