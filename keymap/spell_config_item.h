// Type "Spell": a skill button that is aimed and cast.
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
  double circle_size = 0;                  // radius of the mouse circle, fraction of the display's height
  double circle_percent = 100;             // percentage of circle_size that is used
  double alt_rel_x = 0;                    // with alt_rel_y, unless both are 0: the press point, instead of the item's
  double alt_rel_y = 0;                    // see alt_rel_x
  int press_hold_ms = 0;                   // time on the button before the swipe
  int swipe_steps = 1;                     // of the swipe to the target
  int swipe_step_ms = 0;                   // between two steps
  bool offset_enabled = false;             // as in FireConfigItem
  double offset_length = 0;                // as in FireConfigItem
  double offset_threshold = 0;             // as in FireConfigItem
  bool curve_enabled = false;              // a slow start of the swipe, in "Spell_mode_curve"
  int curve_steps = 0;                     // of that slow start
  int curve_step_ms = 0;                   // between two steps
  double curve_step_length = 0;            // of one of these steps, fraction of the display's height
  double swipe_radius = 0;                 // of the circle around the button, fraction of the display
  bool stop_walk_after_cast = false;       // a cast ends a walk by mouse or by a gamepad's stick
  bool inner_swipehold_exclusive = false;  // the normal walk pauses while the inner one aims
  bool mouse_click_casts = false;          // the left mouse button also casts a "Spell_Trigger_On_Next_Key" spell
  QString trigger;                         // "Spell_Trigger_..."
  QString touch_location;                  // "Spell_touch_location_..."
  QString mode;                            // "Spell_mode_..."
  double character_rel_x = 0;              // the character's position, for the ground projection
  double character_rel_y = 0;              // see character_rel_x
  double ground_reference = 0;             // 0 turns the projection off
  double ground_scale = 0;                 // factor on the projected distance
  QString view_matrix;                     // 16 numbers joined by commas

  // InnerSwipeholdItem returns copies of this. The press_mode "Transparent" means that there is none.
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
