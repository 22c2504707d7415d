#include "keymap/keymap_functions.h"
#include "keymapmanager/key_match.h"

namespace tavikeymapmanager {

bool isConfigKeyMatch(KeymapConfig* config, ConfigKey* configured, ConfigKey* pressed) {
  return IsKeyMatch(config, configured, pressed);
}

}  // namespace tavikeymapmanager

// The same function, by its mangled name, under a name that programs do not override: by this name the input layer
// recognizes whose function it calls.
extern "C" TAVI_KEYMAP_EXPORT
    __attribute__((alias("_ZN17tavikeymapmanager16isConfigKeyMatchEPNS_12KeymapConfigEPNS_9ConfigKeyES3_"))) bool
    tavi_isConfigKeyMatch(tavikeymapmanager::KeymapConfig*, tavikeymapmanager::ConfigKey*,
                          tavikeymapmanager::ConfigKey*);
