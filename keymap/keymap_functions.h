// The functions that the input layer calls in a keymap library, all on the main thread.
#ifndef KEYMAP_KEYMAP_FUNCTIONS_H_
#define KEYMAP_KEYMAP_FUNCTIONS_H_

#include <QString>

#include "keymap/config_key.h"
#include "keymap/keymap_config.h"
#include "keymap/keymap_export.h"

class QEvent;

namespace tavikeymapmanager {

// Loads the keymap at `path`, or the system keymap for its reserved name. Never returns null: a file that cannot be
// read gives default settings and no items. The caller owns the result.
TAVI_KEYMAP_EXPORT KeymapConfig* LoadKeymapConfigAndInfo(const QString& path);
// The same for a joystick keymap.
TAVI_KEYMAP_EXPORT KeymapConfig* LoadJoystickConfigAndInfo(const QString& path);

// Makes a key from an event. Pass kUnsetCode for an unknown code. `text` becomes the key's name, a shared constant.
TAVI_KEYMAP_EXPORT ConfigKey CreateConfigKey(QString device, int virtual_key, int scancode);
// Sets `text` from the key's codes. A joystick key has none and keeps its text. Null is ignored.
TAVI_KEYMAP_EXPORT void SetTextForConfigKey(ConfigKey* key);

// Whether `configured` alone, or the chord (`configured`, `pressed`), triggers an item of `config`, with its current
// keys. False for null.
TAVI_KEYMAP_EXPORT bool isConfigKeyMatch(KeymapConfig* config, ConfigKey* configured, ConfigKey* pressed);
// The code of an event in the macro language: a key's native scan code, a button's Qt::MouseButton value, otherwise -1.
TAVI_KEYMAP_EXPORT int getMacroConfigKeyCode(QEvent* event);
// Whether `config` has an item of this type. False for null.
TAVI_KEYMAP_EXPORT bool isConfigHasSpeicalTypeKey(KeymapConfig* config, const QString& type);

}  // namespace tavikeymapmanager

#endif  // KEYMAP_KEYMAP_FUNCTIONS_H_
