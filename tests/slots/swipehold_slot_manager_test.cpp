#include "slots/swipehold_slot_manager.h"

#include <limits>

#include "core/display_geometry.h"
#include "core/input_status_manager.h"
#include "tests/support/print_points.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

enum Keys : int { kUp = 1, kDown = 2, kLeft = 4, kRight = 8 };

class SwipeholdSlot : public Story {
 protected:
  // A stick at (256, 360) of 1280 x 720 with a radius of 1280 * 0.1 = 128; 128 * 0.7071... = 90.5, so 91 diagonally.
  static void Place(SwipeholdSlotManager* stick, bool just_use_last = false) {
    stick->Configure({0.2, 0.5}, 0.1, just_use_last);
  }
  static void Hold(SwipeholdSlotManager* stick, int keys) {
    stick->Reset();
    stick->SetDirectionKey(kDirectionUp, (keys & kUp) != 0);
    stick->SetDirectionKey(kDirectionDown, (keys & kDown) != 0);
    stick->SetDirectionKey(kDirectionLeft, (keys & kLeft) != 0);
    stick->SetDirectionKey(kDirectionRight, (keys & kRight) != 0);
  }

  SwipeholdSlotManager* walk_ = SwipeholdSlotManager::GetInstance(0);
};

TEST_F(SwipeholdSlot, EachIndexHasItsOwnAndAllOthersShareOne) {
  EXPECT_EQ(2, SwipeholdSlotManager::GetInstance(0)->GetSlotId());
  EXPECT_EQ(6, SwipeholdSlotManager::GetInstance(1)->GetSlotId());
  EXPECT_EQ(SlotManager::kNoSlot, SwipeholdSlotManager::GetInstance(2)->GetSlotId());
  EXPECT_EQ(SlotManager::kNoSlot, SwipeholdSlotManager::GetInstance(3)->GetSlotId());
  EXPECT_NE(SwipeholdSlotManager::GetInstance(2), SwipeholdSlotManager::GetInstance(3));
  EXPECT_EQ(SwipeholdSlotManager::GetInstance(7), SwipeholdSlotManager::GetInstance(3));
}

const struct {
  const char* name;
  int keys;
  QPoint target;
  bool is_single_axis;
  bool is_at_center;
} kTargets[] = {
    {"none", 0, {256, 360}, false, false},
    {"up", kUp, {256, 232}, true, false},
    {"down", kDown, {256, 488}, true, false},
    {"left", kLeft, {128, 360}, true, false},
    {"right", kRight, {384, 360}, true, false},
    {"up and right", kUp | kRight, {347, 269}, false, false},
    {"down and left", kDown | kLeft, {165, 451}, false, false},
    {"opposite keys cancel each other", kUp | kDown, {256, 360}, false, true},
    {"so do those of the other axis", kLeft | kRight, {256, 360}, false, true},
    {"a third key counts alone", kUp | kDown | kLeft, {128, 360}, false, false},
    {"on either axis", kLeft | kRight | kDown, {256, 488}, false, false},
    {"all four", kUp | kDown | kLeft | kRight, {256, 360}, false, true},
};

TEST_F(SwipeholdSlot, KeysPutTheTarget) {
  Place(walk_);
  for (const auto& row : kTargets) {
    Hold(walk_, row.keys);
    EXPECT_EQ(row.target, walk_->GetTargetPoint()) << row.name;
    EXPECT_EQ(row.is_single_axis, walk_->IsSingleAxis()) << row.name;
    EXPECT_EQ(row.is_at_center, walk_->IsTargetAtCenter()) << row.name;
    EXPECT_EQ(row.keys != 0, walk_->HasTouch()) << row.name;
  }
}

TEST_F(SwipeholdSlot, TheLastKeyOfAnAxisWinsWhereTheItemSaysSo) {
  Place(walk_, true);
  walk_->SetDirectionKey(kDirectionUp, true);
  walk_->SetDirectionKey(kDirectionDown, true);
  EXPECT_EQ(QPoint(256, 488), walk_->GetTargetPoint());
  EXPECT_FALSE(walk_->IsTargetAtCenter());
  walk_->SetDirectionKey(kDirectionDown, false);  // the remaining one counts by itself
  EXPECT_EQ(QPoint(256, 232), walk_->GetTargetPoint());
  walk_->SetDirectionKey(kDirectionDown, true);
  walk_->SetDirectionKey(kDirectionUp, true);  // pressed again without a release
  EXPECT_EQ(QPoint(256, 232), walk_->GetTargetPoint());
}

TEST_F(SwipeholdSlot, TheLastKeyWinsOnTheOtherAxisToo) {
  Place(walk_, true);
  walk_->SetDirectionKey(kDirectionRight, true);
  walk_->SetDirectionKey(kDirectionLeft, true);
  EXPECT_EQ(QPoint(128, 360), walk_->GetTargetPoint());
  walk_->SetDirectionKey(kDirectionRight, true);
  EXPECT_EQ(QPoint(384, 360), walk_->GetTargetPoint());
}

TEST_F(SwipeholdSlot, AThirdKeySetsTheLastKeyAside) {
  Place(walk_, true);
  Hold(walk_, kUp | kDown | kRight);
  EXPECT_EQ(QPoint(384, 360), walk_->GetTargetPoint());
  Hold(walk_, kUp | kDown | kLeft | kRight);
  EXPECT_EQ(QPoint(256, 360), walk_->GetTargetPoint());
}

TEST_F(SwipeholdSlot, AResetForgetsTheKeysAndNothingElse) {
  Place(walk_, true);
  Hold(walk_, kDown);
  walk_->Reset();
  EXPECT_FALSE(walk_->HasTouch());
  EXPECT_EQ(0U, walk_->GetDirectionX());
  EXPECT_EQ(0U, walk_->GetDirectionY());
  EXPECT_EQ(QPoint(256, 360), walk_->GetCenter());
  EXPECT_EQ(128, walk_->GetRadius());
}

TEST_F(SwipeholdSlot, AnUpdatePressesTheTargetOrReleases) {
  Place(walk_);
  EXPECT_EQ("SLOTRELEASE:2\n", walk_->BuildUpdateCommand().toStdString());
  Hold(walk_, kUp);
  EXPECT_EQ("SLOTPRESS:2:2:1:1:256:232\n", walk_->BuildUpdateCommand().toStdString());
  Hold(walk_, kUp | kDown);  // on the centre, and down
  EXPECT_EQ("SLOTPRESS:2:2:1:1:256:360\n", walk_->BuildUpdateCommand().toStdString());
  SwipeholdSlotManager* stick = SwipeholdSlotManager::GetInstance(2);
  Hold(stick, kUp);
  EXPECT_EQ("", stick->BuildUpdateCommand().toStdString());
}

// 1000 * 0.0125 = 12.5 rounds up to 13; 13 * 0.7071... = 9.19; 1000 * 0.3335 = 333.5; 600 * 0.4975 = 298.5.
TEST_F(SwipeholdSlot, IsPlacedInWholePixels) {
  Host().display = QRect(0, 0, 1000, 600);
  walk_->Configure({0.3335, 0.4975}, 0.0125, false);
  EXPECT_EQ(QPoint(334, 299), walk_->GetCenter());
  EXPECT_EQ(13, walk_->GetRadius());
  Hold(walk_, kDown | kRight);
  EXPECT_EQ(QPoint(334 + 9, 299 + 9), walk_->GetTargetPoint());
}

TEST_F(SwipeholdSlot, ItsRadiusIsPartOfTheWidthOfAPortraitDisplayToo) {
  Host().display = QRect(0, 0, 720, 1280);
  Place(walk_);
  EXPECT_EQ(QPoint(144, 640), walk_->GetCenter());
  EXPECT_EQ(72, walk_->GetRadius());
}

TEST_F(SwipeholdSlot, WithoutHostTheDisplayIs1280By720) {
  DisplayGeometry::GetInstance()->SetCallbacks(nullptr);
  Place(walk_);
  EXPECT_EQ(QPoint(256, 360), walk_->GetCenter());
  EXPECT_EQ(128, walk_->GetRadius());
}

// 128 * 1.3 = 166.4 and 91 * 1.3 = 118.3, both truncated; reset from the radii of the item, not from those.
TEST_F(SwipeholdSlot, AFactorScalesBothRadii) {
  Place(walk_);
  walk_->SetRadiusFactor(1.3);
  EXPECT_EQ(166, walk_->GetRadius());
  Hold(walk_, kDown | kRight);
  EXPECT_EQ(QPoint(256 + 118, 360 + 118), walk_->GetTargetPoint());
  walk_->SetRadiusFactor(1.0);
  EXPECT_EQ(128, walk_->GetRadius());
  EXPECT_EQ(QPoint(256 + 91, 360 + 91), walk_->GetTargetPoint());
}

TEST_F(SwipeholdSlot, OnlyTheWalkStartsWithTheFactorOfTheSwitch) {
  InputStatusManager::GetInstance()->ToggleSwipeholdFactor(1.3);
  for (const int index : {0, 1, 2, 3}) {
    SwipeholdSlotManager* stick = SwipeholdSlotManager::GetInstance(index);
    Place(stick);
    EXPECT_EQ(index == 0 ? 166 : 128, stick->GetRadius()) << index;
  }
}

TEST_F(SwipeholdSlot, AnyMayBeScaledByHand) {
  SwipeholdSlotManager* inner = SwipeholdSlotManager::GetInstance(1);
  Place(inner);
  inner->SetRadiusFactor(0.5);
  EXPECT_EQ(64, inner->GetRadius());
}

const struct {
  const char* name;
  int held;
  quint32 x;
  quint32 y;
  QList<int> directions;
} kDifferences[] = {
    {"the same words", kUp | kRight, 1, 16, {}},
    {"two new keys, the vertical one first", 0, 1, 16, {1, 4}},
    {"all of a word that differs, held already or not", kUp, 0, 17, {1, 2}},
    {"nothing of a word that is the same", kUp, 16, 16, {3}},
    {"all four", 0, 17, 17, {1, 2, 3, 4}},
    {"down and left", 0, 16, 1, {2, 3}},
    {"a word that has become empty lists nothing", kUp | kLeft, 0, 0, {}},
};

TEST_F(SwipeholdSlot, ListsTheKeysOfOtherWords) {
  for (const auto& row : kDifferences) {
    Hold(walk_, row.held);
    EXPECT_EQ(row.directions, walk_->DiffDirections(row.x, row.y)) << row.name;
  }
}

TEST_F(SwipeholdSlot, ARadiusBeyondAllPixelsStaysInRange) {
  constexpr int kMost = std::numeric_limits<int>::max();
  constexpr int kLeast = std::numeric_limits<int>::min();
  walk_->Configure({0.5, 0.5}, 1e12, false);
  EXPECT_EQ(kMost, walk_->GetRadius());
  Hold(walk_, kRight);
  EXPECT_EQ(QPoint(kMost, 360), walk_->GetTargetPoint());
  walk_->Configure({0.5, 0.5}, -1e12, false);
  EXPECT_EQ(kLeast, walk_->GetRadius());
  Hold(walk_, kLeft);
  EXPECT_EQ(QPoint(kMost, 360), walk_->GetTargetPoint());
}

}  // namespace
}  // namespace taviinputmanager
