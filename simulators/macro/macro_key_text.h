// How macros call their keys.
#ifndef SIMULATORS_MACRO_MACRO_KEY_TEXT_H_
#define SIMULATORS_MACRO_MACRO_KEY_TEXT_H_

#include <QString>

#include "keymap/config_key.h"

namespace taviinputmanager {

// "keyboard59" for F1, by device and scan code; a joystick's keys go by their own names.
inline QString MacroKeyText(const tavikeymapmanager::ConfigKey& key) {
  if (key.device == tavikeymapmanager::keywords::kDeviceJoystick) return key.text;
  return key.device + QString::number(key.scancode);
}

}  // namespace taviinputmanager

#endif  // SIMULATORS_MACRO_MACRO_KEY_TEXT_H_
