#include "keymapmanager/keys/key_index.h"

#include "keymapmanager/keys/pad_names.h"
#include "qt/lasting_text.h"

namespace tavikeymapmanager {

KeyIndex::KeyIndex() {
  for (const KeyboardKeyRow& row : KeyboardKeys()) AddKeyboardKey(row);
  for (int scancode = 0; scancode < kScancodeCount; ++scancode) {
    QString& name = keyboard_names_[scancode];
    if (name.isEmpty()) name = qt::Lasting(QStringLiteral("Scan %1").arg(scancode));
  }
  for (const MouseKeyRow& row : MouseKeys()) AddMouseKey(row.code, qt::Lasting(QString::fromLatin1(row.name)));
  for (int number = 1; number <= kExtraMouseButtonCount; ++number) {
    AddMouseKey(ExtraMouseButton(number), QStringLiteral("Mouse Side %1").arg(number));
  }
  for (const PadKeyRow& row : PadKeys()) names_ += kPadPrefix + row.name;
}

void KeyIndex::AddKeyboardKey(const KeyboardKeyRow& row) {
  const QString name = qt::Lasting(QString::fromLatin1(row.name));
  keyboard_names_[row.scancode] = name;
  virtual_keys_[row.scancode] = row.virtual_key;
  // Two keys share a virtual key (Enter): the first is used.
  if (!names_by_virtual_key_.contains(row.virtual_key)) names_by_virtual_key_.insert(row.virtual_key, name);
  names_ += name;
  keys_.insert(name, KeyboardKey(row.scancode));
  if (row.alias != nullptr) keys_.insert(QString::fromLatin1(row.alias), KeyboardKey(row.scancode));
}

void KeyIndex::AddMouseKey(int code, const QString& name) {
  ConfigKey key;
  key.device = keywords::kDeviceMouse;
  key.text = name;
  key.virtual_key = code;
  key.scancode = code;
  mouse_names_.insert(code, name);
  names_ += name;
  keys_.insert(name, key);
}

std::optional<ConfigKey> KeyIndex::Find(const QString& name) const {
  const auto found = keys_.constFind(name);
  if (found == keys_.constEnd()) return {};
  return *found;
}

ConfigKey KeyIndex::KeyboardKey(int scancode) const {
  ConfigKey key;
  key.device = keywords::kDeviceKeyboard;
  key.text = keyboard_names_[scancode];
  key.virtual_key = virtual_keys_[scancode];
  key.scancode = scancode;
  return key;
}

const QString& KeyIndex::MouseText(const QString& device, int scancode) const {
  if (!IsSameText(device, keywords::kDeviceMouse) && !IsSameText(device, keywords::kDeviceWheel)) return no_name_;
  const auto found = mouse_names_.constFind(scancode);
  return found == mouse_names_.constEnd() ? no_name_ : *found;
}

const QString& KeyIndex::TextOfVirtualKey(int virtual_key) const {
  const auto found = names_by_virtual_key_.constFind(virtual_key);
  return found == names_by_virtual_key_.constEnd() ? no_name_ : *found;
}

}  // namespace tavikeymapmanager
