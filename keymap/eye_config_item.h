// Type "Eye": four keys turn the view. The item's point is where the contact starts.
#ifndef KEYMAP_EYE_CONFIG_ITEM_H_
#define KEYMAP_EYE_CONFIG_ITEM_H_

#include "keymap/config_item.h"
#include "keymap/four_key_match.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD EyeConfigItem : ConfigItem {
  bool IsKeyMatch(const ConfigKey& pressed) const override { return IsDirectionKeyMatch(*this, pressed); }

  ConfigKey key_up;     // up; unset, here and below: this direction has no key
  ConfigKey key_right;  // right
  ConfigKey key_down;   // down
  ConfigKey key_left;   // left
  int speed = 100;      // per cent; 100 is 8 display pixels every 8 ms
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_EYE_CONFIG_ITEM_H_
