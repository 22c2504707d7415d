// The keymap-wide settings of keys, mouse and gamepad.
#ifndef KEYMAP_KEYMAP_SETTINGS_H_
#define KEYMAP_KEYMAP_SETTINGS_H_

#include <QString>

#include "keymap/keymap_export.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD KeymapSettings {
  // Which unmapped mouse input passes through: none, or "Mouse_OtherButton_Transparent", "Mouse_AllButton_Transparent".
  QString mouse_mode = QStringLiteral("Mouse_No_Transparent");
  bool escape_to_guest = false;       // Escape is the guest's key 1; false: it may act as back
  bool wheel_transparent = false;     // the wheel passes through
  int relative_interval_ms = 0;       // minimum time between relative moves of the guest's pointer
  double relative_factor = 1.0;       // factor on relative counts
  bool keyboard_transparent = false;  // unmapped keys pass through
  bool joystick_transparent = false;  // unmapped gamepad input passes through; read from joystick keymaps
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_KEYMAP_SETTINGS_H_
