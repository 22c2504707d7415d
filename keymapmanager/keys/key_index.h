// The table of keys, indexed by code and by name. Created on first use and then constant: any thread.
#ifndef KEYMAPMANAGER_KEYS_KEY_INDEX_H_
#define KEYMAPMANAGER_KEYS_KEY_INDEX_H_

#include <optional>
#include <utility>

#include <QHash>
#include <QString>
#include <QStringList>

#include "keymap/config_key.h"
#include "keymapmanager/keys/key_table.h"

namespace tavikeymapmanager {

class KeyIndex {
 public:
  // Never destroyed, because its texts are never freed.
  static const KeyIndex& Get() {
    static const auto* const index = new KeyIndex;
    return *index;
  }

  // The key with a name or alias, except gamepads and `Scan 200`.
  std::optional<ConfigKey> Find(const QString& name) const;
  // Implements CreateConfigKey.
  ConfigKey MakeKey(QString device, int virtual_key, int scancode) const {
    const QString& text = TextOf(device, virtual_key, scancode);
    return {std::move(device), text, virtual_key, scancode};
  }
  // The keyboard key with a scan code from 0 to 511.
  ConfigKey KeyboardKey(int scancode) const;
  // The shared name of a key by its codes: the scan code, or, if that is unset, the virtual key. Empty for a gamepad
  // key and for unknown codes.
  const QString& TextOf(const QString& device, int virtual_key, int scancode) const {
    if (IsSameText(device, keywords::kDeviceKeyboard)) return KeyboardText(virtual_key, scancode);
    return MouseText(device, scancode);
  }
  // As AllKeyNames.
  const QStringList& Names() const { return names_; }

 private:
  KeyIndex();

  void AddKeyboardKey(const KeyboardKeyRow& row);
  void AddMouseKey(int code, const QString& name);
  const QString& KeyboardText(int virtual_key, int scancode) const {
    if (scancode >= 0 && scancode < kScancodeCount) return keyboard_names_[scancode];
    return scancode == kUnsetCode ? TextOfVirtualKey(virtual_key) : no_name_;
  }
  const QString& TextOfVirtualKey(int virtual_key) const;
  // Of a mouse button or wheel direction; empty for other devices.
  const QString& MouseText(const QString& device, int scancode) const;

  QString keyboard_names_[kScancodeCount];  // by scan code; `Scan <code>` if it is not in the table
  int virtual_keys_[kScancodeCount] = {};   // by scan code; 0 if it is not in the table
  QHash<int, QString> names_by_virtual_key_;
  QHash<int, QString> mouse_names_;
  QHash<QString, ConfigKey> keys_;
  QStringList names_;
  const QString no_name_;
};

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_KEYS_KEY_INDEX_H_
