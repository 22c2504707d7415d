#include "keymap/keymap_functions.h"
#include "keymapmanager/key_match.h"

namespace tavikeymapmanager {

bool isConfigKeyMatch(KeymapConfig* config, ConfigKey* configured, ConfigKey* pressed) {
  return IsKeyMatch(config, configured, pressed);
}

}  // namespace tavikeymapmanager
