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
           "the moment of the cast: the button is held without aim; the second press of the key; the press; or the "
           "release. Not written: as `Spell_Trigger_On_Release_Key`"),
      Word(
          "touch_location", &R::touch_location,
          {kw::kLocationMouse, kw::kLocationMousePosition, kw::kLocationSwipehold, kw::kLocationInnerSwipehold},
          "what aims: the mouse, followed while the key is held; the mouse where it was at the press; the walk; or the "
          "walk of `inner_swipehold`. Not written: the mouse at the press"),
      Word("mode", &R::mode, {kw::kModeCurve, kw::kModeIntelligent},
           "`Spell_mode_curve`: the finger goes to the pointer itself; `Spell_mode_intelligent`: the circle around the "
           "character is mapped to that on the button. Not written: as `Spell_mode_intelligent`"),
      Flag("mouse_click_casts", &R::mouse_click_casts,
           "with `Spell_Trigger_On_Next_Key`, the left mouse button casts as well"),
      Flag("stop_walk_after_cast", &R::stop_walk_after_cast, "a cast ends the walk by mouse or stick"),
  };
}

Field ViewMatrixField() {
  Field field = MakeField(FieldKind::kMatrix, "view_matrix", &SpellConfigItem::view_matrix,
                          "the game's view matrix, 16 numbers, row by row; without it: no projection");
  field.range = kAnyNumber;
  return field;
}

QVector<Field> AimFields() {
  using R = SpellConfigItem;
  return {
      Pair("circle_point", &R::circle_rel_x, &R::circle_rel_y, kFraction, "centre of the mouse circle: the character"),
      Number("circle_size", &R::circle_size, kCircleSize,
             "radius of the mouse circle, fraction of the display's height"),
      Number("circle_percent", &R::circle_percent, kPercent, "per cent of `circle_size` that count"),
      Number(
          "swipe_radius", &R::swipe_radius, kFraction,
          "radius of the circle on the button, fraction of the display's height (of its width for captured mouse and "
          "stick)"),
      Pair("character_point", &R::character_rel_x, &R::character_rel_y, kFraction,
           "the character on screen, for the ground projection; [0, 0]: no projection"),
      Number("ground_reference", &R::ground_reference, kAnyNumber, "any number but 0 switches the projection on"),
      Number("ground_scale", &R::ground_scale, kAnyNumber, "factor on the projected distance; 0: no projection"),
      ViewMatrixField(),
  };
}

QVector<Field> SwipeFields() {
  using R = SpellConfigItem;
  return {
      Integer("press_hold_ms", &R::press_hold_ms, kTimeMs, "rest on the button before the slide to the target"),
      Integer("swipe_steps", &R::swipe_steps, kStepCount0, "steps of that slide; 0 or 1: a jump"),
      Integer("swipe_step_ms", &R::swipe_step_ms, kTimeMs, "time between two of them"),
      Flag("offset_enabled", &R::offset_enabled,
           "the first real movement of a captured mouse moves the finger by a jump"),
      Number("offset_length", &R::offset_length, kFraction, "length of that jump, fraction of the display's height"),
      Number("offset_threshold", &R::offset_threshold, kFraction,
             "travel that counts as real, fraction of the display's height"),
      Flag("curve_enabled", &R::curve_enabled,
           "with `Spell_mode_curve`, a slow start of the slide in place of the rest"),
      Integer("curve_steps", &R::curve_steps, kStepCount0, "steps of that start"),
      Integer("curve_step_ms", &R::curve_step_ms, kTimeMs, "time between two of them"),
      Number("curve_step_length", &R::curve_step_length, kFraction, "length of one, fraction of the display's height"),
  };
}

Field InnerSwipeholdField() {
  return MakeField(FieldKind::kWalk, "inner_swipehold", &SpellConfigItem::inner_swipehold,
                   "the walk that aims, with the fields of `Swipehold`. Its point is the spell's and its keys are "
                   "those of the keymap's first walk where it writes none");
}

RecordTable SpellTable() {
  using R = SpellConfigItem;
  return ItemTable<R>(
      kw::kTypeSpell, "A skill button whose cast is aimed.",
      QVector<Field>{ChordField(), PointField("the skill button"),
                     Pair("alt_point", &R::alt_rel_x, &R::alt_rel_y, kFraction,
                          "where the finger touches in place of `point`; [0, 0]: none")} +
          CastFields() + AimFields() + SwipeFields() +
          QVector<Field>{InnerSwipeholdField(), Flag("inner_swipehold_exclusive", &R::inner_swipehold_exclusive,
                                                     "the ordinary walk pauses while the inner one aims")});
}

RecordTable SpellCancelTable() {
  using R = SpellCancelConfigItem;
  return ItemTable<R>(
      kw::kTypeSpellCancel, "The key that gives up a cast in aim, or a shot whose button is held.",
      {ChordField(), PointField("the point to which the finger goes"),
       Flag("cancel_immediately", &R::cancel_immediately, "switches the key on; false: it answers to nothing"),
       Integer("cancel_delay_ms", &R::cancel_delay_ms, {-1, 60000},
               "rest on the point before the finger goes up; 0: none; -1: it stays down")});
}

}  // namespace

QVector<RecordTable> SpellItemTables() { return {SpellTable(), SpellCancelTable()}; }

}  // namespace tavikeymapmanager
