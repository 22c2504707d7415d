// A skill button whose cast is aimed: type "Spell".
#ifndef KEYMAP_SPELL_CONFIG_ITEM_H_
#define KEYMAP_SPELL_CONFIG_ITEM_H_

#include "keymap/composable_config_item.h"
#include "keymap/swipehold_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD SpellConfigItem : ComposableConfigItem {
  // The walk that aims the cast, for "Spell_touch_location_inner_swipehold_dependence". The caller owns the result.
  virtual SwipeholdConfigItem* InnerSwipeholdItem() const { return new SwipeholdConfigItem(inner_swipehold); }

  double circle_rel_x = 0.5;               // centre of the mouse circle: the character
  double circle_rel_y = 0.5;               // see circle_rel_x
  double circle_size = 0;                  // radius of the mouse circle, fraction of the display height
  double circle_percent = 100;             // per cent of circle_size that count
  double alt_rel_x = 0;                    // with alt_rel_y, unless both are 0: the press point in place of the item's
  double alt_rel_y = 0;                    // see alt_rel_x
  int press_hold_ms = 0;                   // pause after the press of a swipe
  int swipe_steps = 1;                     // of the way to the target
  int swipe_step_ms = 0;                   // between two of them
  bool offset_enabled = false;             // as in FireConfigItem
  double offset_length = 0;                // as in FireConfigItem
  double offset_threshold = 0;             // as in FireConfigItem
  bool curve_enabled = false;              // a prelude of the swipe, in "Spell_mode_curve"
  int curve_steps = 0;                     // of that prelude
  int curve_step_ms = 0;                   // between two of them
  double curve_step_length = 0;            // fraction of the display height
  double swipe_radius = 0;                 // of the circle on the button, fraction of the display
  bool stop_walk_after_cast = false;       // a cast ends the walk by mouse or stick
  bool inner_swipehold_exclusive = false;  // the ordinary walk pauses while the inner one aims
  bool mouse_click_casts = false;          // the left button casts a "Spell_Trigger_On_Next_Key" spell
  QString trigger;                         // "Spell_Trigger_..."
  QString touch_location;                  // "Spell_touch_location_..."
  QString mode;                            // "Spell_mode_..."
  double character_rel_x = 0;              // the character on screen, for the ground projection
  double character_rel_y = 0;              // see character_rel_x
  double ground_reference = 0;             // 0 switches the projection off
  double ground_scale = 0;                 // of the projected distance
  QString view_matrix;                     // 16 numbers joined by commas

  // What InnerSwipeholdItem hands out copies of. "Transparent" means that there is none.
  SwipeholdConfigItem inner_swipehold = MakeNoInnerSwipehold();

 private:
  static SwipeholdConfigItem MakeNoInnerSwipehold() {
    SwipeholdConfigItem none;
    none.press_mode = keywords::kPressTransparent;
    return none;
  }
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_SPELL_CONFIG_ITEM_H_
