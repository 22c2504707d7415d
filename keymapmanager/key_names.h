// The names of keys: what keymap files, scripts and windows call a key.
//
// A keyboard key is known by its Windows scan code (set 1, the extended bit as 0x100), a mouse button by its
// Qt::MouseButton value, a wheel direction by 548 or 549, a gamepad's button or stick by the host's own name for it.
// Names are compared exactly: `Left Shift`, `F5`, `Numpad Enter`, `Mouse Side 1`, `Wheel Up`, `Scan 200`, `Pad LB`,
// `Pad A+B`. A gamepad's names have `Pad ` in front of the host's name, since `A` alone is a key of the keyboard; the
// `text` of such a key is the host's name without it.
//
// Threads: any.
#ifndef KEYMAPMANAGER_KEY_NAMES_H_
#define KEYMAPMANAGER_KEY_NAMES_H_

#include <optional>

#include <QString>
#include <QStringList>

#include "keymap/config_key.h"
#include "keymap/keymap_export.h"

namespace tavikeymapmanager {

// The key of that name, with all fields set; nothing for a name that no key has. `Pad ` takes any text behind it,
// since a gamepad's names are the host's. No chords.
TAVI_KEYMAP_EXPORT std::optional<ConfigKey> KeyFromName(const QString& name);

// The name that KeyFromName reads back as the same key. A key that has none gives an empty string.
TAVI_KEYMAP_EXPORT QString NameOfKey(const ConfigKey& key);

// Every name of keyboard, mouse and wheel, then the usual ones of gamepads; other spellings (`Esc`) and the unnamed
// scan codes (`Scan 200`) are left out.
TAVI_KEYMAP_EXPORT QStringList AllKeyNames();

// Other spellings that KeyFromName reads as this key: `Esc` of `Escape`.
TAVI_KEYMAP_EXPORT QStringList OtherNamesOfKey(const ConfigKey& key);

// The name that a misspelt one was most likely meant to be; empty when nothing comes near.
TAVI_KEYMAP_EXPORT QString NearestKeyName(const QString& word);

// The key of a gamepad's button, pair of buttons ("A+B") or stick ("Left_Stick") by the host's name.
TAVI_KEYMAP_EXPORT ConfigKey JoystickKey(const QString& text);

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_KEY_NAMES_H_
