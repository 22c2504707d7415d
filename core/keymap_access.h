// The settings of a keymap, which may be incomplete.
#ifndef CORE_KEYMAP_ACCESS_H_
#define CORE_KEYMAP_ACCESS_H_

#include "keymap/keymap_config.h"

namespace taviinputmanager {

const tavikeymapmanager::KeymapSettings& DefaultSettings();
const tavikeymapmanager::WheelSettings& DefaultWheelSettings();

// Defaults for a null config and for a config without the record. Valid as long as the config.
inline const tavikeymapmanager::KeymapSettings& SettingsOf(const tavikeymapmanager::KeymapConfig* config) {
  return config && config->settings ? *config->settings : DefaultSettings();
}
inline const tavikeymapmanager::WheelSettings& WheelSettingsOf(const tavikeymapmanager::KeymapConfig* config) {
  return config && config->wheel_settings ? *config->wheel_settings : DefaultWheelSettings();
}

}  // namespace taviinputmanager

#endif  // CORE_KEYMAP_ACCESS_H_
