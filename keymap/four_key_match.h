// The matching of items with four direction keys instead of one key.
#ifndef KEYMAP_FOUR_KEY_MATCH_H_
#define KEYMAP_FOUR_KEY_MATCH_H_

#include "keymap/config_key.h"

namespace tavikeymapmanager {

template <typename Item>
bool IsDirectionKeyMatch(const Item& item, const ConfigKey& pressed) {
  return IsSameKey(item.key_up, pressed) || IsSameKey(item.key_right, pressed) || IsSameKey(item.key_down, pressed) ||
         IsSameKey(item.key_left, pressed);
}

}  // namespace tavikeymapmanager

#endif  // KEYMAP_FOUR_KEY_MATCH_H_
