// The keymap-wide settings of wheel, pinch and gamepad.
#ifndef KEYMAP_WHEEL_SETTINGS_H_
#define KEYMAP_WHEEL_SETTINGS_H_

#include "keymap/keymap_export.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD WheelSettings {
  double wheel_delta = 1.0;         // factor of a wheel command with delta
  int wheel_use_delta = 0;          // 1: that command is used
  int simulate_mode = 0;            // 1: triggers are buttons
  bool virtual_joystick = false;    // the keymap has virtual sticks or buttons
  int zoom_first_interval_ms = 16;  // of the pinch that a wheel turn makes: from the touch to the first step
  int zoom_notch_ticks = 8;         // steps of one notch
  int zoom_tick_ms = 14;            // between two of them
  int zoom_spread = 10;             // distance of the fingers from the pointer at the start, in units of zoom_step
  int zoom_release_ms = 80;         // rest before the fingers go up
  double scroll_step = 0.01;        // of the scroll swipe, fraction of the display height
  double zoom_step = 0.00325;       // unit of the pinch, fraction of the display's longer side
  double zoom_angle = 45.0;         // degrees
  bool zoom_swap_fingers = false;   // the two fingers change places
  bool wheel_zoom = false;          // a wheel turn that is not mapped pinches
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_WHEEL_SETTINGS_H_
