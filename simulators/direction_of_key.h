// Which way a key of a four-key item points.
#ifndef SIMULATORS_DIRECTION_OF_KEY_H_
#define SIMULATORS_DIRECTION_OF_KEY_H_

#include "keymap/config_key.h"
#include "slots/direction_flags.h"

namespace taviinputmanager {

// For every item with `key_up`, `key_right`, `key_down`, `key_left`. What is none of the other three counts as right, a
// key that the item does not have included: callers pass keys that matched it.
template <typename Item>
Direction DirectionOfKey(const Item& item, const tavikeymapmanager::ConfigKey& key) {
  if (IsSameKey(item.key_up, key)) return kDirectionUp;
  if (IsSameKey(item.key_down, key)) return kDirectionDown;
  if (IsSameKey(item.key_left, key)) return kDirectionLeft;
  return kDirectionRight;
}

}  // namespace taviinputmanager

#endif  // SIMULATORS_DIRECTION_OF_KEY_H_
