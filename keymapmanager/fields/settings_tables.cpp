// The keymap-wide settings.
#include "keymap/keywords.h"
#include "keymapmanager/fields/record_tables.h"

namespace tavikeymapmanager {

namespace {

namespace kw = keywords;

RecordTable MakeSettingsTable() {
  using R = KeymapSettings;
  RecordTable table;
  table.name = QStringLiteral("settings");
  table.doc = QStringLiteral("The keymap-wide settings of keys, mouse and gamepad.");
  table.fields = {
      Word("mouse_mode", &R::mouse_mode,
           {kw::kMouseNoTransparent, kw::kMouseOtherTransparent, kw::kMouseAllTransparent},
           "which unmapped mouse input reaches the guest as a mouse: none, so that the left button is a finger; all "
           "except the left button; or all"),
      Flag("escape_to_guest", &R::escape_to_guest, "Escape reaches the guest as Escape; false: it may act as back"),
      Flag("wheel_transparent", &R::wheel_transparent, "the wheel reaches the guest as a wheel"),
      Integer("relative_interval_ms", &R::relative_interval_ms, {0, 1000},
              "minimum time between two moves of the guest's pointer by a captured mouse"),
      Number("relative_factor", &R::relative_factor, {0, 100}, "factor on the counts of a captured mouse"),
      Flag("keyboard_transparent", &R::keyboard_transparent, "unmapped keys reach the guest as keys"),
      Flag("joystick_transparent", &R::joystick_transparent,
           "unmapped gamepad input reaches the guest as a gamepad; read from a gamepad's keymap"),
  };
  return table;
}

RecordTable MakeWheelTable() {
  using R = WheelSettings;
  RecordTable table;
  table.name = QStringLiteral("wheel");
  table.doc = QStringLiteral("The keymap-wide settings of wheel, pinch and virtual gamepad.");
  table.fields = {
      Number("wheel_delta", &R::wheel_delta, {-100, 100}, "factor on the guest's wheel, for `wheel_use_delta`"),
      Integer("wheel_use_delta", &R::wheel_use_delta, {0, 1}, "1: the guest's wheel turns by amounts, not by notches"),
      Integer("simulate_mode", &R::simulate_mode, {0, 1}, "1: a gamepad's triggers are buttons; 0: they are axes"),
      Flag("virtual_joystick", &R::virtual_joystick,
           "the keymap has virtual sticks or buttons: the guest gets a virtual gamepad"),
      Integer("zoom_first_interval_ms", &R::zoom_first_interval_ms, {0, 1000},
              "wheel pinch: time from the touch to the first step"),
      Integer("zoom_notch_ticks", &R::zoom_notch_ticks, {1, 1000}, "wheel pinch: steps per notch"),
      Integer("zoom_tick_ms", &R::zoom_tick_ms, {1, 1000}, "wheel pinch: time between two steps"),
      Integer("zoom_spread", &R::zoom_spread, {0, 1000},
              "wheel pinch: initial distance of the fingers from the pointer, in units of `zoom_step`"),
      Integer("zoom_release_ms", &R::zoom_release_ms, {0, 60000}, "wheel pinch: time from the last step to the lift"),
      Number("scroll_step", &R::scroll_step, {0, 1},
             "an unmapped wheel swipes 20 steps of this size per notch; fraction of the display's height"),
      Number("zoom_step", &R::zoom_step, {0, 1}, "wheel pinch: size of a step, fraction of the display's longer side"),
      Number("zoom_angle", &R::zoom_angle, {-360, 360}, "wheel pinch: direction of the fingers, in degrees"),
      Flag("zoom_swap_fingers", &R::zoom_swap_fingers, "wheel pinch: swap the two fingers"),
      Flag("wheel_zoom", &R::wheel_zoom, "an unmapped wheel pinches instead of swiping"),
  };
  return table;
}

}  // namespace

const RecordTable& SettingsTable() {
  static const RecordTable table = MakeSettingsTable();
  return table;
}

const RecordTable& WheelTable() {
  static const RecordTable table = MakeWheelTable();
  return table;
}

}  // namespace tavikeymapmanager
