#include "simulators/cast/spell_aim.h"

#include <climits>
#include <gtest/gtest.h>

#include "core/pixels.h"
#include "keymap/spell_config_item.h"

namespace taviinputmanager::spell_aim {
namespace {

using tavikeymapmanager::SpellConfigItem;
namespace keywords = tavikeymapmanager::keywords;

constexpr QSize kLandscape(1280, 720);
constexpr QSize kPortrait(720, 1280);

// The character's circle: around (640, 360), radius 0.5 * 720 = 360. The button's: radius 0.1. One pixel of the pointer
// is 0.1 / 0.5 = 0.2 pixels of the finger.
SpellConfigItem Item() {
  SpellConfigItem item;
  item.rel_x = item.rel_y = 0.75;
  item.circle_size = 0.5;
  item.swipe_radius = 0.1;
  return item;
}

TEST(SpellAim, TheButtonIsCutOffToPixels) {
  SpellConfigItem item;
  item.rel_x = 0.7507;  // 1280 * 0.7507 = 960.896
  item.rel_y = 0.7507;  // 720 * 0.7507 = 540.504
  EXPECT_EQ(PressPoint(item, kLandscape), QPoint(960, 540));
}

TEST(SpellAim, AnotherPressPointTakesTheButtonsPlace) {
  SpellConfigItem item = Item();
  item.alt_rel_x = 0.25;
  item.alt_rel_y = 0.5;
  EXPECT_EQ(PressPoint(item, kLandscape), QPoint(320, 360));
  item.alt_rel_x = 0;  // one coordinate is enough to be a point
  EXPECT_EQ(PressPoint(item, kLandscape), QPoint(0, 360));
  item.alt_rel_y = 0;
  EXPECT_EQ(PressPoint(item, kLandscape), QPoint(960, 540));
}

struct CircleRow {
  const char* name;
  QPoint pointer;
  QPoint target;  // of a button at (960, 540)
};

const CircleRow kCircle[] = {
    {"the character itself", {640, 360}, {960, 540}},
    {"inside", {740, 360}, {980, 540}},            // 100 * 0.2
    {"rounded", {637, 363}, {959, 541}},           // -0.6, 0.6
    {"on the rim", {640, 0}, {960, 468}},          // 360 is not beyond 360: -72
    {"beyond the rim", {1240, 360}, {1032, 540}},  // 600 * 360 / 600 = 360: 72
    // (480, 640) is 800 long; times 360 / 800 = 0.45 it is (216, 288): 43.2 and 57.6
    {"aslant", {1120, 1000}, {1003, 598}},
    // (300, 200) is 360.55 long, which counts as 360 and so as inside: 60 and 40
    {"a length cut off to the rim's", {940, 560}, {1020, 580}},
};

TEST(SpellAim, MapsTheCharactersCircleToTheButtons) {
  for (const CircleRow& row : kCircle) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(CircleTarget(Item(), row.pointer, {960, 540}, kLandscape), row.target);
  }
}

TEST(SpellAim, CutsOffWhereTheRimIsAndRoundsWhatItGives) {
  SpellConfigItem item = Item();
  item.swipe_radius = 0.25;  // half a pixel for a pixel
  // -5 * 0.5 = -2.5 rounds up to -2; 5 * 0.5 = 2.5 to 3
  EXPECT_EQ(CircleTarget(item, {635, 365}, {960, 540}, kLandscape), QPoint(958, 543));
  item.circle_size = 0.01;  // limit: 7.2, cut off to 7; a pixel is 25
  // (-100, 0) * 7 / 100 + 640 = 633: -7 * 25
  EXPECT_EQ(CircleTarget(item, {540, 360}, {960, 540}, kLandscape), QPoint(785, 540));
}

TEST(SpellAim, ThePercentageShrinksTheCircle) {
  SpellConfigItem item = Item();
  item.circle_percent = 50;  // limit 180; a pixel is 0.1 / 0.25 = 0.4
  EXPECT_EQ(CircleTarget(item, {740, 360}, {960, 540}, kLandscape), QPoint(1000, 540));
  EXPECT_EQ(CircleTarget(item, {1000, 360}, {960, 540}, kLandscape), QPoint(1032, 540));
}

TEST(SpellAim, TheCircleIsAsWideAsHighInPortrait) {
  // Centre (360, 640), limit 0.5 * 1280 = 640. The button's circle is 0.1 of the height too.
  EXPECT_EQ(CircleTarget(Item(), {460, 640}, {540, 960}, kPortrait), QPoint(560, 960));
  EXPECT_EQ(CircleTarget(Item(), {1060, 640}, {540, 960}, kPortrait), QPoint(540 + 128, 960));
}

TEST(SpellAim, ACentreElsewhereIsCutOffToPixels) {
  SpellConfigItem item = Item();
  item.circle_rel_x = 0.2507;  // 320.896
  item.circle_rel_y = 0.2507;  // 180.504
  EXPECT_EQ(CircleTarget(item, {420, 180}, {960, 540}, kLandscape), QPoint(980, 540));
}

TEST(SpellAim, WithoutACircleTheFingerStaysOnTheButton) {
  SpellConfigItem item = Item();
  item.circle_size = 0;
  EXPECT_EQ(CircleTarget(item, {740, 360}, {960, 540}, kLandscape), QPoint(960, 540));
  EXPECT_EQ(CircleTarget(item, {640, 360}, {960, 540}, kLandscape), QPoint(960, 540));
}

TEST(SpellAim, AWalkAimsOnARadiusOfTheHeight) {
  EXPECT_EQ(WalkTarget(Item(), {0, -1}, {960, 540}, kLandscape), QPoint(960, 468));  // 0.1 * 720 = 72
  EXPECT_EQ(WalkTarget(Item(), {1, 0}, {540, 960}, kPortrait), QPoint(668, 960));    // 0.1 * 1280 = 128
  // 0.70710678 * 72 = 50.9
  EXPECT_EQ(WalkTarget(Item(), {0.70710678, -0.70710678}, {960, 540}, kLandscape), QPoint(1011, 489));
  SpellConfigItem item = Item();
  item.swipe_radius = 0.1007;  // 72.504 rounds to 73
  EXPECT_EQ(WalkTarget(item, {-1, 0}, {960, 540}, kLandscape), QPoint(887, 540));
}

TEST(SpellAim, AStickAimsOnARadiusOfTheWidth) {
  EXPECT_EQ(StickTarget(Item(), {1, 0}, {960, 540}, kLandscape), QPoint(1088, 540));         // 0.1 * 1280 = 128
  EXPECT_EQ(StickTarget(Item(), {0, 1}, {540, 960}, kPortrait), QPoint(540, 1032));          // 0.1 * 720 = 72
  EXPECT_EQ(StickTarget(Item(), {0.33, -0.33}, {960, 540}, kLandscape), QPoint(1002, 498));  // 42.24, cut off
  EXPECT_EQ(StickTarget(Item(), {0, 0}, {960, 540}, kLandscape), QPoint(960, 540));
}

TEST(SpellAim, RelativeCountsStayInASquareOfTheWidth) {
  EXPECT_EQ(LimitToSquare(Item(), {2000, 0}, {960, 540}, kLandscape), QPoint(1088, 412));
  EXPECT_EQ(LimitToSquare(Item(), {0, 2000}, {540, 960}, kPortrait), QPoint(468, 1032));
  EXPECT_EQ(LimitToSquare(Item(), {1088, 412}, {960, 540}, kLandscape), QPoint(1088, 412));
}

TEST(SpellAim, StepsAreRounded) {
  EXPECT_EQ(StepBetween({0, 100}, {10, 90}, 1, 4), QPoint(3, 98));  // 2.5 up to 3, 97.5 up to 98
  EXPECT_EQ(StepBetween({0, 100}, {10, 90}, 4, 4), QPoint(10, 90));
}

TEST(SpellAim, ThePreludeHasStepsOfItsOwnLength) {
  SpellConfigItem item = Item();
  item.curve_step_length = 0.05;  // 36 pixels
  // (30, 40) is 50 long: 36 / 50 of it is (21.6, 28.8), rounded to (22, 29), and then added up
  EXPECT_EQ(CurvePoint(item, {100, 100}, {130, 140}, 1, kLandscape), QPoint(122, 129));
  EXPECT_EQ(CurvePoint(item, {100, 100}, {130, 140}, 3, kLandscape), QPoint(166, 187));
  EXPECT_EQ(CurvePoint(item, {100, 100}, {100, 100}, 3, kLandscape), QPoint(100, 100));
}

TEST(SpellAim, FarPointsStopAtTheEndOfTheRange) {
  const QPoint far(INT_MAX, INT_MIN);
  SpellConfigItem item = Item();
  item.swipe_radius = 1e12;
  item.curve_step_length = 1e12;
  EXPECT_EQ(CircleTarget(item, {740, 260}, {0, 0}, kLandscape), far);
  EXPECT_EQ(WalkTarget(item, {2, -2}, {0, 0}, kLandscape), far);
  EXPECT_EQ(StickTarget(item, {1, -1}, {0, 0}, kLandscape), far);
  EXPECT_EQ(CurvePoint(item, {100, 100}, {200, 0}, 3, kLandscape), far);
  EXPECT_EQ(Sum(far, {1, -1}), far);
  EXPECT_EQ(StepBetween({INT_MIN, INT_MAX}, far, 2, 2), far);
  EXPECT_EQ(LimitToSquare(item, far, {960, 540}, kLandscape), QPoint(INT_MAX, 540 - INT_MAX));
}

TEST(SpellAim, TwoLocationsAreAimedByWalk) {
  const struct {
    QString location;
    bool by_walk;
  } rows[] = {
      {keywords::kLocationMouse, false},
      {keywords::kLocationMousePosition, false},
      {keywords::kLocationSwipehold, true},
      {keywords::kLocationInnerSwipehold, true},
      {QString(), false},
  };
  for (const auto& row : rows) {
    SpellConfigItem item;
    item.touch_location = row.location;
    EXPECT_EQ(IsAimedByWalk(item), row.by_walk) << row.location.toStdString();
  }
}

}  // namespace
}  // namespace taviinputmanager::spell_aim
