// What the input layer asks of a keymap library. All on the main thread.
#ifndef KEYMAP_KEYMAP_FUNCTIONS_H_
#define KEYMAP_KEYMAP_FUNCTIONS_H_

#include <QString>

#include "keymap/config_key.h"
#include "keymap/keymap_config.h"
#include "keymap/keymap_export.h"

class QEvent;

namespace tavikeymapmanager {

// The keymap at `path`, or the system keymap for its reserved name. Never null: what cannot be read gives default
// settings and no items. The caller owns the result.
TAVI_KEYMAP_EXPORT KeymapConfig* LoadKeymapConfigAndInfo(const QString& path);
// The same for a joystick keymap.
TAVI_KEYMAP_EXPORT KeymapConfig* LoadJoystickConfigAndInfo(const QString& path);

// A key made from an event; kUnsetCode stands for what is not known. `text` is the key's name, a shared constant.
TAVI_KEYMAP_EXPORT ConfigKey CreateConfigKey(QString device, int virtual_key, int scancode);
// Fills `text` from the key's codes; a joystick key, which has none, keeps it. Nothing for null.
TAVI_KEYMAP_EXPORT void SetTextForConfigKey(ConfigKey* key);

// Whether an item of `config` answers to `configured` alone, or to the chord (`configured`, `pressed`), by its keys as
// they are now. False for null. Main thread.
TAVI_KEYMAP_EXPORT bool isConfigKeyMatch(KeymapConfig* config, ConfigKey* configured, ConfigKey* pressed);
// The macro language's code of an event: the native scan code of a key, the Qt::MouseButton of a button, else -1.
TAVI_KEYMAP_EXPORT int getMacroConfigKeyCode(QEvent* event);
// Whether an item of `config` has this type. False for null.
TAVI_KEYMAP_EXPORT bool isConfigHasSpeicalTypeKey(KeymapConfig* config, const QString& type);

}  // namespace tavikeymapmanager

#endif  // KEYMAP_KEYMAP_FUNCTIONS_H_
