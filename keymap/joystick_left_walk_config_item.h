// Type "LeftStickWalk": walks with a gamepad's left stick.
#ifndef KEYMAP_JOYSTICK_LEFT_WALK_CONFIG_ITEM_H_
#define KEYMAP_JOYSTICK_LEFT_WALK_CONFIG_ITEM_H_

#include "keymap/config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD JoystickLeftWalkConfigItem : ConfigItem {
  double walk_radius = 0;     // of the stick, fraction of the display's width
  double start_jump = 0;      // of the jump with smooth_start; truncate(value * 8) eighths of the radius
  int press_hold_ms = 0;      // time on the centre, with smooth_start
  bool smooth_start = false;  // start a walk with a wait on the centre and a jump
  int stop_delay_ms = 0;      // from the stick's rest to the lift, with delayed_stop
  int stop_settle_ms = 0;     // time to wait after that lift
  bool delayed_stop = false;  // lift the contact stop_delay_ms after the stick came to rest
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_JOYSTICK_LEFT_WALK_CONFIG_ITEM_H_
