// The view turned by four keys: type "Eye". The base's point is the finger's home.
#ifndef KEYMAP_EYE_CONFIG_ITEM_H_
#define KEYMAP_EYE_CONFIG_ITEM_H_

#include "keymap/config_item.h"
#include "keymap/four_key_match.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD EyeConfigItem : ConfigItem {
  bool IsKeyMatch(const ConfigKey& pressed) const override { return IsDirectionKeyMatch(*this, pressed); }

  ConfigKey key_up;     // of the direction up; unset, here and below: that direction has no key
  ConfigKey key_right;  // of the direction right
  ConfigKey key_down;   // of the direction down
  ConfigKey key_left;   // of the direction left
  int speed = 100;      // per cent; 100 is 8 display pixels each 8 ms
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_EYE_CONFIG_ITEM_H_
