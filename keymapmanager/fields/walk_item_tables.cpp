// Items that walk: by four keys, by the right mouse button, by a gamepad's stick.
#include "keymap/joystick_left_walk_config_item.h"
#include "keymap/mouse_right_walk_config_item.h"
#include "keymap/swipehold_config_item.h"
#include "keymapmanager/fields/item_fields.h"
#include "keymapmanager/fields/record_tables.h"
#include "keymapmanager/fields/stick_field.h"

namespace tavikeymapmanager {

namespace {

namespace kw = keywords;

constexpr Range kCurveNumber{-1000, 1000};

QVector<Field> FirstSlideFields() {
  using R = SwipeholdConfigItem;
  return {
      Word("press_mode", &R::press_mode, {kw::kPressClick, kw::kPressMove, kw::kPressTransparent},
           "`Move`: the finger slides from the centre to the target; `Click`: it jumps; `Transparent`: no finger, the "
           "guest sees the keys"),
      Word("variable_mode", &R::variable_mode, {kw::kVariableConstant, kw::kVariableSmall, kw::kVariableBig},
           "the steps of the first slide: equal; equal, with a little noise across; or slow, then one large step"),
      Integer("first_press_delay_ms", &R::first_press_delay_ms, kTimeMs,
              "from the touch of the centre to the first step"),
      Integer("first_press_steps", &R::first_press_steps, kStepCount, "steps of the first slide"),
      Integer("first_press_step_ms", &R::first_press_step_ms, kTimeMs, "time between two of them"),
      Integer("spare_ms", &R::spare_ms, kTimeMs, "kept for other programs; without effect"),
      Integer("spare_steps", &R::spare_steps, kStepCount0, "kept for other programs; without effect"),
      Integer("press_gap_ms", &R::press_gap_ms, kTimeMs, "least time from the end of a walk to the next touch"),
      Flag("no_center_press", &R::no_center_press, "a walk begins with the first step, not with a touch of the centre"),
  };
}

QVector<Field> HoldFields() {
  using R = SwipeholdConfigItem;
  return {
      Word("subsequent_mode", &R::subsequent_mode, {kw::kSubsequentClick, kw::kSubsequentMove},
           "what a change of keys does: `Move` slides, `Click` jumps"),
      Integer("subsequent_steps", &R::subsequent_steps, kStepCount, "steps of that slide"),
      Integer("subsequent_step_ms", &R::subsequent_step_ms, kTimeMs, "time between two of them"),
      Number("radius", &R::radius, kRadius, "of the stick, fraction of the display's width"),
      Integer("hold_center_ms", &R::hold_center_ms, kTimeMs, "rest on the centre after the last key; 0: none"),
      Word("opposite_keys_mode", &R::opposite_keys_mode, {kw::kOppositeJustUseLast, kw::kOppositeUseBoth},
           "two opposite keys: the last one counts, or the finger stays between them"),
  };
}

QVector<Field> WiggleFields() {
  using R = SwipeholdConfigItem;
  const QStringList curves{kw::kCurveDefault, kw::kCurveSin, kw::kCurveCos, kw::kCurveX, kw::kCurveX2};
  return {
      Flag("compensate", &R::compensate, "a small wiggle at the target, for games that watch for motion"),
      Number("compensate_amplitude", &R::compensate_amplitude, kFraction, "of the wiggle, fraction of the radius"),
      Integer("compensate_rounds", &R::compensate_rounds, kStepCount0, "rounds of the wiggle"),
      Integer("compensate_steps", &R::compensate_steps, kStepCount, "steps of a round"),
      Integer("compensate_interval_ms", &R::compensate_interval_ms, kTimeMs, "time between two of them"),
      Word("curve_x", &R::curve_x, curves,
           "shape of the wiggle along the stick; `Default` in either: it goes in and out along the radius"),
      Number("factor_x", &R::factor_x, kCurveNumber, "factor of that curve's argument"),
      Number("offset_x", &R::offset_x, kCurveNumber, "offset of that curve's argument"),
      Word("curve_y", &R::curve_y, curves, "shape of the wiggle across the stick"),
      Number("factor_y", &R::factor_y, kCurveNumber, "factor of that curve's argument"),
      Number("offset_y", &R::offset_y, kCurveNumber, "offset of that curve's argument"),
  };
}

RecordTable SwipeholdTable() {
  RecordTable table = ItemTable<SwipeholdConfigItem>(kw::kTypeSwipehold, "Walking: four keys hold a finger on a stick.",
                                                     SwipeholdFields());
  table.fields.prepend(PointField("the centre of the stick"));
  table.at_least_one = {DirectionKeyNames()};
  return table;
}

RecordTable RightWalkTable() {
  using R = MouseRightWalkConfigItem;
  return ItemTable<R>(
      kw::kTypeRightWalk, "Walking towards the pointer while a mouse button is held, `Mouse Right` as a rule.",
      {ChordField(), PointField("the centre of the guest's stick"),
       Required(Number("walk_radius", &R::walk_radius, kRadius, "of the stick, fraction of the display's width")),
       Pair("character_point", &R::character_rel_x, &R::character_rel_y, kFraction, "the character on screen"),
       Number("continue_factor", &R::continue_factor, {0, 100},
              "a short click walks on for its distance in radii times this, in seconds"),
       Integer("press_hold_ms", &R::press_hold_ms, kTimeMs, "rest on the centre before the slide"),
       Integer("swipe_steps", &R::swipe_steps, kStepCount, "steps of the slide to the target"),
       Integer("swipe_step_ms", &R::swipe_step_ms, kTimeMs, "time between two of them")});
}

RecordTable LeftStickWalkTable() {
  using R = JoystickLeftWalkConfigItem;
  return StickItemTable<R>(
      kw::kTypeLeftStickWalk, "Walking by a gamepad's left stick.", kw::kLeftStick,
      {PointField("the centre of the guest's stick"),
       Required(Number("walk_radius", &R::walk_radius, kRadius, "of the stick, fraction of the display's width")),
       Flag("smooth_start", &R::smooth_start, "a walk begins with a rest on the centre and a jump"),
       Number("start_jump", &R::start_jump, kFraction,
              "length of that jump, fraction of the radius, cut down to whole eighths"),
       Integer("press_hold_ms", &R::press_hold_ms, kTimeMs, "length of that rest"),
       Flag("delayed_stop", &R::delayed_stop, "the finger goes up some time after the stick has come to rest"),
       Integer("stop_delay_ms", &R::stop_delay_ms, kTimeMs, "that time"),
       Integer("stop_settle_ms", &R::stop_settle_ms, kTimeMs, "pause after the finger has gone up then")});
}

}  // namespace

QVector<Field> SwipeholdFields() {
  return DirectionKeyFields<SwipeholdConfigItem>() + FirstSlideFields() + HoldFields() + WiggleFields();
}

QVector<RecordTable> WalkItemTables() { return {SwipeholdTable(), RightWalkTable(), LeftStickWalkTable()}; }

const RecordTable& InnerSwipeholdTable() {
  static const RecordTable table = [] {
    RecordTable inner = SwipeholdTable();
    inner.doc = QStringLiteral("The walk that aims a spell.");
    inner.fields.first().is_required = false;
    inner.at_least_one.clear();
    return inner;
  }();
  return table;
}

}  // namespace tavikeymapmanager
