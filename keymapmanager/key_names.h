// The names of keys in keymap files, scripts and windows.
//
// A keyboard key is identified by its Windows scan code (set 1, with the extended bit as 0x100), a mouse button by its
// Qt::MouseButton value, a wheel direction by 548 or 549, a gamepad's button or stick by the host's name for it.
// Names are compared exactly: `Left Shift`, `F5`, `Numpad Enter`, `Mouse Side 1`, `Wheel Up`, `Scan 200`, `Pad LB`,
// `Pad A+B`. A gamepad's names are `Pad ` and the host's name, because `A` alone is a key of the keyboard. The `text`
// of such a key is the host's name without `Pad `.
//
// Any thread.
#ifndef KEYMAPMANAGER_KEY_NAMES_H_
#define KEYMAPMANAGER_KEY_NAMES_H_

#include <optional>

#include <QString>
#include <QStringList>

#include "keymap/config_key.h"
#include "keymap/keymap_export.h"

namespace tavikeymapmanager {

// The key with this name, with all fields set. Empty if no key has it. `Pad ` may be followed by any text, because a
// gamepad's names are the host's. Does not read chords.
TAVI_KEYMAP_EXPORT std::optional<ConfigKey> KeyFromName(const QString& name);

// The name that KeyFromName reads as this key. Empty if the key has none.
TAVI_KEYMAP_EXPORT QString NameOfKey(const ConfigKey& key);

// All names of keyboard, mouse and wheel, then the usual ones of gamepads. Without alternative names (`Esc`) and
// unnamed scan codes (`Scan 200`).
TAVI_KEYMAP_EXPORT QStringList AllKeyNames();

// Alternative names that KeyFromName reads as this key: `Esc` for `Escape`.
TAVI_KEYMAP_EXPORT QStringList OtherNamesOfKey(const ConfigKey& key);

// The name that a misspelt one most likely meant. Empty if none is close.
TAVI_KEYMAP_EXPORT QString NearestKeyName(const QString& word);

// The key for a gamepad's button, pair of buttons ("A+B") or stick ("Left_Stick"), from the host's name.
TAVI_KEYMAP_EXPORT ConfigKey JoystickKey(const QString& text);

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_KEY_NAMES_H_
