// Items that cast.
#include "keymap/spell_cancel_config_item.h"
#include "keymap/spell_config_item.h"
#include "keymapmanager/fields/item_fields.h"
#include "keymapmanager/fields/record_tables.h"

namespace tavikeymapmanager {

namespace {

namespace kw = keywords;

constexpr Range kCircleSize{0, 2};
constexpr Range kPercent{0, 1000};
constexpr Range kAnyNumber{-1e9, 1e9};

QVector<Field> CastFields() {
  using R = SpellConfigItem;
  return {
      Word("trigger", &R::trigger,
           {kw::kTriggerImmediate, kw::kTriggerOnNext, kw::kTriggerOnPress, kw::kTriggerOnRelease},
           "when the spell is cast: the button is held without aiming; at the second press of the key; at the press; "
           "or at the release. If absent, `Spell_Trigger_On_Release_Key`"),
      Word("touch_location", &R::touch_location,
           {kw::kLocationMouse, kw::kLocationMousePosition, kw::kLocationSwipehold, kw::kLocationInnerSwipehold},
           "what aims the cast: the mouse, followed while the key is held; the mouse position at the press; the walk; "
           "or the walk of `inner_swipehold`. If absent, the mouse position at the press"),
      Word("mode", &R::mode, {kw::kModeCurve, kw::kModeIntelligent},
           "`Spell_mode_curve`: the finger moves to the pointer itself; `Spell_mode_intelligent`: the circle around "
           "the character is mapped to the one around the button. If absent, `Spell_mode_intelligent`"),
      Flag("mouse_click_casts", &R::mouse_click_casts,
           "with `Spell_Trigger_On_Next_Key`, the left mouse button also casts"),
      Flag("stop_walk_after_cast", &R::stop_walk_after_cast, "a cast ends a walk by mouse or by a gamepad's stick"),
  };
}

Field ViewMatrixField() {
  Field field = MakeField(FieldKind::kMatrix, "view_matrix", &SpellConfigItem::view_matrix,
                          "the game's view matrix, 16 numbers, row by row; if absent, no projection");
  field.range = kAnyNumber;
  return field;
}

QVector<Field> AimFields() {
  using R = SpellConfigItem;
  return {
      Pair("circle_point", &R::circle_rel_x, &R::circle_rel_y, kFraction, "centre of the mouse circle: the character"),
      Number("circle_size", &R::circle_size, kCircleSize,
             "radius of the mouse circle, fraction of the display's height"),
      Number("circle_percent", &R::circle_percent, kPercent, "percentage of `circle_size` that is used"),
      Number("swipe_radius", &R::swipe_radius, kFraction,
             "radius of the circle around the button, fraction of the display's height (of its width for a captured "
             "mouse and a stick)"),
      Pair("character_point", &R::character_rel_x, &R::character_rel_y, kFraction,
           "position of the character on screen, for the ground projection; [0, 0]: no projection"),
      Number("ground_reference", &R::ground_reference, kAnyNumber, "any number except 0 turns the projection on"),
      Number("ground_scale", &R::ground_scale, kAnyNumber, "factor on the projected distance; 0: no projection"),
      ViewMatrixField(),
  };
}

QVector<Field> SwipeFields() {
  using R = SpellConfigItem;
  return {
      Integer("press_hold_ms", &R::press_hold_ms, kTimeMs, "time on the button before the slide to the target"),
      Integer("swipe_steps", &R::swipe_steps, kStepCount0, "steps of that slide; 0 or 1: the finger jumps"),
      Integer("swipe_step_ms", &R::swipe_step_ms, kTimeMs, "time between two steps of the slide"),
      Flag("offset_enabled", &R::offset_enabled, "the first real movement of a captured mouse makes the finger jump"),
      Number("offset_length", &R::offset_length, kFraction, "length of that jump, fraction of the display's height"),
      Number("offset_threshold", &R::offset_threshold, kFraction,
             "distance that counts as a real movement, fraction of the display's height"),
      Flag("curve_enabled", &R::curve_enabled,
           "with `Spell_mode_curve`, a slow start of the slide instead of `press_hold_ms`"),
      Integer("curve_steps", &R::curve_steps, kStepCount0, "steps of the slow start"),
      Integer("curve_step_ms", &R::curve_step_ms, kTimeMs, "time between two steps of the slow start"),
      Number("curve_step_length", &R::curve_step_length, kFraction,
             "length of one of these steps, fraction of the display's height"),
  };
}

Field InnerSwipeholdField() {
  return MakeField(FieldKind::kWalk, "inner_swipehold", &SpellConfigItem::inner_swipehold,
                   "the walk that aims, with the fields of `Swipehold`. If it has no point, it uses the spell's; if it "
                   "has no keys, those of the keymap's first walk");
}

RecordTable SpellTable() {
  using R = SpellConfigItem;
  return ItemTable<R>(
      kw::kTypeSpell, "A skill button that is aimed and cast.",
      QVector<Field>{ChordField(), PointField("the skill button"),
                     Pair("alt_point", &R::alt_rel_x, &R::alt_rel_y, kFraction,
                          "where the finger touches instead of `point`; [0, 0]: not used")} +
          CastFields() + AimFields() + SwipeFields() +
          QVector<Field>{InnerSwipeholdField(), Flag("inner_swipehold_exclusive", &R::inner_swipehold_exclusive,
                                                     "the normal walk pauses while the inner one aims")});
}

RecordTable SpellCancelTable() {
  using R = SpellCancelConfigItem;
  return ItemTable<R>(
      kw::kTypeSpellCancel, "A key that cancels a cast that is being aimed, or a shot whose button is held.",
      {ChordField(), PointField("where the finger moves to cancel"),
       Flag("cancel_immediately", &R::cancel_immediately, "enables the key; false: the item ignores it"),
       Integer("cancel_delay_ms", &R::cancel_delay_ms, {-1, 60000},
               "time on the point before the lift; 0: none; -1: the finger stays down")});
}

}  // namespace

QVector<RecordTable> SpellItemTables() { return {SpellTable(), SpellCancelTable()}; }

}  // namespace tavikeymapmanager
