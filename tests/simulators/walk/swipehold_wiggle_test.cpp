// The wiggle of a contact that has reached its target.
#include "core/input_status_manager.h"
#include "simulators/walk/swipehold_async_worker.h"
#include "tests/simulators/walk/swipehold_story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::SwipeholdConfigItem;

class SwipeholdWiggle : public SwipeholdStory {
 protected:
  // Half the radius in and back, in 5 ticks of 8 ms; once.
  SwipeholdConfigItem* AddWigglingWalk() {
    SwipeholdConfigItem* item = AddWalk();
    item->compensate = true;
    item->compensate_amplitude = 0.5;
    item->compensate_rounds = 1;
    item->compensate_steps = 3;
    item->compensate_interval_ms = 8;
    return item;
  }
  // The contact has just arrived at (384, 360). It is 112 ms.
  void Arrive() {
    Play("down D; wait 112");
    Forget();
  }
};

// From the centre at 256: 128, 96, 64, 96, 128.
TEST_F(SwipeholdWiggle, GoesInAndBack) {
  AddWigglingWalk();
  Load();
  Arrive();
  Play("wait 7");
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE(At(120, 384, 360));
  Play("wait 31");
  EXPECT_WIRE(At(128, 352, 360), At(136, 320, 360), At(144, 352, 360));
  Play("wait 1");
  EXPECT_WIRE(At(152, 384, 360));
  Play("wait 500");
  EXPECT_WIRE_NONE();
  Play("up D");
  EXPECT_WIRE(Up(652));
}

TEST_F(SwipeholdWiggle, GoesAsManyRoundsAsAsked) {
  AddWigglingWalk()->compensate_rounds = 2;
  Load();
  Arrive();
  Play("wait 80");
  EXPECT_EQ(10, TakeWire().size());
  Play("wait 500");
  EXPECT_WIRE_NONE();
}

TEST_F(SwipeholdWiggle, NoRoundIsOneTick) {
  AddWigglingWalk()->compensate_rounds = 0;
  Load();
  Arrive();
  Play("wait 500");
  EXPECT_WIRE(At(120, 384, 360));
}

TEST_F(SwipeholdWiggle, ANegativeNumberOfRoundsNeverEnds) {
  AddWigglingWalk()->compensate_rounds = -1;
  Load();
  Arrive();
  Play("wait 800");
  EXPECT_EQ(100, TakeWire().size());
  Play("up D; wait 500");
  EXPECT_WIRE(Up(912));
}

// t = 0, pi, 2 pi: x = t / 4 and y = t * t / 10 - 1/4, times 128 * 0.5.
TEST_F(SwipeholdWiggle, MayFollowTwoCurves) {
  SwipeholdConfigItem* item = AddWigglingWalk();
  item->curve_x = "X";
  item->factor_x = 0.25;
  item->curve_y = "X2";
  item->factor_y = 0.1;
  item->offset_y = -0.25;
  Load();
  Arrive();
  Play("wait 500");
  EXPECT_WIRE(At(120, 384, 344), At(128, 434, 407), At(136, 485, 597));
}

TEST_F(SwipeholdWiggle, OneStepMovesNothing) {
  AddWigglingWalk()->compensate_steps = 1;
  Load();
  Arrive();
  Play("wait 500");
  EXPECT_WIRE_NONE();
}

TEST_F(SwipeholdWiggle, NoStepMakesNoWiggle) {
  AddWigglingWalk()->compensate_steps = 0;
  Load();
  Arrive();
  Play("wait 500");
  EXPECT_WIRE_NONE();
}

// One tick all the same, at t = 0: y = -1/4, times 64.
TEST_F(SwipeholdWiggle, NoStepAlongTwoCurvesIsOneTick) {
  for (const int steps : {0, -1}) {
    SwipeholdConfigItem* item = AddWigglingWalk();
    item->compensate_steps = steps;
    item->curve_x = "X";
    item->curve_y = "X2";
    item->offset_y = -0.25;
    Load();
    Arrive();
    Play("wait 500");
    EXPECT_WIRE(At(120, 384, 344));
    Play("up D");
  }
}

TEST_F(SwipeholdWiggle, AReleaseStopsIt) {
  AddWigglingWalk();
  Load();
  Arrive();
  Play("wait 10; up D; wait 500");
  EXPECT_WIRE(At(120, 384, 360), Up(122));
}

// From (347, 269) back to (384, 360), (9.25, 22.75) a tick; then it begins again at its first tick.
TEST_F(SwipeholdWiggle, AReleaseThatLeavesAKeyStartsItAnewAtTheNewTarget) {
  AddWigglingWalk();
  Load();
  Play("down D; down W; wait 122");
  Forget();
  Play("up W; wait 32");  // 154
  EXPECT_WIRE(At(130, 356, 292), At(138, 366, 315), At(146, 375, 337), At(154, 384, 360));
  Play("wait 16");
  EXPECT_WIRE(At(162, 384, 360), At(170, 352, 360));
}

// The press at 123 does not stop it; its own tick at 128 does, because a move is in progress.
TEST_F(SwipeholdWiggle, AMoveStopsIt) {
  AddWigglingWalk();
  Load();
  Arrive();
  Play("wait 11; down W; wait 32");
  EXPECT_WIRE(At(120, 384, 360), At(131, 375, 337), At(139, 366, 315), At(147, 356, 292), At(155, 347, 269));
  Play("wait 16");  // (256 + 91 * 3/4, 360 - 91 * 3/4)
  EXPECT_WIRE(At(163, 347, 269), At(171, 324, 292));
}

// It has put the contact on (352, 360), but the move starts at (384, 360): (-9.25, -22.75) per tick.
TEST_F(SwipeholdWiggle, AMoveStartsFromWhereTheFingerRested) {
  AddWigglingWalk();
  Load();
  Arrive();
  Play("wait 17; down W; wait 8");
  EXPECT_WIRE(At(120, 384, 360), At(128, 352, 360), At(137, 375, 337));
}

TEST_F(SwipeholdWiggle, AJumpStartsItAnew) {
  AddWigglingWalk()->subsequent_mode = "Click";
  Load();
  Arrive();
  Play("wait 18; down W; wait 16");
  EXPECT_WIRE(At(120, 384, 360), At(128, 352, 360), At(130, 347, 269), At(138, 347, 269), At(146, 324, 292));
}

TEST_F(SwipeholdWiggle, EndsWhenANewWalkBegins) {
  SwipeholdConfigItem* item = AddWigglingWalk();
  item->hold_center_ms = 4;
  Load();
  Arrive();
  Play("wait 10; up D; wait 2; down D; wait 31");
  EXPECT_WIRE(At(120, 384, 360), At(122, 256, 360), At(124, 256, 360));
}

// ---- A reset forgets the keys, but the wiggle continues until the walk's next phase ends it. ----

// Its tick at 128 is within the slide of the new walk.
TEST_F(SwipeholdWiggle, ASlideStopsIt) {
  AddWigglingWalk();
  Load();
  Arrive();
  Play("wait 10");
  Reset();
  Play("down D; wait 32");
  EXPECT_WIRE(At(122, 256, 360), At(154, 277, 360));
}

// The move from 150 on runs through the reset, and ends without keys at 182. The tick at 212 is within the rest on the
// centre.
TEST_F(SwipeholdWiggle, TheRestOnTheCentreStopsIt) {
  SwipeholdConfigItem* item = AddWigglingWalk();
  item->compensate_interval_ms = 100;
  item->hold_center_ms = 100;
  Load();
  Arrive();
  Play("wait 38; down W; wait 10");
  Reset();
  Play("wait 500");
  EXPECT_WIRE(At(166, 366, 315), At(174, 356, 292), At(182, 256, 360), Up(282));
}

// Its tick at 212 finds the contact of the new walk at rest.
TEST_F(SwipeholdWiggle, EndsInANewWalkThatHasNone) {
  AddWigglingWalk()->compensate_interval_ms = 100;
  auto* other = Add<SwipeholdConfigItem>("Swipehold", {}, {0.6, 0.5});
  SetKeys(other, "I", "J", "K", "L");
  other->press_mode = "Click";
  other->first_press_delay_ms = 1;
  Load();
  Arrive();
  Reset();
  Play("down L; wait 500");
  EXPECT_WIRE(At(112, 768, 360), At(113, 896, 360));
}

TEST_F(SwipeholdWiggle, AReleaseThatIsIgnoredStopsItToo) {
  SwipeholdConfigItem* item = AddWigglingWalk();
  Load();
  Arrive();
  Play("wait 10");
  Reset();
  tavikeymapmanager::ConfigKey key = Key("D");
  SwipeholdAsyncWorker::GetInstance(0)->Release(item, &key);
  Play("wait 500");
  EXPECT_WIRE_NONE();
}

TEST_F(SwipeholdWiggle, IsNotMovedByTheRadiusSwitch) {
  AddWigglingWalk();
  Load();
  Arrive();
  Play("wait 10");
  InputStatusManager::GetInstance()->ToggleSwipeholdFactor(1.5);
  Play("wait 500");
  EXPECT_WIRE(At(120, 384, 360), At(128, 352, 360), At(136, 320, 360), At(144, 352, 360), At(152, 384, 360));
}

TEST_F(SwipeholdWiggle, IsOffByItself) {
  AddWigglingWalk()->compensate = false;
  Load();
  Arrive();
  Play("wait 500");
  EXPECT_WIRE_NONE();
}

}  // namespace
}  // namespace taviinputmanager
