// A walk after its first slide: changes of keys, the rest on the centre, the gap between two walks.
#include "simulators/walk/swipehold_async_worker.h"
#include "tests/simulators/walk/swipehold_story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::SwipeholdConfigItem;

class SwipeholdWalk : public SwipeholdStory {};

// ---- Subsequent moves. As items come, 4 ticks of 8 ms, the last of them on the exact target. ----

// From (256, 232) to (347, 269): (22.75, 9.25) a tick.
TEST_F(SwipeholdWalk, ANewKeySlidesToTheNewTarget) {
  AddWalk();
  Load();
  RestAt("W");
  Play("down D; wait 7");
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE(At(208, 279, 241));  // (278.75, 241.25)
  Play("wait 23");
  EXPECT_WIRE(At(216, 302, 251), At(224, 324, 260));  // (301.5, 250.5), (324.25, 259.75)
  Play("wait 1");
  EXPECT_WIRE(At(232, 347, 269));
  Play("wait 1000");
  EXPECT_WIRE_NONE();
}

TEST_F(SwipeholdWalk, AReleaseSlidesBack) {
  AddWalk();
  Load();
  Play("down W; down D; wait 200");
  Forget();
  Play("up D; wait 32");  // (-22.75, -9.25) a tick
  EXPECT_WIRE(At(208, 324, 260), At(216, 302, 251), At(224, 279, 241), At(232, 256, 232));
}

// After two ticks the contact is at (301.5, 250.5); W is released: to (384, 360), (20.625, 27.375) per tick. The timer
// continues, so that the next tick is 8 ms after the last, and the count starts again.
TEST_F(SwipeholdWalk, AChangeOnTheWayStartsFromWhereTheFingerIs) {
  AddWalk();
  Load();
  RestAt("W");
  Play("down D; wait 20");
  EXPECT_WIRE(At(208, 279, 241), At(216, 302, 251));
  Play("up W; wait 28");
  EXPECT_WIRE(At(224, 322, 278), At(232, 343, 305), At(240, 363, 333), At(248, 384, 360));
  Play("wait 1000");
  EXPECT_WIRE_NONE();
}

TEST_F(SwipeholdWalk, TheLastKeyOnTheWayLiftsAtOnce) {
  AddWalk();
  Load();
  RestAt("W");
  Play("down D; wait 10; up D; up W");
  EXPECT_WIRE(At(208, 279, 241), Up(210));
  Play("wait 1000");
  EXPECT_WIRE_NONE();
}

TEST_F(SwipeholdWalk, TheLastKeyOnTheWayMayRestOnTheCentre) {
  AddWalk()->hold_center_ms = 50;
  Load();
  RestAt("W");
  Play("down D; wait 10; up D; up W; wait 49");
  EXPECT_WIRE(At(208, 279, 241), At(210, 256, 360));
  Play("wait 1");
  EXPECT_WIRE(Up(260));
}

TEST_F(SwipeholdWalk, AMoveOfOneTickOrLessIsAJumpOnItsTick) {
  for (const int steps : {1, 0, -4}) {
    AddWalk()->subsequent_steps = steps;
    Load();
    RestAt("W");
    Play("down D; wait 7");
    EXPECT_WIRE_NONE();
    Play("wait 1");
    EXPECT_WIRE(At(208, 347, 269));
    Play("wait 100");
    EXPECT_WIRE_NONE();
    Play("up D; up W");
  }
}

TEST_F(SwipeholdWalk, AnyOtherModeJumpsAtOnce) {
  AddWalk()->subsequent_mode = "Click";
  Load();
  RestAt("W");
  Play("down D; wait 10; up D; wait 10; up W; wait 100");
  EXPECT_WIRE(At(200, 347, 269), At(210, 256, 232), Up(220));
}

// A press depends on the mode of its own item, everything else on that of the item that the walk began with; and so
// does the stick, which does not move.
TEST_F(SwipeholdWalk, TwoItemsShareOneFinger) {
  AddWalk();
  SwipeholdConfigItem* other = Add<SwipeholdConfigItem>("Swipehold", {}, {0.6, 0.5});
  SetKeys(other, "I", "J", "K", "L");
  other->subsequent_mode = "Click";
  Load();
  RestAt("W");
  Play("down L");
  EXPECT_WIRE(At(200, 347, 269));
  Play("up L; wait 32");
  EXPECT_WIRE(At(208, 324, 260), At(216, 302, 251), At(224, 279, 241), At(232, 256, 232));
}

TEST_F(SwipeholdWalk, AReleaseWithoutPressIsIgnored) {
  AddWalk();
  Load();
  Play("up W; wait 100");
  EXPECT_WIRE_NONE();
}

// ---- Opposite keys ----

TEST_F(SwipeholdWalk, OppositeKeysKeepTheFingerOnTheCentre) {
  AddWalk();
  Load();
  RestAt("W");
  Play("down S; wait 100");  // 128 / 4 = 32 a tick
  EXPECT_WIRE(At(208, 256, 264), At(216, 256, 296), At(224, 256, 328), At(232, 256, 360));
  Play("up W; wait 32");
  EXPECT_WIRE(At(308, 256, 392), At(316, 256, 424), At(324, 256, 456), At(332, 256, 488));
}

TEST_F(SwipeholdWalk, OppositeKeysFollowTheLastOne) {
  AddWalk()->opposite_keys_mode = "Just_Use_Last";
  Load();
  RestAt("W");
  Play("down S; wait 100");  // 256 / 4 = 64 a tick
  EXPECT_WIRE(At(208, 256, 296), At(216, 256, 360), At(224, 256, 424), At(232, 256, 488));
  Play("up S; wait 100");  // the key that is left
  EXPECT_WIRE(At(308, 256, 424), At(316, 256, 360), At(324, 256, 296), At(332, 256, 232));
}

// ---- The rest on the centre ----

TEST_F(SwipeholdWalk, MayRestOnTheCentreBeforeTheFingerGoesUp) {
  AddWalk()->hold_center_ms = 50;
  Load();
  RestAt("W");
  Play("up W; wait 49");
  EXPECT_WIRE(At(200, 256, 360));
  Play("wait 1");
  EXPECT_WIRE(Up(250));
  Play("wait 500");
  EXPECT_WIRE_NONE();
}

TEST_F(SwipeholdWalk, AKeyDuringTheRestBeginsANewWalk) {
  AddWalk()->hold_center_ms = 50;
  Load();
  RestAt("W");
  Play("up W; wait 20; down D; wait 32");
  EXPECT_WIRE(At(200, 256, 360), At(220, 256, 360), At(252, 277, 360));  // and no release at 250
}

// ---- The gap between two walks ----

TEST_F(SwipeholdWalk, ANewWalkWaitsForTheGap) {
  AddWalk()->press_gap_ms = 50;
  Load();
  Play("wait 50");
  Play("down W; wait 200");
  Forget();
  Play("up W; wait 20; down W");
  EXPECT_WIRE(Up(250), At(300, 256, 360));  // the press at 270 has slept for 30 ms
  Play("wait 32");
  EXPECT_WIRE(At(332, 256, 339));
}

TEST_F(SwipeholdWalk, TheGapIsOverAtItsLastMillisecond) {
  AddWalk()->press_gap_ms = 50;
  Load();
  Play("wait 50; down W; wait 200; up W; wait 49");
  Forget();
  Play("down W");
  EXPECT_WIRE(At(300, 256, 360));  // pressed at 299
  Play("wait 200; up W; wait 50");
  Forget();
  Play("down W");
  EXPECT_WIRE(At(550, 256, 360));  // released at 500
}

TEST_F(SwipeholdWalk, TheGapCountsFromTheStartToo) {
  AddWalk()->press_gap_ms = 50;
  Load();
  Play("wait 20; down W");
  EXPECT_WIRE(At(50, 256, 360));
}

TEST_F(SwipeholdWalk, AWalkThatRestedOnTheCentreLeavesNoGap) {
  SwipeholdConfigItem* item = AddWalk();
  item->press_gap_ms = 500;
  item->hold_center_ms = 50;
  Load();
  Play("wait 500");
  RestAt("W");
  Play("up W; wait 60; down W");
  EXPECT_WIRE(At(700, 256, 360), Up(750), At(760, 256, 360));
}

// The previous walk's rest is what matters.
TEST_F(SwipeholdWalk, AWalkWithoutRestLeavesAGapToOneThatHasIt) {
  AddWalk();
  SwipeholdConfigItem* other = Add<SwipeholdConfigItem>("Swipehold", {}, {0.6, 0.5});
  SetKeys(other, "I", "J", "K", "L");
  other->press_gap_ms = 50;
  other->hold_center_ms = 30;
  Load();
  RestAt("W");
  Play("up W; wait 20; down I");
  EXPECT_WIRE(Up(200), At(250, 768, 360));
}

TEST_F(SwipeholdWalk, TheGapIsNotAskedForWithinAWalk) {
  AddWalk()->press_gap_ms = 50;
  Load();
  Play("wait 50");
  RestAt("W");
  Play("up W; down W");  // at 300, a gap later
  Forget();
  Play("down D; wait 32");  // during the slide
  EXPECT_WIRE(At(332, 271, 345));
}

TEST_F(SwipeholdWalk, AWalkStoppedFromOutsideLeavesNoGap) {
  AddWalk()->press_gap_ms = 50;
  Load();
  Play("wait 50");
  RestAt("W");
  SwipeholdAsyncWorker::GetInstance(0)->StopAndRelease();
  Play("down D");
  EXPECT_WIRE(Up(250), At(250, 256, 360));
}

// The rest on the centre ends at 250. The walk at 260 keeps no gap after it, because the previous one rested; that at
// 270 keeps none either, because the end of the rest is not a release to count from.
TEST_F(SwipeholdWalk, TheEndOfTheRestStartsNoGap) {
  AddWalk()->hold_center_ms = 50;
  auto* other = Add<SwipeholdConfigItem>("Swipehold", {}, {0.6, 0.5});
  SetKeys(other, "I", "J", "K", "L");
  other->press_gap_ms = 100;
  Load();
  RestAt("W");
  Play("up W; wait 60; down I");
  EXPECT_WIRE(At(200, 256, 360), Up(250), At(260, 768, 360));
  SwipeholdAsyncWorker::GetInstance(0)->StopAndRelease();
  Play("wait 10; down L");
  EXPECT_WIRE(Up(260), At(270, 768, 360));
}

// ---- Transparent ----

TEST_F(SwipeholdWalk, ATransparentWalkIsFourKeysOfTheGuest) {
  SwipeholdConfigItem* item = AddWalk();
  item->press_mode = "Transparent";
  item->key_up = Key("Up");
  Load();
  Play("down Up; down A; wait 500; up Up; up A");  // scan codes 328 and 30 are the guest's 103 and 30
  EXPECT_WIRE("0ms 1:KBDPR:103:1", "0ms 1:KBDPR:30:1", "500ms 1:KBDRL:103:0", "500ms 1:KBDRL:30:0");
}

TEST_F(SwipeholdWalk, AResetReleasesItsHeldKeys) {
  AddWalk()->press_mode = "Transparent";
  Load();
  Play("down W; down A; up W; reset");
  EXPECT_EQ("0ms 1:KBDRL:30:0", TakeWire().last().toStdString());  // W is up, A is not
  Play("reset");
  EXPECT_EQ("0ms 1:SLOTRELEASE:10", TakeWire().last().toStdString());
}

}  // namespace
}  // namespace taviinputmanager
