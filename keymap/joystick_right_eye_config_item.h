// Type "RightStickEye": a gamepad's right stick turns the view.
#ifndef KEYMAP_JOYSTICK_RIGHT_EYE_CONFIG_ITEM_H_
#define KEYMAP_JOYSTICK_RIGHT_EYE_CONFIG_ITEM_H_

#include <QSizeF>

#include "keymap/config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD JoystickRightEyeConfigItem : ConfigItem {
  int sensitivity = 100;    // per cent
  QSizeF range_size{0, 0};  // as in StaringConfigItem
  QString range_mode;       // as in StaringConfigItem
  bool auto_reset = true;   // as in StaringConfigItem
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_JOYSTICK_RIGHT_EYE_CONFIG_ITEM_H_
