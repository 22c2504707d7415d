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

// The same functions, by their mangled names, under names that programs do not override: by these the input layer
// recognizes whose functions it calls.
TAVI_KEYMAP_EXPORT ConfigKey CreateOwnConfigKey(QString device, int virtual_key, int scancode)  //
    asm("tavi_CreateConfigKey") __attribute__((alias("_ZN17tavikeymapmanager15CreateConfigKeyE7QStringii")));
TAVI_KEYMAP_EXPORT bool isOwnConfigKeyMatch(KeymapConfig* config, ConfigKey* configured, ConfigKey* pressed)  //
    asm("tavi_isConfigKeyMatch")
        __attribute__((alias("_ZN17tavikeymapmanager16isConfigKeyMatchEPNS_12KeymapConfigEPNS_9ConfigKeyES3_")));

}  // namespace tavikeymapmanager
