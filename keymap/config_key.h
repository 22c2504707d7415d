// A key of a keyboard, mouse, gamepad or wheel, as configured or as pressed.
#ifndef KEYMAP_CONFIG_KEY_H_
#define KEYMAP_CONFIG_KEY_H_

#include <QString>

#include "keymap/keymap_export.h"
#include "keymap/keywords.h"

namespace tavikeymapmanager {

// A code that is not known.
constexpr int kUnsetCode = 0x7FFFFFFF;

struct TAVI_KEYMAP_RECORD ConfigKey {
  QString device;                // "keyboard", "mouse", "joystick" or "wheel"
  QString text;                  // the key's name; identifies the key on a joystick
  int virtual_key = kUnsetCode;  // platform virtual key code
  int scancode = kUnsetCode;     // native scan code, button value or wheel direction; identifies the key elsewhere
  qint64 user_data = 0;          // for a loader's own use: copied along, never read by the input layer
  int user_flags = 0;            // the same
};

// Key identity: a joystick's keys are told apart by name, those of any other device by scan code.
inline bool IsSameKey(const ConfigKey& a, const ConfigKey& b) {
  if (a.device != b.device) return false;
  return a.device == keywords::kDeviceJoystick ? a.text == b.text : a.scancode == b.scancode;
}

// Whether the record names a key at all.
inline bool IsKeySet(const ConfigKey& key) {
  if (key.device.isEmpty()) return false;
  if (key.device == keywords::kDeviceJoystick) return !key.text.isEmpty();
  return key.virtual_key != kUnsetCode && key.scancode != kUnsetCode;
}

}  // namespace tavikeymapmanager

#endif  // KEYMAP_CONFIG_KEY_H_
