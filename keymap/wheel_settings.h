// The keymap-wide settings of wheel, pinch and virtual gamepad.
#ifndef KEYMAP_WHEEL_SETTINGS_H_
#define KEYMAP_WHEEL_SETTINGS_H_

#include "keymap/keymap_export.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD WheelSettings {
  double wheel_delta = 1.0;         // factor on the amounts of the guest's wheel
  int wheel_use_delta = 0;          // 1: the guest's wheel turns by amounts, not by notches
  int simulate_mode = 0;            // 1: a gamepad's triggers are buttons; 0: axes
  bool virtual_joystick = false;    // the keymap has virtual sticks or buttons
  int zoom_first_interval_ms = 16;  // of the wheel pinch: from the touch to the first step
  int zoom_notch_ticks = 8;         // steps per notch
  int zoom_tick_ms = 14;            // between two steps
  int zoom_spread = 10;             // initial distance of the contacts from the pointer, in units of zoom_step
  int zoom_release_ms = 80;         // time from the last step to the lift
  double scroll_step = 0.01;        // step of an unmapped wheel's swipe, fraction of the display's height
  double zoom_step = 0.00325;       // step of the pinch, fraction of the display's longer side
  double zoom_angle = 45.0;         // direction of the contacts, in degrees
  bool zoom_swap_fingers = false;   // swap the two contacts
  bool wheel_zoom = false;          // an unmapped wheel pinches
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_WHEEL_SETTINGS_H_
