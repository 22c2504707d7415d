// The key identifiers of macros.
#ifndef SIMULATORS_MACRO_MACRO_KEY_TEXT_H_
#define SIMULATORS_MACRO_MACRO_KEY_TEXT_H_

#include <QString>

#include "keymap/config_key.h"

namespace taviinputmanager {

// "keyboard59" for F1, from device and scan code; gamepad keys use their own names.
inline QString MacroKeyText(const tavikeymapmanager::ConfigKey& key) {
  if (key.device == tavikeymapmanager::keywords::kDeviceJoystick) return key.text;
  return key.device + QString::number(key.scancode);
}

}  // namespace taviinputmanager

#endif  // SIMULATORS_MACRO_MACRO_KEY_TEXT_H_
