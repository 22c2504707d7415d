// Four keys that hold a finger on a stick: types "Swipehold", "VirtualLeftStick", "VirtualRightStick".
#ifndef KEYMAP_SWIPEHOLD_CONFIG_ITEM_H_
#define KEYMAP_SWIPEHOLD_CONFIG_ITEM_H_

#include "keymap/config_item.h"
#include "keymap/four_key_match.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD SwipeholdConfigItem : ConfigItem {
  bool IsKeyMatch(const ConfigKey& pressed) const override { return IsDirectionKeyMatch(*this, pressed); }

  ConfigKey key_up;     // of the direction up; unset, here and below: that direction has no key
  ConfigKey key_right;  // of the direction right
  ConfigKey key_down;   // of the direction down
  ConfigKey key_left;   // of the direction left
  QString press_mode =
      QStringLiteral("Move");  // "Move" slides to the target, "Click" jumps, "Transparent" leaves the keys alone
  QString variable_mode =
      QStringLiteral("Constant");  // steps of the first slide: "Constant", "Small_Variable", "Big_Variable"
  int first_press_delay_ms = 32;   // from the press on the centre to the first step
  int first_press_steps = 6;       // of the slide to the target
  int first_press_step_ms = 16;    // between two of them
  int spare_ms = 100;              // carried along, without effect
  int spare_steps = 8;             // the same
  int press_gap_ms = 0;            // least time from a release to the next press
  bool no_center_press = false;    // no press on the centre at the start of a walk
  QString subsequent_mode = QStringLiteral("Move");         // "Move": a change of keys slides; any other jumps
  int subsequent_steps = 4;                                 // of that slide
  int subsequent_step_ms = 8;                               // between two of them
  double radius = 0.1;                                      // of the stick, fraction of the display WIDTH
  int hold_center_ms = 0;                                   // rest on the centre after the last key
  QString opposite_keys_mode = QStringLiteral("Use_Both");  // of two opposite keys; or "Just_Use_Last"
  QString curve_x = QStringLiteral("Default");  // of the wiggle along the stick: "Default", "Sin", "Cos", "X", "X2"
  double factor_x = 1.0;                        // on that curve's argument
  double offset_x = 0;                          // added to it
  QString curve_y = QStringLiteral("Default");  // of the wiggle across the stick
  double factor_y = 1.0;                        // on that curve's argument
  double offset_y = 0;                          // added to it
  bool compensate = false;                      // a wiggle at the target
  double compensate_amplitude = 0.01;           // fraction of the radius
  int compensate_rounds = 3;                    // of the wiggle
  int compensate_steps = 3;                     // of a round
  int compensate_interval_ms = 8;               // between two of them
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_SWIPEHOLD_CONFIG_ITEM_H_
