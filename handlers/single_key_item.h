// Which items a single key reaches.
#ifndef HANDLERS_SINGLE_KEY_ITEM_H_
#define HANDLERS_SINGLE_KEY_ITEM_H_

#include "keymap/composable_config_item.h"

namespace taviinputmanager {

// Whether `item` matches its key alone, unlike a chord.
inline bool IsSingleKeyItem(const tavikeymapmanager::ConfigItem* item) {
  const auto* composable = dynamic_cast<const tavikeymapmanager::ComposableConfigItem*>(item);
  return !composable || !IsKeySet(composable->first_key);
}

}  // namespace taviinputmanager

#endif  // HANDLERS_SINGLE_KEY_ITEM_H_
