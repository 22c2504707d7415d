// Items that put fingers on fixed points: taps, curves, slides and pinches; and the labels.
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
  return ItemTable<ComposableConfigItem>(kw::kTypeClick, "One finger on one point for as long as the key is held.",
                                         {ChordField(), PointField("where the finger touches")});
}

RecordTable BunchClickTable() {
  using R = BunchClickConfigItem;
  return ItemTable<R>(kw::kTypeBunchClick, "Rapid taps on one point.",
                      {ChordField(), PointField("where the finger taps"),
                       Word("bunch_mode", &R::bunch_mode, {kw::kBunchContinue, kw::kBunchOneOff},
                            "`Continue`: taps while the key is held; `One_Off`: a run of taps when it comes up, at 20 "
                            "taps a second. Not "
                            "written: as `One_Off`"),
                       Integer("bunch_frequency", &R::bunch_frequency, {1, 500}, "taps a second, with `Continue`"),
                       Integer("bunch_count", &R::bunch_count, {1, 1000}, "taps of a run, with `One_Off`")});
}

Field CurvePointsField() {
  Field field = MakeField(FieldKind::kPoints, "curve_points", &CurveConfigItem::curve_points,
                          "the points to follow, at least two, 8 ms from each to the next; offsets from `point`, as "
                          "fractions of the display");
  field.range = kOffset;
  return field;
}

RecordTable CurveTable() {
  using R = CurveConfigItem;
  RecordTable table = ItemTable<R>(
      kw::kTypeCurve, "One finger follows a list of points and rests on the last one until the key comes up.",
      {ChordField(), PointField("the origin of the curve"), CurvePointsField(),
       Flag("curve_straight", &R::curve_straight,
            "follow a straight line from `curve_start` to `curve_end` in place of the list"),
       Pair("curve_start", &R::curve_start, kOffset, "start of the straight line, an offset from `point`"),
       Pair("curve_end", &R::curve_end, kOffset, "end of the straight line, an offset from `point`"),
       Integer("curve_first_delay_ms", &R::curve_first_delay_ms, kTimeMs,
               "time from the press to the first point; 0: 8 ms")});
  table.at_least_one = {{QStringLiteral("curve_points"), QStringLiteral("curve_straight")}};
  return table;
}

RecordTable WheelItemTable() {
  using R = WheelConfigItem;
  return ItemTable<R>(
      kw::kTypeWheel,
      "A key that turns a wheel of the guest: one finger slides, again and again while the key is held.",
      {ChordField(), PointField("where the slide begins"),
       Word("axis", &R::axis, {kw::kAxisHorizontal, kw::kAxisVertical}, "Not written: as `horizontal`"),
       Integer("direction", &R::direction, kDirection, "1: right or down; 2: left or up"),
       Integer("speed", &R::speed, kSlideSpeed, "step each 8 ms, in ten-thousandths of the display"),
       Integer("duration_ms", &R::duration_ms, kTimeMs, "length of one slide")});
}

RecordTable ZoomTable() {
  using R = ZoomConfigItem;
  return ItemTable<R>(
      kw::kTypeZoom, "A key that pinches with two fingers, again and again while it is held.",
      {ChordField(), PointField("the centre of the pinch"),
       Word("axis", &R::axis, {kw::kAxisHorizontal, kw::kAxisVertical}, "Not written: as `horizontal`"),
       Integer("direction", &R::direction, kDirection, "1: the fingers move apart; 2: they come together"),
       Integer("speed", &R::speed, kSlideSpeed, "step of each finger each 12 ms, in ten-thousandths of the display"),
       Integer("duration_ms", &R::duration_ms, kTimeMs, "length of one pinch"),
       Number("start_distance", &R::start_distance, kFraction,
              "shortest distance of a finger from the centre, fraction of the display"),
       Flag("swap_fingers", &R::swap_fingers, "the two fingers change places")});
}

RecordTable TipTable() {
  RecordTable table = ItemTable<TipConfigItem>(kw::kTypeTip, "A label on the guest view. It answers to no key.",
                                               {KeyField(), PointField("where the label stands")});
  return table;
}

}  // namespace

QVector<RecordTable> TouchItemTables() {
  return {ClickTable(), BunchClickTable(), CurveTable(), WheelItemTable(), ZoomTable(), TipTable()};
}

}  // namespace tavikeymapmanager
