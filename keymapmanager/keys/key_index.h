// The table of keys, indexed by code and by name. Made on first use, constant from then on: any thread.
#ifndef KEYMAPMANAGER_KEYS_KEY_INDEX_H_
#define KEYMAPMANAGER_KEYS_KEY_INDEX_H_

#include <optional>

#include <QHash>
#include <QString>
#include <QStringList>

#include "keymap/config_key.h"
#include "keymapmanager/keys/key_table.h"

namespace tavikeymapmanager {

class KeyIndex {
 public:
  // Never destroyed, as its texts are never freed.
  static const KeyIndex& Get() {
    static const auto* const index = new KeyIndex;
    return *index;
  }

  // The key of a name or alias, gamepads and `Scan 200` apart.
  std::optional<ConfigKey> Find(const QString& name) const;
  // The keyboard's key of a scan code from 0 to 511.
  ConfigKey KeyboardKey(int scancode) const;
  // The shared name of a key by its codes: the scan code, or, where that is unset, the virtual key. Empty for a
  // gamepad's key and for codes that no key has.
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
  // Of a mouse's key or a wheel's; empty for other devices.
  const QString& MouseText(const QString& device, int scancode) const;

  QString keyboard_names_[kScancodeCount];  // by scan code; `Scan <code>` where the table has none
  int virtual_keys_[kScancodeCount] = {};   // by scan code; 0 where the table has none
  QHash<int, QString> names_by_virtual_key_;
  QHash<int, QString> mouse_names_;
  QHash<QString, ConfigKey> keys_;
  QStringList names_;
  const QString no_name_;
};

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_KEYS_KEY_INDEX_H_
