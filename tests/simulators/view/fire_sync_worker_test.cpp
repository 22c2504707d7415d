#include "simulators/view/fire_sync_worker.h"

#include <limits>

#include "taviinputmanager/taviinputmanager.h"
#include "tests/simulators/view/fire_story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::FireConfigItem;

TEST_F(Fire, HoldsTheButtonForAsLongAsItsKey) {
  AddStaring();
  AddFire()->relative_mode = false;
  Stare();
  Play("rel 0,0; mouse down left 100,100; rel 5,5; mouse up left 100,100; rel 5,5");
  // The view continues with its own contact.
  EXPECT_WIRE(kViewOnCentre, FireAt(960, 540), "0ms 1:SLOTPRESS:1:1:1:1:645:365", kFireUp,
              "0ms 1:SLOTPRESS:1:1:1:1:650:370");
  EXPECT_TRUE(signals_.isEmpty());
}

TEST_F(Fire, InRelativeModeTheViewIsSteeredByTheFireFinger) {
  AddStaring();
  AddFire();
  Stare();
  Play("rel 0,0; rel 9,9");
  Forget();
  PressFire();
  EXPECT_WIRE(FireAt(960, 540), kViewUp);
  EXPECT_EQ(QStringList({"listen", "take counts"}), signals_);
  Play("rel 5,6; rel 1,-1");
  EXPECT_WIRE(FireAt(965, 546), FireAt(966, 545));  // all counts since the press
  signals_.clear();
  ReleaseFire();
  EXPECT_WIRE(kFireUp);  // the view contact waits for counts
  EXPECT_EQ(QStringList({"stop listening", "give counts back"}), signals_);
  Play("rel 7,7; rel 1,1");
  EXPECT_WIRE(kViewOnCentre, "0ms 1:SLOTPRESS:1:1:1:1:641:361");
}

TEST_F(Fire, EachPressCountsAnew) {
  AddStaring();
  AddFire();
  StartFiring();
  Play("rel 50,50");
  ReleaseFire();
  PressFire();
  Play("rel 1,1");
  EXPECT_WIRE(FireAt(1010, 590), kFireUp, FireAt(960, 540), kViewUp, FireAt(961, 541));
}

TEST_F(Fire, CountsWithinTheIntervalAreSummedUp) {
  AddStaring();
  AddFire()->move_interval_ms = 10;
  StartFiring();
  Play("rel 1,1; wait 9; rel 1,1");
  EXPECT_WIRE(FireAt(961, 541));
  Play("wait 1; rel 1,1");
  EXPECT_WIRE("10ms 1:SLOTPRESS:3:3:1:1:963:543");
  // The interval continues through a release. A press itself is not delayed.
  ReleaseFire();
  Play("wait 9");
  PressFire();
  Forget();
  Play("rel 1,1; wait 1; rel 1,1");
  EXPECT_WIRE("20ms 1:SLOTPRESS:3:3:1:1:962:542");
}

TEST_F(Fire, FollowsTheSensitivityOfTheView) {
  auto* staring = AddStaring();
  staring->sensitivity_x = 150;
  staring->sensitivity_y = 50;
  AddFire();
  StartFiring();
  Play("rel 3,3; rel -6,-6");  // 4.5 and 1.5 round to 5 and 2; -4.5 and -1.5 to -4 and -1
  EXPECT_WIRE(FireAt(965, 542), FireAt(956, 539));
  SetHandyStaringSensitivity(2.0, 2.0);  // two hundred per cent on both axes
  Play("rel 0,0");
  EXPECT_WIRE(FireAt(954, 534));
}

TEST_F(Fire, PressPoints) {
  const struct {
    const char* name;
    QPointF point;
    QPointF alternative;
    QPoint expected;
  } rows[] = {
      {"the item's", {0.75, 0.75}, {0, 0}, {960, 540}},
      {"cut, not rounded", {0.7509, 0.7507}, {0, 0}, {961, 540}},  // 961.152, 540.504
      {"the alternative", {0.75, 0.75}, {0.5, 0.25}, {640, 180}},
      {"the alternative, cut", {0.75, 0.75}, {0.2507, 0.2507}, {320, 180}},  // 320.896, 180.504
      {"one of its two is enough", {0.75, 0.75}, {0, 0.25}, {0, 180}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    AddStaring();
    FireConfigItem* item = AddFire();
    item->rel_x = row.point.x();
    item->rel_y = row.point.y();
    item->alt_rel_x = row.alternative.x();
    item->alt_rel_y = row.alternative.y();
    Stare();
    PressFire();
    Play("rel 2,3");
    ReleaseFire();
    EXPECT_WIRE(FireAt(row.expected.x(), row.expected.y()), kViewUp, FireAt(row.expected.x() + 2, row.expected.y() + 3),
                kFireUp);
  }
}

TEST_F(Fire, PointsAreOfTheDisplay) {
  AddStaring();
  FireConfigItem* item = AddFire();
  item->range_mode = "";
  item->range_radius = 0.125;
  Play("guest 720x1280; window 720x1280; touchpanel 1280x720; rotation 90");
  Stare();
  PressFire();
  Play("rel 1000,0");
  // (540, 960): three quarters each way; turned (1 - 0.75) * 1280, 0.75 * 720.
  // The radius is 160 of the height 1280: (700, 960), and 700 / 720 of 720.
  EXPECT_WIRE(FireAt(320, 540), kViewUp, FireAt(320, 700));
}

// ---- The range ----

TEST_F(Fire, TheCircleLimitsTheWayFromTheButton) {
  for (const char* mode : {"Fire_range_dependent_swipehold", "anything"}) {
    SCOPED_TRACE(mode);
    AddStaring();
    FireConfigItem* item = AddFire();
    item->range_mode = mode;
    item->range_radius = 0.125;  // 90 pixels
    StartFiring();
    Play("rel 90,0; rel 1,0");  // on the circle, and beyond
    EXPECT_WIRE(FireAt(1050, 540), FireAt(1050, 540));
    Play("rel -1,120");  // (90, 120) is 150 long: (90 * 90 / 150, 120 * 90 / 150) = (54, 72)
    EXPECT_WIRE(FireAt(1014, 612));
    Play("rel -180,-240");  // (-90, -120): the counts are those since the press
    EXPECT_WIRE(FireAt(906, 468));
    ReleaseFire();
  }
}

TEST_F(Fire, TheLimitedPointIsRoundedHalvesAwayFromZero) {
  AddStaring();
  FireConfigItem* item = AddFire();
  item->range_mode = "";
  item->range_radius = 0.15625;  // 112.5 pixels
  StartFiring();
  Play("rel 1000,0; rel -2000,0");
  EXPECT_WIRE(FireAt(1073, 540), FireAt(847, 540));  // 113 either way
}

TEST_F(Fire, WithoutLimitTheCircleIsNotLookedAt) {
  AddStaring();
  AddFire()->range_radius = 0.125;
  StartFiring();
  Play("rel 91,0; rel 1000,-2000");
  EXPECT_WIRE(FireAt(1051, 540), FireAt(2051, -1460));
}

TEST_F(Fire, ACircleWithoutRadiusHoldsTheFingerOnTheButton) {
  AddStaring();
  AddFire()->range_mode = "";
  StartFiring();
  Play("rel 0,0; rel 30,40");
  EXPECT_WIRE(FireAt(960, 540), FireAt(960, 540));
}

// ---- The one-off offset ----

class FireOffset : public Fire {
 protected:
  // Threshold 11.25 pixels, length 45. A count is 1.25 pixels.
  FireConfigItem* AddOffsetFire() {
    auto* staring = AddStaring();
    staring->sensitivity_x = 125;
    staring->sensitivity_y = 125;
    FireConfigItem* item = AddFire();
    item->offset_enabled = true;
    item->offset_threshold = 0.015625;
    item->offset_length = 0.0625;
    return item;
  }
};

TEST_F(FireOffset, IsTakenOnceAtTheThreshold) {
  AddOffsetFire();
  StartFiring();
  // 8 counts: 10 pixels. 9 counts: 11.25, the threshold itself; with the jump of 45, 960 + 45 + 11. 10: 12.5 rounds up.
  Play("rel 8,0; rel 1,0; rel 1,0");
  EXPECT_WIRE(FireAt(970, 540), FireAt(1016, 540), FireAt(1018, 540));
  Play("rel -30,0");  // -20 counts, -25 pixels: the jump is not repeated
  EXPECT_WIRE(FireAt(980, 540));
}

TEST_F(FireOffset, GoesTheWayOfTheRawCounts) {
  AddOffsetFire();
  StartFiring();
  SetHandyStaringSensitivity(1.0, 2.0);  // a count down is 2 pixels
  Play("rel 9,12");
  // (9, 12) is 15 long: (9 * 45 / 15, 12 * 45 / 15) = (27, 36), whatever the sensitivities make of it.
  // 960 + 27 + 11 (11.25), 540 + 36 + 24.
  EXPECT_WIRE(FireAt(998, 600));
}

TEST_F(FireOffset, BothAxesMakeUpTheTravel) {
  AddOffsetFire();
  StartFiring();
  Play("rel 5,7");  // 6.25 and 8.75: 10.75 together
  EXPECT_WIRE(FireAt(966, 549));
  Play("rel 1,1");  // 7.5 and 10: 12.5. (6, 8) is 10 long: (27, 36). 7.5 rounds to 8.
  EXPECT_WIRE(FireAt(995, 586));
}

TEST_F(FireOffset, NeedsADirectionEvenWithoutThreshold) {
  AddOffsetFire()->offset_threshold = 0;
  StartFiring();
  Play("rel 0,0; rel 0,4");
  EXPECT_WIRE(FireAt(960, 540), FireAt(960, 590));  // 540 + 45 + 5
}

TEST_F(FireOffset, IsTakenAnewAtEachPress) {
  AddOffsetFire();
  StartFiring();
  Play("rel 12,0");
  ReleaseFire();
  PressFire();
  Play("rel 0,0; rel 0,12");
  EXPECT_WIRE(FireAt(1020, 540), kFireUp, FireAt(960, 540), kViewUp, FireAt(960, 540), FireAt(960, 600));
}

TEST_F(FireOffset, IsOff) {
  AddOffsetFire()->offset_enabled = false;
  StartFiring();
  Play("rel 12,0");
  EXPECT_WIRE(FireAt(975, 540));
}

TEST_F(FireOffset, CountsInsideTheCircleAndMovesIt) {
  FireConfigItem* item = AddOffsetFire();
  item->range_mode = "Fire_range_dependent_swipehold";
  item->range_radius = 0.125;  // 90 pixels
  StartFiring();
  Play("rel 9,0");  // 45 + 11 is inside the circle: 960 + 56, and the offset once more
  EXPECT_WIRE(FireAt(1061, 540));
  Play("rel 191,0");  // 45 + 250 is not: 960 + 90, and the offset
  EXPECT_WIRE(FireAt(1095, 540));
}

// ---- Presses that do nothing ----

TEST_F(Fire, ASecondFireKeyIsIgnoredWhileOneIsHeld) {
  AddStaring();
  AddFire();
  StartFiring();
  FireConfigItem other;
  other.type = "Fire";
  other.rel_x = 0.5;
  Press(&other);
  EXPECT_WIRE_NONE();
  Play("rel 1,1");
  EXPECT_WIRE(FireAt(961, 541));
}

TEST_F(Fire, OutsideViewControlTheKeyDoesNothing) {
  AddStaring();
  AddObserve();
  FireConfigItem fire;
  fire.type = "Fire";
  fire.rel_x = 0.5;
  Load();  // off
  Press(&fire);
  EXPECT_WIRE_NONE();
  Play("down E");  // observing
  Forget();
  Press(&fire);
  EXPECT_WIRE_NONE();
  Load();  // no view control at all
  Press(&fire);
  EXPECT_WIRE_NONE();
}

TEST_F(Fire, RecordsOfOtherClassesAreNoItems) {
  AddStaring();
  Stare();
  ConfigItem plain;
  plain.type = "Fire";
  Press(&plain);
  plain.type = "SpellCancel";
  Press(&plain);
  FireSyncWorker::GetInstance()->OnFirePress(nullptr);
  FireSyncWorker::GetInstance()->OnFireRelativeInput(5, 5);
  EXPECT_WIRE_NONE();
  EXPECT_TRUE(signals_.isEmpty());
}

TEST_F(Fire, AReleaseWithoutPressLiftsAllTheSame) {
  AddStaring();
  AddFire();
  Stare();
  ReleaseFire();
  EXPECT_WIRE(kFireUp);
  EXPECT_TRUE(signals_.isEmpty());
}

TEST_F(Fire, CountsRunOnPastTheRangeOfAnInt) {
  constexpr int kHighest = std::numeric_limits<int>::max();
  AddStaring();
  FireConfigItem* item = AddFire();
  item->range_mode = "";
  item->range_radius = 0.125;
  item->offset_enabled = true;
  item->offset_length = 1e300;
  StartFiring();
  OnWindowsWmRelativeInputEvent(kHighest, kHighest);
  OnWindowsWmRelativeInputEvent(1, kHighest);
  item = AddFire();
  item->range_radius = 0.125;
  item->range_mode = "";
  AddStaring();
  ReleaseFire();
  StartFiring();
  OnWindowsWmRelativeInputEvent(kHighest, 0);
  OnWindowsWmRelativeInputEvent(1, 0);               // the lowest of all
  EXPECT_WIRE(FireAt(1050, 540), FireAt(870, 540));  // the circle holds both
}

// ---- Its steps, one by one ----

TEST_F(Fire, TheButtonIsTheItemsPointUnlessItHasAnother) {
  FireConfigItem item;
  item.rel_x = 0.75;
  item.rel_y = 0.75;
  EXPECT_EQ(QPoint(960, 540), FireSyncWorker::GetInstance()->FirePressPoint(&item));
  item.alt_rel_x = 0.25;
  EXPECT_EQ(QPoint(320, 0), FireSyncWorker::GetInstance()->FirePressPoint(&item));
  EXPECT_EQ(QPoint(), FireSyncWorker::GetInstance()->FirePressPoint(nullptr));
}

TEST_F(Fire, ASwipeHasTheItemsNumberOfSteps) {
  FireConfigItem item;
  item.cancel_swipe_steps = 2;
  Load();
  FireSyncWorker::GetInstance()->SwipeFireFinger(&item, {960, 540}, {160, 180});
  EXPECT_WIRE(FireAt(560, 360), FireAt(160, 180));
  item.cancel_swipe_steps = 0;
  FireSyncWorker::GetInstance()->SwipeFireFinger(&item, {960, 540}, {160, 180});
  FireSyncWorker::GetInstance()->SwipeFireFinger(nullptr, {960, 540}, {160, 180});
  EXPECT_WIRE_NONE();
}

}  // namespace
}  // namespace taviinputmanager
