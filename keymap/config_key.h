// A key of a keyboard, mouse, gamepad or wheel, as configured or as pressed.
#ifndef KEYMAP_CONFIG_KEY_H_
#define KEYMAP_CONFIG_KEY_H_

#include <cstddef>
#include <cstring>

#include <QString>

#include "keymap/keymap_export.h"
#include "keymap/keywords.h"

namespace tavikeymapmanager {

// The value of an unknown code.
constexpr int kUnsetCode = 0x7FFFFFFF;

struct TAVI_KEYMAP_RECORD ConfigKey {
  QString device;                // "keyboard", "mouse", "joystick" or "wheel"
  QString text;                  // the key's name; identifies the key on a joystick
  int virtual_key = kUnsetCode;  // platform virtual key code
  int scancode = kUnsetCode;     // native scan code, button value or wheel direction; identifies the key elsewhere
  qint64 user_data = 0;          // for the loader's own use: copied with the key, never read by the input layer
  int user_flags = 0;            // the same
};

// Like operator==, without its call into Qt. Most texts here share their data or differ in length.
inline bool IsSameText(const QString& a, const QString& b) {
  if (a.isSharedWith(b)) return true;
  if (a.size() != b.size()) return false;
  const QChar* const of_a = a.constData();
  const QChar* const of_b = b.constData();
  constexpr int kUsual = 8;  // of "keyboard" and "joystick": memcmp of a constant length is inlined
  if (a.size() == kUsual) return std::memcmp(of_a, of_b, kUsual * sizeof(QChar)) == 0;
  return std::memcmp(of_a, of_b, static_cast<std::size_t>(a.size()) * sizeof(QChar)) == 0;
}

// Whether the key is one of a gamepad, whose keys are identified by name.
inline bool IsJoystickKey(const ConfigKey& key) {
  constexpr QChar kInitial = QLatin1Char('j');  // no other device starts with it
  return !key.device.isEmpty() && *key.device.constData() == kInitial &&
         IsSameText(key.device, keywords::kDeviceJoystick);
}

// Key identity: keys of a joystick are compared by name, those of other devices by scan code.
inline bool IsSameKey(const ConfigKey& a, const ConfigKey& b) {
  if (!IsSameText(a.device, b.device)) return false;
  return IsJoystickKey(a) ? IsSameText(a.text, b.text) : a.scancode == b.scancode;
}

// Whether the record identifies a key.
inline bool IsKeySet(const ConfigKey& key) {
  if (key.device.isEmpty()) return false;
  if (IsJoystickKey(key)) return !key.text.isEmpty();
  return key.virtual_key != kUnsetCode && key.scancode != kUnsetCode;
}

}  // namespace tavikeymapmanager

#endif  // KEYMAP_CONFIG_KEY_H_
