// All functions of the keymap library, for keymaps without items: each key reaches the guest.
#include "keymap/keymap_functions.h"

namespace tavikeymapmanager {

KeymapConfig* LoadKeymapConfigAndInfo(const QString& /*path*/) {
  auto* config = new KeymapConfig;
  config->settings = new KeymapSettings;
  config->settings->keyboard_transparent = true;
  return config;
}

KeymapConfig* LoadJoystickConfigAndInfo(const QString& path) { return LoadKeymapConfigAndInfo(path); }

ConfigKey CreateConfigKey(QString device, int virtual_key, int scancode) {
  ConfigKey key;
  key.device = device;
  key.virtual_key = virtual_key;
  key.scancode = scancode;
  return key;
}

void SetTextForConfigKey(ConfigKey* /*key*/) {}

bool isConfigKeyMatch(KeymapConfig* /*config*/, ConfigKey* /*configured*/, ConfigKey* /*pressed*/) { return false; }

int getMacroConfigKeyCode(QEvent* /*event*/) { return -1; }

bool isConfigHasSpeicalTypeKey(KeymapConfig* /*config*/, const QString& /*type*/) { return false; }

}  // namespace tavikeymapmanager
