#include "keymap/keymap_functions.h"

#include <QKeyEvent>
#include <QLoggingCategory>
#include <QMouseEvent>

#include "keymapmanager/keymap_file.h"
#include "keymapmanager/keys/key_index.h"

namespace tavikeymapmanager {

namespace {

Q_LOGGING_CATEGORY(keymap_log, "tavi.keymap")

KeymapConfig* Load(const QString& path) {
  LoadResult result = ReadKeymapFile(path);
  for (const Diagnostic& diagnostic : result.diagnostics)
    qCWarning(keymap_log).noquote() << FormatDiagnostic(diagnostic);
  return result.config.release();
}

}  // namespace

KeymapConfig* LoadKeymapConfigAndInfo(const QString& path) { return Load(path); }

KeymapConfig* LoadJoystickConfigAndInfo(const QString& path) { return Load(path); }

void SetTextForConfigKey(ConfigKey* key) {
  if (key == nullptr) return;
  if (key->device == keywords::kDeviceJoystick) return;  // identified by its text
  key->text = KeyIndex::Get().TextOf(key->device, key->virtual_key, key->scancode);
}

int getMacroConfigKeyCode(QEvent* event) {
  constexpr int kNoCode = -1;
  if (event == nullptr) return kNoCode;
  switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease: return static_cast<int>(static_cast<QKeyEvent*>(event)->nativeScanCode());
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick: return static_cast<int>(static_cast<QMouseEvent*>(event)->button());
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
