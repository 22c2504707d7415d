#include "simulators/cast/ground_projection.h"

#include <gtest/gtest.h>

#include "keymap/spell_config_item.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::SpellConfigItem;

constexpr QSize kDisplay(1280, 720);
constexpr QPoint kButton(640, 360);

// Written column after column. With ground point (X, Y), the screen shows x = X, y = Y.
const char kFlat[] = "1,0,0,0, 0,0,1,0, 0,0,0,0, 0,0,0,1";
// The screen shows x = X / (Y + 1), y = Y / (Y + 1): what is further up is further away. Turned round,
// Y = y / (1 - y) and X = x * (Y + 1).
const char kPerspective[] = "1,0,0,0, 0,0,1,0, 0,0,0,0, 0,0,1,1";

GroundView View(const char* matrix) { return GroundView::Parse(matrix).value(); }

// The character is in the middle of the display.
SpellConfigItem Item(const char* matrix, double ground_scale) {
  SpellConfigItem item;
  item.character_rel_x = item.character_rel_y = 0.5;
  item.ground_reference = 1;
  item.ground_scale = ground_scale;
  item.view_matrix = matrix;
  return item;
}

TEST(GroundProjection, NormalisesWithYUpwards) {
  EXPECT_EQ(Normalise({640, 360}, kDisplay), QPointF(0, 0));
  EXPECT_EQ(Normalise({0, 0}, kDisplay), QPointF(-1, 1));
  EXPECT_EQ(Normalise({1280, 720}, kDisplay), QPointF(1, -1));
  EXPECT_EQ(Normalise({960, 540}, kDisplay), QPointF(0.5, -0.5));
}

TEST(GroundProjection, SolvesAFlatView) { EXPECT_EQ(View(kFlat).Solve({0.25, -0.75}), QPointF(0.25, -0.75)); }

TEST(GroundProjection, SolvesAPerspective) {
  // Y = 0.5 / 0.5 = 1, X = 0.5 * 2 = 1; |c| = |-x| = 0.5 is not above |d| = 1 - y = 0.5.
  EXPECT_EQ(View(kPerspective).Solve({0.5, 0.5}), QPointF(1, 1));
  // Y = 1, X = 0.75 * 2 = 1.5; |c| = 0.75 is above |d| = 0.5, so that Y comes from the other line.
  EXPECT_EQ(View(kPerspective).Solve({0.75, 0.5}), QPointF(1.5, 1));
}

TEST(GroundProjection, AViewWithoutGroundSolvesNothing) {
  EXPECT_EQ(View("0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0").Solve({0.5, 0.5}), QPointF());
  // At y = 1 the line of sight runs along the ground: d = 1 - 1 and b = 0 leave no determinant.
  EXPECT_EQ(View(kPerspective).Solve({0.5, 1}), QPointF());
}

TEST(GroundProjection, WantsSixteenParts) {
  EXPECT_FALSE(GroundView::Parse(""));
  EXPECT_FALSE(GroundView::Parse("1,0,0,0,0,0,1,0,0,0,0,0,0,0,0"));     // 15
  EXPECT_FALSE(GroundView::Parse("1,0,0,0,0,0,1,0,0,0,0,0,0,0,0,1,"));  // 17, the last one empty
  EXPECT_TRUE(GroundView::Parse("1,0,0,0,,x,1,0,0,0,0,0,0,0,0,1"));     // 16, two of which read as 0
  EXPECT_EQ(View("1,0,0,0,,x,1,0,0,0,0,0,0,0,0,1").Solve({0.25, 0.5}), QPointF(0.25, 0.5));
}

struct Row {
  const char* name;
  const char* matrix;
  double ground_scale;
  QPoint pointer;
  QPoint target;
};

// Forward is from the character to the point of its x at y = 0.8, straight up in both views: u = (0, 1), and so p =
// r.x, q = r.y. The finger moves by |r| * ground_scale in the direction of (-p, -q).
const Row kProjected[] = {
    // r = (0.5, 0): 0.5 * 200 = 100
    {"right of the character", kFlat, 200, {960, 360}, {640 - 100, 360}},
    // r = (0, 0.5): 100 upwards
    {"above it", kFlat, 200, {640, 180}, {640, 360 - 100}},
    // r = (0, -0.5)
    {"below it", kFlat, 200, {640, 540}, {640, 360 + 100}},
    // a negative scale turns the way round
    {"mirrored", kFlat, -200, {960, 360}, {640 + 100, 360}},
    // 640 - 100.5 = 539.5 and 360 + 100.5 = 460.5, cut off
    {"cut off, not rounded", kFlat, 201, {960, 360}, {539, 360}},
    {"cut off below", kFlat, 201, {640, 540}, {640, 460}},
    // r = (1, 1): sqrt(2) long, at 45 degrees: 1 * 100.5 each way, 539.5 and 259.5
    {"in perspective", kPerspective, 100.5, {960, 180}, {539, 259}},
};

TEST(GroundProjection, LandsWhereThePointerStandsOnTheGround) {
  for (const Row& row : kProjected) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(ProjectOnGround(Item(row.matrix, row.ground_scale), row.pointer, kButton, kDisplay), row.target);
  }
}

TEST(GroundProjection, TurnsIntoTheFrameOfTheForwardDirection) {
  SpellConfigItem item = Item(kPerspective, 100);
  item.character_rel_x = 0.75;  // pixel 960, x = 0.5: on the ground (0.5, 0)
  // Forward: y = 0.8 gives Y = 4, X = 0.5 * 5 = 2.5, so that it runs along (2, 4). The pointer at (0.5, 0.5) is at
  // (1, 1): r = (0.5, 1), straight ahead, sqrt(1.25) = 1.118 long. The finger goes straight up by 111.8.
  EXPECT_EQ(ProjectOnGround(item, {960, 180}, kButton, kDisplay), QPoint(640, 248));
}

TEST(GroundProjection, ScalesWithTheDisplayWidthAlone) {
  // r = (0.5, 0) again on each display; 0.5 * 200 * 640 / 1280 = 50, and 0.5 * 200 * 2560 / 1280 = 200.
  EXPECT_EQ(ProjectOnGround(Item(kFlat, 200), {480, 360}, {320, 360}, {640, 720}), QPoint(270, 360));
  EXPECT_EQ(ProjectOnGround(Item(kFlat, 200), {1920, 720}, {1280, 720}, {2560, 1440}), QPoint(1080, 720));
}

TEST(GroundProjection, StartsFromTheRoundedCharacter) {
  SpellConfigItem item = Item(kFlat, 960);
  item.character_rel_x = 0.5004;  // 640.512 rounds to 641, 1 / 640 right of the middle
  // A pointer on 642 is 1 / 640 to the right of that: |r| * 960 = 1.5, and 98.5 cut off.
  EXPECT_EQ(ProjectOnGround(item, {642, 360}, {100, 100}, kDisplay), QPoint(98, 100));
}

TEST(GroundProjection, APointerOnTheCharacterHasNoTarget) {
  EXPECT_EQ(ProjectOnGround(Item(kFlat, 200), {640, 360}, kButton, kDisplay), QPoint());
}

TEST(GroundProjection, NeedsAllOfTheView) {
  const QPoint pointer(960, 360);
  ASSERT_FALSE(ProjectOnGround(Item(kFlat, 200), pointer, kButton, kDisplay).isNull());

  SpellConfigItem item = Item(kFlat, 200);
  item.character_rel_x = item.character_rel_y = 0;
  EXPECT_TRUE(ProjectOnGround(item, pointer, kButton, kDisplay).isNull()) << "no character";
  item = Item(kFlat, 200);
  item.ground_reference = 0;
  EXPECT_TRUE(ProjectOnGround(item, pointer, kButton, kDisplay).isNull()) << "no reference";
  EXPECT_TRUE(ProjectOnGround(Item(kFlat, 0), pointer, kButton, kDisplay).isNull()) << "no scale";
  EXPECT_TRUE(ProjectOnGround(Item("", 200), pointer, kButton, kDisplay).isNull()) << "no matrix";
  EXPECT_TRUE(ProjectOnGround(Item("1,2", 200), pointer, kButton, kDisplay).isNull()) << "a broken matrix";
  EXPECT_TRUE(ProjectOnGround(Item("0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0", 200), pointer, kButton, kDisplay).isNull())
      << "no ground";
  EXPECT_TRUE(ProjectOnGround(Item(kFlat, 200), pointer, kButton, {0, 0}).isNull()) << "no display";
}

TEST(GroundProjection, TheReferenceHasNoFurtherUse) {
  SpellConfigItem item = Item(kFlat, 200);
  item.ground_reference = -7.5;
  EXPECT_EQ(ProjectOnGround(item, {960, 360}, kButton, kDisplay), QPoint(540, 360));
}

TEST(GroundProjection, OneCoordinateOfTheCharacterIsEnough) {
  SpellConfigItem item = Item(kFlat, 200);
  item.character_rel_x = 0;  // the left edge, x = -1
  // r = (0 - -1, 0): 1 * 200
  EXPECT_EQ(ProjectOnGround(item, {640, 360}, kButton, kDisplay), QPoint(440, 360));
}

}  // namespace
}  // namespace taviinputmanager
