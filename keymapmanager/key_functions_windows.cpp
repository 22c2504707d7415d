#include "keymap/keymap_functions.h"
#include "keymapmanager/key_match.h"
#include "keymapmanager/keys/key_index.h"

namespace tavikeymapmanager {

ConfigKey CreateConfigKey(QString device, int virtual_key, int scancode) {
  return KeyIndex::Get().MakeKey(std::move(device), virtual_key, scancode);
}

bool isConfigKeyMatch(KeymapConfig* config, ConfigKey* configured, ConfigKey* pressed) {
  return IsKeyMatch(config, configured, pressed);
}

}  // namespace tavikeymapmanager
