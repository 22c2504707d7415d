// Types "Swipehold", "VirtualLeftStick", "VirtualRightStick": four keys hold a contact on a stick.
#ifndef KEYMAP_SWIPEHOLD_CONFIG_ITEM_H_
#define KEYMAP_SWIPEHOLD_CONFIG_ITEM_H_

#include "keymap/config_item.h"
#include "keymap/four_key_match.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD SwipeholdConfigItem : ConfigItem {
  bool IsKeyMatch(const ConfigKey& pressed) const override { return IsDirectionKeyMatch(*this, pressed); }

  ConfigKey key_up;     // up; unset, here and below: this direction has no key
  ConfigKey key_right;  // right
  ConfigKey key_down;   // down
  ConfigKey key_left;   // left
  QString press_mode =
      QStringLiteral("Move");  // "Move" slides to the target, "Click" jumps, "Transparent" sends the keys themselves
  QString variable_mode =
      QStringLiteral("Constant");  // steps of the first slide: "Constant", "Small_Variable", "Big_Variable"
  int first_press_delay_ms = 32;   // from the press on the centre to the first step
  int first_press_steps = 6;       // of the slide to the target
  int first_press_step_ms = 16;    // between two steps
  int spare_ms = 100;              // has no effect; kept for other programs
  int spare_steps = 8;             // the same
  int press_gap_ms = 0;            // minimum time from a release to the next press
  bool no_center_press = false;    // no press on the centre at the start of a walk
  QString subsequent_mode = QStringLiteral("Move");  // when the keys change: "Move" slides, any other value jumps
  int subsequent_steps = 4;                          // of that slide
  int subsequent_step_ms = 8;                        // between two steps
  double radius = 0.1;                               // of the stick, fraction of the display's width
  int hold_center_ms = 0;                            // time on the centre after the last key is released
  QString opposite_keys_mode = QStringLiteral("Use_Both");  // for two opposite keys; or "Just_Use_Last"
  QString curve_x = QStringLiteral("Default");  // of the wiggle along the stick: "Default", "Sin", "Cos", "X", "X2"
  double factor_x = 1.0;                        // factor on that curve's argument
  double offset_x = 0;                          // added to that argument
  QString curve_y = QStringLiteral("Default");  // of the wiggle across the stick
  double factor_y = 1.0;                        // factor on that curve's argument
  double offset_y = 0;                          // added to that argument
  bool compensate = false;                      // a wiggle at the target
  double compensate_amplitude = 0.01;           // fraction of the radius
  int compensate_rounds = 3;                    // of the wiggle
  int compensate_steps = 3;                     // per round
  int compensate_interval_ms = 8;               // between two steps
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_SWIPEHOLD_CONFIG_ITEM_H_
