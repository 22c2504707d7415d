// Items that turn the view, and the fire button that borrows the mouse from them.
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
constexpr Range kViewRange{0, 2};  // may reach beyond the display

const char kRangeModeDoc[] =
    "where the finger may go before it is lifted and put back on the centre: anywhere; `range_size`, cut to the "
    "window; "
    "`range_size`; the inner four fifths of the window; or the window. Not written: as `Range_Window`";

QStringList RangeModes() {
  return {kw::kRangeInfinite, kw::kRangeUser, kw::kRangeUserAllowOutside, kw::kRangePadded, kw::kRangeWindow};
}

RecordTable StaringTable() {
  using R = StaringConfigItem;
  return ItemTable<R>(
      kw::kTypeStaring, "View control by the captured mouse. The key switches it on and off.",
      {ChordField(), PointField("the centre of the view area"),
       Integer("sensitivity_x", &R::sensitivity_x, kStaringPercent, "per cent; 100 is one display pixel a count"),
       Integer("sensitivity_y", &R::sensitivity_y, kStaringPercent, "the same, upright"),
       Word("range_mode", &R::range_mode, RangeModes(), kRangeModeDoc),
       Pair("range_size", &R::range_size, kViewRange, "width and height of the user range, fractions of the display"),
       Flag("auto_reset", &R::auto_reset,
            "leaving the range lifts the finger; false: it stays down, inside the user range whatever `range_mode` "
            "says"),
       Integer("auto_reset_period_ms", &R::auto_reset_period_ms, {0, 3600000},
               "with `auto_reset`, the finger is lifted this often; 0: never"),
       Integer("press_interval_ms", &R::press_interval_ms, kTimeMs, "least time from a lift to the next touch"),
       Integer("move_interval_ms", &R::move_interval_ms, kTimeMs, "least time between two moves")});
}

RecordTable FireTable() {
  using R = FireConfigItem;
  return ItemTable<R>(
      kw::kTypeFire, "The fire button of a shooter, pressed by `Mouse Left` while view control is on.",
      {ChordField(), PointField("the fire button"),
       Pair("alt_point", &R::alt_rel_x, &R::alt_rel_y, kFraction,
            "where the finger touches in place of `point`; [0, 0]: none"),
       Flag("relative_mode", &R::relative_mode, "the mouse drives the fire finger while the button is held"),
       Word("range_mode", &R::range_mode, {kw::kFireRangeUnlimited, kw::kFireRangeLimited},
            "how far the mouse may drive the finger: anywhere, or within `range_radius`. Not written: as "
            "`Fire_range_dependent_swipehold`"),
       Number("range_radius", &R::range_radius, kFraction, "fraction of the display's height"),
       Integer("cancel_swipe_steps", &R::cancel_swipe_steps, kStepCount0,
               "steps of the slide to a spell-cancel point; 0: no slide"),
       Flag("offset_enabled", &R::offset_enabled, "the first real movement of the mouse moves the finger by a jump"),
       Number("offset_length", &R::offset_length, kFraction, "length of that jump, fraction of the display's height"),
       Number("offset_threshold", &R::offset_threshold, kFraction,
              "travel that counts as real, fraction of the display's height"),
       Integer("move_interval_ms", &R::move_interval_ms, kTimeMs, "least time between two moves")});
}

RecordTable ObserveTable() {
  using R = ObserveConfigItem;
  return ItemTable<R>(
      kw::kTypeObserve, "Looking around on a second point with the captured mouse while the key is held.",
      {ChordField(), PointField("where the finger touches"),
       Integer("sensitivity_x", &R::sensitivity_x, kSteering, "per cent; below 0 it turns the other way"),
       Integer("sensitivity_y", &R::sensitivity_y, kSteering, "the same, upright"),
       Number("sensitivity", &R::sensitivity, {-100, 100}, "factor on both"),
       Integer("move_interval_ms", &R::move_interval_ms, kTimeMs, "least time between two moves")});
}

RecordTable EyeTable() {
  using R = EyeConfigItem;
  RecordTable table = ItemTable<R>(
      kw::kTypeEye, "The view turned by four keys.",
      QVector<Field>{PointField("where the finger begins")} + DirectionKeyFields<R>() +
          QVector<Field>{Integer("speed", &R::speed, kKeySpeed, "per cent; 100 is 8 display pixels each 8 ms")});
  table.at_least_one = {DirectionKeyNames()};
  return table;
}

RecordTable GravityTable() {
  using R = GravityConfigItem;
  RecordTable table =
      ItemTable<R>(kw::kTypeGravity, "The guest's gravity sensor tilted by four keys, the longer the further.",
                   QVector<Field>{OverlayPointField()} + DirectionKeyFields<R>() +
                       QVector<Field>{Integer("speed", &R::speed, kKeySpeed, "per cent of how fast the tilt grows")});
  table.at_least_one = {DirectionKeyNames()};
  return table;
}

RecordTable RightStickEyeTable() {
  using R = JoystickRightEyeConfigItem;
  return StickItemTable<R>(
      kw::kTypeRightStickEye, "The view turned by a gamepad's right stick.", kw::kRightStick,
      {PointField("the centre of the view area"),
       Integer("sensitivity", &R::sensitivity, kSteering, "per cent; below 0 it turns the other way"),
       Word("range_mode", &R::range_mode, RangeModes(), kRangeModeDoc),
       Pair("range_size", &R::range_size, kViewRange, "width and height of the user range, fractions of the display"),
       Flag("auto_reset", &R::auto_reset,
            "leaving the range lifts the finger; false: it stays down, inside the user range whatever `range_mode` "
            "says")});
}

}  // namespace

QVector<RecordTable> ViewItemTables() {
  return {StaringTable(), FireTable(), ObserveTable(), EyeTable(), GravityTable(), RightStickEyeTable()};
}

}  // namespace tavikeymapmanager
