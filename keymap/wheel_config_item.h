// Type "Wheel": a key that swipes with one contact, like a wheel.
#ifndef KEYMAP_WHEEL_CONFIG_ITEM_H_
#define KEYMAP_WHEEL_CONFIG_ITEM_H_

#include "keymap/composable_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD WheelConfigItem : ComposableConfigItem {
  int direction = 1;    // 1 or 2
  int speed = 1;        // each tick moves speed * 0.01 / 100 of the display
  int duration_ms = 0;  // of one slide
  QString axis;         // "horizontal" or "vertical"
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_WHEEL_CONFIG_ITEM_H_
