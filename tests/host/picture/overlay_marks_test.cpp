#include "host/picture/overlay_marks.h"

#include <gtest/gtest.h>

#include "keymapmanager/keymap_file.h"

namespace tavi {
namespace {

using Family = OverlayMark::Family;
using Shape = OverlayMark::Shape;

QVector<OverlayMark> MarksOfItems(const char* items) {
  const QByteArray text = QByteArray("format: 1\nitems: [") + items + "]\n";
  const auto keymap = tavikeymapmanager::ReadKeymapText(text, QStringLiteral("test.yaml"));
  EXPECT_FALSE(keymap.HasErrors()) << keymap.diagnostics.value(0).message.toStdString();
  return MarksOf(keymap);
}

TEST(OverlayMarks, ATapHasItsKeyAtItsPoint) {
  const auto marks = MarksOfItems("{type: Click, label: Jump, key: Space, point: [0.25, 0.75]}");
  ASSERT_EQ(marks.size(), 1);
  EXPECT_EQ(marks[0].shape, Shape::kButton);
  EXPECT_EQ(marks[0].family, Family::kTap);
  EXPECT_EQ(marks[0].point, QPointF(0.25, 0.75));
  EXPECT_EQ(marks[0].keys, QStringList{"Space"});
  EXPECT_EQ(marks[0].label, QStringLiteral("Jump"));
}

TEST(OverlayMarks, AnItemWithoutLabelIsCalledByItsType) {
  EXPECT_EQ(MarksOfItems("{type: Click, key: Space, point: [0.5, 0.5]}")[0].label, QStringLiteral("Click"));
}

TEST(OverlayMarks, AChordNamesBothKeys) {
  EXPECT_EQ(MarksOfItems("{type: Click, key: Left Ctrl + Q, point: [0.5, 0.5]}")[0].keys, QStringList{"Left Ctrl + Q"});
}

TEST(OverlayMarks, KeysOfOnePointAndLabelStandTogether) {
  const auto marks = MarksOfItems(
      "{type: Click, label: First, key: 1, point: [0.5, 0.5]},"
      "{type: Click, label: First, key: Wheel Up, point: [0.5, 0.5]},"
      "{type: Click, label: Other, key: 2, point: [0.5, 0.5]}");
  ASSERT_EQ(marks.size(), 2);
  EXPECT_EQ(marks[0].keys, (QStringList{"1", "Wheel Up"}));
  EXPECT_EQ(marks[1].keys, QStringList{"2"});
}

TEST(OverlayMarks, AWalkHasFourKeysAndItsRadius) {
  const auto marks = MarksOfItems(
      "{type: Swipehold, point: [0.2, 0.7], radius: 0.09, key_up: W, key_left: A, key_down: S, key_right: D}");
  ASSERT_EQ(marks.size(), 1);
  EXPECT_EQ(marks[0].shape, Shape::kDirections);
  EXPECT_EQ(marks[0].family, Family::kWalk);
  EXPECT_EQ(marks[0].keys, (QStringList{"W", "D", "S", "A"}));
  EXPECT_EQ(marks[0].radius, 0.09);
}

TEST(OverlayMarks, AKeyThatADirectionLacksIsEmpty) {
  const auto marks = MarksOfItems("{type: Gravity, key_left: Left, key_right: Right, speed: 40}");
  EXPECT_EQ(marks[0].keys, (QStringList{"", "Right", "", "Left"}));
  EXPECT_FALSE(marks[0].HasPlace());
}

TEST(OverlayMarks, AViewAreaHasItsRange) {
  const auto marks =
      MarksOfItems("{type: Staring, key: Grave, point: [0.6, 0.4], range_mode: Range_User, range_size: [0.3, 0.2]}");
  EXPECT_EQ(marks[0].family, Family::kView);
  EXPECT_EQ(marks[0].range, QSizeF(0.3, 0.2));
}

TEST(OverlayMarks, ACurveHasItsWay) {
  const auto straight = MarksOfItems(
      "{type: Curve, key: E, point: [0.7, 0.7], curve_straight: true, curve_start: [0, 0], curve_end: [0, -0.12]}");
  EXPECT_EQ(straight[0].path, (QVector<QPointF>{{0, 0}, {0, -0.12}}));
  const auto points =
      MarksOfItems("{type: Curve, key: Q, point: [0.7, 0.7], curve_points: [[0, 0], [0, 0.04], [0.5, 0.08]]}");
  EXPECT_EQ(points[0].path, (QVector<QPointF>{{0, 0}, {0, 0.04}, {0.5, 0.08}}));
}

TEST(OverlayMarks, AFireButtonStandsWhereItTouches) {
  const auto marks = MarksOfItems("{type: Fire, key: Mouse Left, point: [0.8, 0.6], alt_point: [0.1, 0.2]}");
  EXPECT_EQ(marks[0].point, QPointF(0.1, 0.2));
}

TEST(OverlayMarks, AStickOfAGamepadHasItsRadius) {
  const auto marks = MarksOfItems("{type: LeftStickWalk, point: [0.2, 0.7], walk_radius: 0.09}");
  EXPECT_EQ(marks[0].family, Family::kWalk);
  EXPECT_EQ(marks[0].keys, QStringList{"Pad Left_Stick"});
  EXPECT_EQ(marks[0].radius, 0.09);
}

TEST(OverlayMarks, KeysOfTwoKeymapsStandTogether) {
  const auto marks = MergeMarks(MarksOfItems("{type: Click, label: Jump, key: Space, point: [0.5, 0.5]}"),
                                MarksOfItems("{type: Click, label: Jump, key: Pad A, point: [0.5, 0.5]},"
                                             "{type: Click, label: Map, key: Pad Up, point: [0.9, 0.1]}"));
  ASSERT_EQ(marks.size(), 2);
  EXPECT_EQ(marks[0].keys, (QStringList{"Space", "Pad A"}));
  EXPECT_EQ(marks[1].label, QStringLiteral("Map"));
}

TEST(OverlayMarks, AMacroHasNoPlace) {
  const auto marks = MarksOfItems("{type: Macro, label: Run, key: Left Shift, press_commands: ['sleep:1']}");
  EXPECT_FALSE(marks[0].HasPlace());
  EXPECT_EQ(marks[0].family, Family::kMacro);
  EXPECT_EQ(marks[0].keys, QStringList{"Left Shift"});
}

}  // namespace
}  // namespace tavi
