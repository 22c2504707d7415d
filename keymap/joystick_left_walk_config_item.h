// Walking by a gamepad's left stick: type "LeftStickWalk".
#ifndef KEYMAP_JOYSTICK_LEFT_WALK_CONFIG_ITEM_H_
#define KEYMAP_JOYSTICK_LEFT_WALK_CONFIG_ITEM_H_

#include "keymap/config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD JoystickLeftWalkConfigItem : ConfigItem {
  double walk_radius = 0;     // fraction of the display width
  double start_jump = 0;      // of the first jump; truncate(value * 8) eighths of the radius
  int press_hold_ms = 0;      // after the press, with smooth_start
  bool smooth_start = false;  // a walk begins with a rest on the centre and a jump
  int stop_delay_ms = 0;      // from the stick's rest to the lift, with delayed_stop
  int stop_settle_ms = 0;     // pause after that lift
  bool delayed_stop = false;  // the finger goes up stop_delay_ms after the stick came to rest
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_JOYSTICK_LEFT_WALK_CONFIG_ITEM_H_
