// Items that touch fixed points: taps, curves, slides and pinches; and the labels.
#include "keymap/bunch_click_config_item.h"
#include "keymap/curve_config_item.h"
#include "keymap/tip_config_item.h"
#include "keymap/wheel_config_item.h"
#include "keymap/zoom_config_item.h"
#include "keymapmanager/fields/item_fields.h"
#include "keymapmanager/fields/record_tables.h"

namespace tavikeymapmanager {

namespace {

namespace kw = keywords;

constexpr Range kDirection{1, 2};
constexpr Range kSlideSpeed{1, 1000};  // at 0 a slide would never end

RecordTable ClickTable() {
  return ItemTable<ComposableConfigItem>(kw::kTypeClick, "Holds one finger on a point while the key is held.",
                                         {ChordField(), PointField("where the finger touches")});
}

RecordTable BunchClickTable() {
  using R = BunchClickConfigItem;
  return ItemTable<R>(kw::kTypeBunchClick, "Rapid taps on one point.",
                      {ChordField(), PointField("where the finger taps"),
                       Word("bunch_mode", &R::bunch_mode, {kw::kBunchContinue, kw::kBunchOneOff},
                            "`Continue`: taps while the key is held; `One_Off`: a fixed number of taps when it is "
                            "released, at 20 taps per second. If absent, `One_Off`"),
                       Integer("bunch_frequency", &R::bunch_frequency, {1, 500}, "taps per second, for `Continue`"),
                       Integer("bunch_count", &R::bunch_count, {1, 1000}, "number of taps, for `One_Off`")});
}

Field CurvePointsField() {
  Field field =
      MakeField(FieldKind::kPoints, "curve_points", &CurveConfigItem::curve_points,
                "at least two points to follow, 8 ms apart; offsets from `point`, as fractions of the display");
  field.range = kOffset;
  return field;
}

RecordTable CurveTable() {
  using R = CurveConfigItem;
  RecordTable table = ItemTable<R>(
      kw::kTypeCurve, "One finger follows a list of points and stays on the last one until the key is released.",
      {ChordField(), PointField("the origin of the curve"), CurvePointsField(),
       Flag("curve_straight", &R::curve_straight,
            "follow a straight line from `curve_start` to `curve_end` instead of the list"),
       Pair("curve_start", &R::curve_start, kOffset, "start of the straight line, an offset from `point`"),
       Pair("curve_end", &R::curve_end, kOffset, "end of the straight line, an offset from `point`"),
       Integer("curve_first_delay_ms", &R::curve_first_delay_ms, kTimeMs,
               "time from the press to the first point; 0: 8 ms")});
  table.at_least_one = {{QStringLiteral("curve_points"), QStringLiteral("curve_straight")}};
  return table;
}

RecordTable WheelItemTable() {
  using R = WheelConfigItem;
  return ItemTable<R>(kw::kTypeWheel,
                      "A key that turns a wheel of the guest: one finger slides repeatedly while the key is held.",
                      {ChordField(), PointField("where the slide begins"),
                       Word("axis", &R::axis, {kw::kAxisHorizontal, kw::kAxisVertical}, "If absent, `horizontal`"),
                       Integer("direction", &R::direction, kDirection, "1: right or down; 2: left or up"),
                       Integer("speed", &R::speed, kSlideSpeed, "step every 8 ms, in ten-thousandths of the display"),
                       Integer("duration_ms", &R::duration_ms, kTimeMs, "duration of one slide")});
}

RecordTable ZoomTable() {
  using R = ZoomConfigItem;
  return ItemTable<R>(
      kw::kTypeZoom, "A key that pinches with two fingers repeatedly while it is held.",
      {ChordField(), PointField("the centre of the pinch"),
       Word("axis", &R::axis, {kw::kAxisHorizontal, kw::kAxisVertical}, "If absent, `horizontal`"),
       Integer("direction", &R::direction, kDirection, "1: the fingers move apart; 2: they move together"),
       Integer("speed", &R::speed, kSlideSpeed, "step of each finger every 12 ms, in ten-thousandths of the display"),
       Integer("duration_ms", &R::duration_ms, kTimeMs, "duration of one pinch"),
       Number("start_distance", &R::start_distance, kFraction,
              "minimum distance of a finger from the centre, fraction of the display"),
       Flag("swap_fingers", &R::swap_fingers, "swap the two fingers")});
}

RecordTable TipTable() {
  RecordTable table = ItemTable<TipConfigItem>(kw::kTypeTip, "A label on the guest view. It responds to no key.",
                                               {KeyField(), PointField("where the label is")});
  return table;
}

}  // namespace

QVector<RecordTable> TouchItemTables() {
  return {ClickTable(), BunchClickTable(), CurveTable(), WheelItemTable(), ZoomTable(), TipTable()};
}

}  // namespace tavikeymapmanager
