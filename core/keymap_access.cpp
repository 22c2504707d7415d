#include "core/keymap_access.h"

#include "keymap/keymap_config.h"

namespace taviinputmanager {

using tavikeymapmanager::KeymapConfig;
using tavikeymapmanager::KeymapSettings;
using tavikeymapmanager::WheelSettings;

namespace {

template <typename Record>
const Record& OrDefaults(const Record* record) {
  if (record) return *record;
  static const Record defaults;
  return defaults;
}

}  // namespace

const KeymapSettings& SettingsOf(const KeymapConfig* config) { return OrDefaults(config ? config->settings : nullptr); }

const WheelSettings& WheelSettingsOf(const KeymapConfig* config) {
  return OrDefaults(config ? config->wheel_settings : nullptr);
}

}  // namespace taviinputmanager
