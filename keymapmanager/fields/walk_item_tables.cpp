// Items that walk: with four keys, with the right mouse button, with a gamepad's stick.
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
           "guest gets the keys"),
      Word("variable_mode", &R::variable_mode, {kw::kVariableConstant, kw::kVariableSmall, kw::kVariableBig},
           "the steps of the first slide: equal; equal, with slight sideways noise; or slow, then one large step"),
      Integer("first_press_delay_ms", &R::first_press_delay_ms, kTimeMs,
              "time from the touch on the centre to the first step"),
      Integer("first_press_steps", &R::first_press_steps, kStepCount, "steps of the first slide"),
      Integer("first_press_step_ms", &R::first_press_step_ms, kTimeMs, "time between two steps of the first slide"),
      Integer("spare_ms", &R::spare_ms, kTimeMs, "has no effect; kept for other programs"),
      Integer("spare_steps", &R::spare_steps, kStepCount0, "has no effect; kept for other programs"),
      Integer("press_gap_ms", &R::press_gap_ms, kTimeMs, "minimum time from the end of a walk to the next touch"),
      Flag("no_center_press", &R::no_center_press, "start a walk with the first step instead of a touch on the centre"),
  };
}

QVector<Field> HoldFields() {
  using R = SwipeholdConfigItem;
  return {
      Word("subsequent_mode", &R::subsequent_mode, {kw::kSubsequentClick, kw::kSubsequentMove},
           "what the finger does when the keys change: `Move` slides, `Click` jumps"),
      Integer("subsequent_steps", &R::subsequent_steps, kStepCount, "steps of that slide"),
      Integer("subsequent_step_ms", &R::subsequent_step_ms, kTimeMs, "time between two steps of that slide"),
      Number("radius", &R::radius, kRadius, "radius of the stick, fraction of the display's width"),
      Integer("hold_center_ms", &R::hold_center_ms, kTimeMs,
              "time on the centre after the last key is released; 0: none"),
      Word("opposite_keys_mode", &R::opposite_keys_mode, {kw::kOppositeJustUseLast, kw::kOppositeUseBoth},
           "two opposite keys: only the last one counts, or the finger stays between them"),
  };
}

QVector<Field> WiggleFields() {
  using R = SwipeholdConfigItem;
  const QStringList curves{kw::kCurveDefault, kw::kCurveSin, kw::kCurveCos, kw::kCurveX, kw::kCurveX2};
  return {
      Flag("compensate", &R::compensate, "a small wiggle at the target, for games that watch for motion"),
      Number("compensate_amplitude", &R::compensate_amplitude, kFraction,
             "amplitude of the wiggle, fraction of the radius"),
      Integer("compensate_rounds", &R::compensate_rounds, kStepCount0, "rounds of the wiggle"),
      Integer("compensate_steps", &R::compensate_steps, kStepCount, "steps per round"),
      Integer("compensate_interval_ms", &R::compensate_interval_ms, kTimeMs, "time between two steps of the wiggle"),
      Word("curve_x", &R::curve_x, curves,
           "shape of the wiggle along the stick; if `curve_x` or `curve_y` is `Default`, it moves in and out along the "
           "radius"),
      Number("factor_x", &R::factor_x, kCurveNumber, "factor on the argument of `curve_x`"),
      Number("offset_x", &R::offset_x, kCurveNumber, "offset added to the argument of `curve_x`"),
      Word("curve_y", &R::curve_y, curves, "shape of the wiggle across the stick"),
      Number("factor_y", &R::factor_y, kCurveNumber, "factor on the argument of `curve_y`"),
      Number("offset_y", &R::offset_y, kCurveNumber, "offset added to the argument of `curve_y`"),
  };
}

RecordTable SwipeholdTable() {
  RecordTable table = ItemTable<SwipeholdConfigItem>(
      kw::kTypeSwipehold, "Walks with four keys, which hold a finger on a stick.", SwipeholdFields());
  table.fields.prepend(PointField("the centre of the stick"));
  table.at_least_one = {DirectionKeyNames()};
  return table;
}

RecordTable RightWalkTable() {
  using R = MouseRightWalkConfigItem;
  return ItemTable<R>(kw::kTypeRightWalk,
                      "Walks towards the pointer while a mouse button is held, usually `Mouse Right`.",
                      {ChordField(), PointField("the centre of the guest's stick"),
                       Required(Number("walk_radius", &R::walk_radius, kRadius,
                                       "radius of the stick, fraction of the display's width")),
                       Pair("character_point", &R::character_rel_x, &R::character_rel_y, kFraction,
                            "position of the character on screen"),
                       Number("continue_factor", &R::continue_factor, {0, 100},
                              "a short click walks on for this many seconds per radius of distance"),
                       Integer("press_hold_ms", &R::press_hold_ms, kTimeMs, "time on the centre before the slide"),
                       Integer("swipe_steps", &R::swipe_steps, kStepCount, "steps of the slide to the target"),
                       Integer("swipe_step_ms", &R::swipe_step_ms, kTimeMs, "time between two steps of the slide")});
}

RecordTable LeftStickWalkTable() {
  using R = JoystickLeftWalkConfigItem;
  return StickItemTable<R>(
      kw::kTypeLeftStickWalk, "Walks with a gamepad's left stick.", kw::kLeftStick,
      {PointField("the centre of the guest's stick"),
       Required(
           Number("walk_radius", &R::walk_radius, kRadius, "radius of the stick, fraction of the display's width")),
       Flag("smooth_start", &R::smooth_start, "start a walk with a wait on the centre and a jump"),
       Number("start_jump", &R::start_jump, kFraction,
              "length of that jump, fraction of the radius, rounded down to eighths"),
       Integer("press_hold_ms", &R::press_hold_ms, kTimeMs, "duration of that wait"),
       Flag("delayed_stop", &R::delayed_stop, "lift the finger some time after the stick has come to rest"),
       Integer("stop_delay_ms", &R::stop_delay_ms, kTimeMs,
               "time from the stick's rest to the lift, with `delayed_stop`"),
       Integer("stop_settle_ms", &R::stop_settle_ms, kTimeMs, "time to wait after that lift")});
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
