// Which keys a keymap uses.
#ifndef KEYMAPMANAGER_KEY_MATCH_H_
#define KEYMAPMANAGER_KEY_MATCH_H_

namespace tavikeymapmanager {

struct ConfigKey;
struct KeymapConfig;

// The implementation of isConfigKeyMatch.
bool IsKeyMatch(const KeymapConfig* config, const ConfigKey* configured, const ConfigKey* pressed);

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_KEY_MATCH_H_
