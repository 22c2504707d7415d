// The settings of a keymap, which may be incomplete.
#ifndef CORE_KEYMAP_ACCESS_H_
#define CORE_KEYMAP_ACCESS_H_

namespace tavikeymapmanager {
struct KeymapConfig;
struct KeymapSettings;
struct WheelSettings;
}  // namespace tavikeymapmanager

namespace taviinputmanager {

// Defaults for a null config and for a config without the record. Valid as long as the config.
const tavikeymapmanager::KeymapSettings& SettingsOf(const tavikeymapmanager::KeymapConfig* config);
const tavikeymapmanager::WheelSettings& WheelSettingsOf(const tavikeymapmanager::KeymapConfig* config);

}  // namespace taviinputmanager

#endif  // CORE_KEYMAP_ACCESS_H_
