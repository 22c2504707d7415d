#include "keymapmanager/key_match.h"

#include "keymap/item_index.h"
#include "keymap/keymap_config.h"

namespace tavikeymapmanager {

bool IsKeyMatch(const KeymapConfig* config, const ConfigKey* configured, const ConfigKey* pressed) {
  if (config == nullptr || configured == nullptr || pressed == nullptr) return false;
  static ItemIndex index;  // of the list that was last searched
  index.Follow(config->items);
  return index.IsMatch(*configured, *pressed);
}

}  // namespace tavikeymapmanager
