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

// Aliases of the same functions, given by their mangled names. No program overrides the aliases, so the input layer
// compares addresses to find out whether it calls our functions.
TAVI_KEYMAP_EXPORT ConfigKey CreateOwnConfigKey(QString device, int virtual_key, int scancode)  //
    asm("tavi_CreateConfigKey") __attribute__((alias("_ZN17tavikeymapmanager15CreateConfigKeyE7QStringii")));
TAVI_KEYMAP_EXPORT bool isOwnConfigKeyMatch(KeymapConfig* config, ConfigKey* configured, ConfigKey* pressed)  //
    asm("tavi_isConfigKeyMatch")
        __attribute__((alias("_ZN17tavikeymapmanager16isConfigKeyMatchEPNS_12KeymapConfigEPNS_9ConfigKeyES3_")));

}  // namespace tavikeymapmanager
