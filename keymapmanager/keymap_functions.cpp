#include "keymap/keymap_functions.h"

#include <QKeyEvent>
#include <QLoggingCategory>
#include <QMouseEvent>

#include "keymap/composable_config_item.h"
#include "keymap/tip_config_item.h"
#include "keymapmanager/key_index.h"
#include "keymapmanager/keymap_file.h"

namespace tavikeymapmanager {

namespace {

Q_LOGGING_CATEGORY(keymap_log, "tavi.keymap")

KeymapConfig* Load(const QString& path) {
  LoadResult result = ReadKeymapFile(path);
  for (const Diagnostic& diagnostic : result.diagnostics)
    qCWarning(keymap_log).noquote() << FormatDiagnostic(diagnostic);
  return result.config.release();
}

// A chord item does not answer to its last key alone.
bool IsAloneMatch(const ConfigItem& item, const ComposableConfigItem* composable, const ConfigKey& key) {
  if (composable != nullptr && IsKeySet(composable->first_key)) return false;
  return item.IsKeyMatch(key);
}

}  // namespace

KeymapConfig* LoadKeymapConfigAndInfo(const QString& path) { return Load(path); }

KeymapConfig* LoadJoystickConfigAndInfo(const QString& path) { return Load(path); }

ConfigKey CreateConfigKey(QString device, int virtual_key, int scancode) {
  ConfigKey key;
  key.device = std::move(device);
  key.virtual_key = virtual_key;
  key.scancode = scancode;
  key.text = KeyIndex::Get().TextOf(key);
  return key;
}

void SetTextForConfigKey(ConfigKey* key) {
  if (key == nullptr) return;
  if (key->device == keywords::kDeviceJoystick) return;  // its text is what it is known by
  key->text = KeyIndex::Get().TextOf(*key);
}

bool isConfigKeyMatch(KeymapConfig* config, ConfigKey* configured, ConfigKey* pressed) {
  if (config == nullptr || configured == nullptr || pressed == nullptr) return false;
  for (const ConfigItem* item : config->items) {
    if (item == nullptr || dynamic_cast<const TipConfigItem*>(item) != nullptr) continue;  // a label answers to no key
    const auto* composable = dynamic_cast<const ComposableConfigItem*>(item);
    if (IsAloneMatch(*item, composable, *configured)) return true;
    if (composable != nullptr && composable->IsChordMatch(*configured, *pressed)) return true;
  }
  return false;
}

int getMacroConfigKeyCode(QEvent* event) {
  constexpr int kNoCode = -1;
  if (event == nullptr) return kNoCode;
  switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease: return static_cast<int>(static_cast<QKeyEvent*>(event)->nativeScanCode());
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick: return static_cast<QMouseEvent*>(event)->button();
    default: return kNoCode;
  }
}

bool isConfigHasSpeicalTypeKey(KeymapConfig* config, const QString& type) {
  if (config == nullptr) return false;
  for (const ConfigItem* item : config->items) {
    if (item != nullptr && item->type == type) return true;
  }
  return false;
}

}  // namespace tavikeymapmanager
