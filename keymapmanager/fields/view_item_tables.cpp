// Items that turn the view, and the fire button that takes the mouse from them.
#include "keymap/eye_config_item.h"
#include "keymap/fire_config_item.h"
#include "keymap/gravity_config_item.h"
#include "keymap/joystick_right_eye_config_item.h"
#include "keymap/observe_config_item.h"
#include "keymap/staring_config_item.h"
#include "keymapmanager/fields/item_fields.h"
#include "keymapmanager/fields/record_tables.h"
#include "keymapmanager/fields/stick_field.h"

namespace tavikeymapmanager {

namespace {

namespace kw = keywords;

constexpr Range kStaringPercent{1, 1000};
constexpr Range kKeySpeed{0, 1000};
constexpr Range kViewRange{0, 2};  // may extend beyond the display

const char kRangeModeDoc[] =
    "where the finger can move before it is lifted and put back on the centre: anywhere; within `range_size`, clipped "
    "to the window; within `range_size`; within the inner four fifths of the window; or within the window. If absent, "
    "`Range_Window`";

QStringList RangeModes() {
  return {kw::kRangeInfinite, kw::kRangeUser, kw::kRangeUserAllowOutside, kw::kRangePadded, kw::kRangeWindow};
}

RecordTable StaringTable() {
  using R = StaringConfigItem;
  return ItemTable<R>(
      kw::kTypeStaring, "View control with the captured mouse. The key turns it on and off.",
      {ChordField(), PointField("the centre of the view area"),
       Integer("sensitivity_x", &R::sensitivity_x, kStaringPercent,
               "horizontal, in per cent; 100 is one display pixel per count"),
       Integer("sensitivity_y", &R::sensitivity_y, kStaringPercent,
               "vertical, in per cent; 100 is one display pixel per count"),
       Word("range_mode", &R::range_mode, RangeModes(), kRangeModeDoc),
       Pair("range_size", &R::range_size, kViewRange, "width and height of the user range, fractions of the display"),
       Flag("auto_reset", &R::auto_reset,
            "lift the finger when it leaves the range; false: it stays down, within the user range regardless of "
            "`range_mode`"),
       Integer("auto_reset_period_ms", &R::auto_reset_period_ms, {0, 3600000},
               "with `auto_reset`, lift the finger at this interval; 0: never"),
       Integer("press_interval_ms", &R::press_interval_ms, kTimeMs, "minimum time from a lift to the next touch"),
       Integer("move_interval_ms", &R::move_interval_ms, kTimeMs, "minimum time between two moves")});
}

RecordTable FireTable() {
  using R = FireConfigItem;
  return ItemTable<R>(
      kw::kTypeFire, "The fire button of a shooter, pressed with `Mouse Left` while view control is on.",
      {ChordField(), PointField("the fire button"),
       Pair("alt_point", &R::alt_rel_x, &R::alt_rel_y, kFraction,
            "where the finger touches instead of `point`; [0, 0]: not used"),
       Flag("relative_mode", &R::relative_mode, "the mouse drags the fire finger while the button is held"),
       Word("range_mode", &R::range_mode, {kw::kFireRangeUnlimited, kw::kFireRangeLimited},
            "how far the mouse can drag the finger: anywhere, or within `range_radius`. If absent, "
            "`Fire_range_dependent_swipehold`"),
       Number("range_radius", &R::range_radius, kFraction, "radius of that range, fraction of the display's height"),
       Integer("cancel_swipe_steps", &R::cancel_swipe_steps, kStepCount0,
               "steps of the slide to a `SpellCancel` point; 0: no slide"),
       Flag("offset_enabled", &R::offset_enabled, "the first real movement of the mouse makes the finger jump"),
       Number("offset_length", &R::offset_length, kFraction, "length of that jump, fraction of the display's height"),
       Number("offset_threshold", &R::offset_threshold, kFraction,
              "distance that counts as a real movement, fraction of the display's height"),
       Integer("move_interval_ms", &R::move_interval_ms, kTimeMs, "minimum time between two moves")});
}

RecordTable ObserveTable() {
  using R = ObserveConfigItem;
  return ItemTable<R>(
      kw::kTypeObserve, "Looks around on a second point with the captured mouse while the key is held.",
      {ChordField(), PointField("where the finger touches"),
       Integer("sensitivity_x", &R::sensitivity_x, kSteering,
               "horizontal, in per cent; below 0 it turns the other way"),
       Integer("sensitivity_y", &R::sensitivity_y, kSteering, "vertical, in per cent; below 0 it turns the other way"),
       Number("sensitivity", &R::sensitivity, {-100, 100}, "factor on both sensitivities"),
       Integer("move_interval_ms", &R::move_interval_ms, kTimeMs, "minimum time between two moves")});
}

RecordTable EyeTable() {
  using R = EyeConfigItem;
  RecordTable table = ItemTable<R>(
      kw::kTypeEye, "Turns the view with four keys.",
      QVector<Field>{PointField("where the finger starts")} + DirectionKeyFields<R>() +
          QVector<Field>{Integer("speed", &R::speed, kKeySpeed, "per cent; 100 is 8 display pixels every 8 ms")});
  table.at_least_one = {DirectionKeyNames()};
  return table;
}

RecordTable GravityTable() {
  using R = GravityConfigItem;
  RecordTable table = ItemTable<R>(
      kw::kTypeGravity, "Tilts the guest's gravity sensor with four keys, further the longer they are held.",
      QVector<Field>{OverlayPointField()} + DirectionKeyFields<R>() +
          QVector<Field>{Integer("speed", &R::speed, kKeySpeed, "how fast the tilt grows, in per cent")});
  table.at_least_one = {DirectionKeyNames()};
  return table;
}

RecordTable RightStickEyeTable() {
  using R = JoystickRightEyeConfigItem;
  return StickItemTable<R>(
      kw::kTypeRightStickEye, "Turns the view with a gamepad's right stick.", kw::kRightStick,
      {PointField("the centre of the view area"),
       Integer("sensitivity", &R::sensitivity, kSteering, "per cent; below 0 it turns the other way"),
       Word("range_mode", &R::range_mode, RangeModes(), kRangeModeDoc),
       Pair("range_size", &R::range_size, kViewRange, "width and height of the user range, fractions of the display"),
       Flag("auto_reset", &R::auto_reset,
            "lift the finger when it leaves the range; false: it stays down, within the user range regardless of "
            "`range_mode`")});
}

}  // namespace

QVector<RecordTable> ViewItemTables() {
  return {StaringTable(), FireTable(), ObserveTable(), EyeTable(), GravityTable(), RightStickEyeTable()};
}

}  // namespace tavikeymapmanager
