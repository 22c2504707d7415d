#include "core/keymap_access.h"

#include "keymap/keymap_config.h"

namespace taviinputmanager {

using tavikeymapmanager::KeymapConfig;
using tavikeymapmanager::KeymapSettings;
using tavikeymapmanager::WheelSettings;

const KeymapSettings& SettingsOf(const KeymapConfig* config) {
  static const KeymapSettings defaults;
  return config && config->settings ? *config->settings : defaults;
}

const WheelSettings& WheelSettingsOf(const KeymapConfig* config) {
  static const WheelSettings defaults;
  return config && config->wheel_settings ? *config->wheel_settings : defaults;
}

}  // namespace taviinputmanager
