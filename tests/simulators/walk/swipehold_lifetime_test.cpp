// Resets and keymap loads in the middle of a walk. They clear the keys and stop no timer; the remaining ticks belong to
// a walk whose item was deleted.
#include <memory>

#include "core/input_status_manager.h"
#include "simulators/walk/swipehold_async_worker.h"
#include "simulators/walk/swipehold_event_simulator.h"
#include "tests/simulators/walk/swipehold_story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::SwipeholdConfigItem;

class SwipeholdLifetime : public SwipeholdStory {
 protected:
  // Another keymap, whose stick is at (1280 * 0.6, 360) = (768, 360). Time zero is now.
  SwipeholdConfigItem* LoadAnother() {
    SwipeholdConfigItem* item = AddWalk({0.6, 0.5});
    Load();
    return item;
  }
};

// ---- Resets ----

TEST_F(SwipeholdLifetime, AResetEndsASlideAtItsNextTick) {
  AddWalk();
  Load();
  Play("down W; wait 40");
  Reset();
  Play("wait 7");
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE(Up(48));
  Play("wait 500; up W");
  EXPECT_WIRE_NONE();
}

TEST_F(SwipeholdLifetime, AResetSlideMayRestOnTheCentre) {
  AddWalk()->hold_center_ms = 50;
  Load();
  Play("down W; wait 40");
  Reset();
  Play("wait 500");
  EXPECT_WIRE(At(48, 256, 360), Up(98));
}

TEST_F(SwipeholdLifetime, AResetLetsAMoveGoOnToItsTime) {
  AddWalk();
  Load();
  RestAt("W");
  Play("down D; wait 10");
  Reset();
  Play("wait 500");
  EXPECT_WIRE(At(216, 302, 251), At(224, 324, 260), Up(232));
}

TEST_F(SwipeholdLifetime, AResetLetsTheRestOnTheCentreGoOn) {
  AddWalk()->hold_center_ms = 50;
  Load();
  RestAt("W");
  Play("up W; wait 10");
  Reset();
  Play("wait 500");
  EXPECT_WIRE(Up(250));
}

TEST_F(SwipeholdLifetime, AResetLetsAWiggleGoOn) {
  SwipeholdConfigItem* item = AddWalk();
  item->compensate = true;
  item->compensate_amplitude = 0.5;
  item->compensate_rounds = 1;
  Load();
  Play("down D; wait 140");  // 5 ticks from 120 on, two of them to come
  Reset();
  Play("wait 500");
  EXPECT_WIRE(At(144, 352, 360), At(152, 384, 360));
}

TEST_F(SwipeholdLifetime, AKeyAfterAResetBeginsANewWalk) {
  AddWalk();
  Load();
  RestAt("W");
  Reset();
  Play("down D; wait 32");
  EXPECT_WIRE(At(200, 256, 360), At(232, 277, 360));
}

// The old move ends at the target of the new key, and the slide continues from its own position.
TEST_F(SwipeholdLifetime, ANewWalkLeavesAMoveThatGoesOnToItsTime) {
  AddWalk();
  Load();
  RestAt("W");
  Play("down D; wait 10");
  Reset();
  Play("down A; wait 32");
  EXPECT_WIRE(At(210, 256, 360), At(216, 302, 251), At(224, 324, 260), At(232, 128, 360), At(242, 235, 360));
}

TEST_F(SwipeholdLifetime, AResetClickLiftsAtItsTime) {
  AddWalk()->press_mode = "Click";
  Load();
  Play("down W; wait 10");
  Reset();
  Play("wait 21");
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE(Up(32));
  Play("wait 500");
  EXPECT_WIRE_NONE();
}

// ---- The radius switch ----

TEST_F(SwipeholdLifetime, TheRadiusSwitchMovesAStickAtRestAtOnce) {
  AddWalk();
  Load();
  RestAt("D");
  InputStatusManager::GetInstance()->ToggleSwipeholdFactor(1.5);  // 192
  EXPECT_WIRE(At(200, 448, 360));
  Play("wait 10");
  InputStatusManager::GetInstance()->ToggleSwipeholdFactor(1.5);
  EXPECT_WIRE(At(210, 384, 360));
}

TEST_F(SwipeholdLifetime, TheRadiusSwitchReachesASlideAtItsTarget) {
  AddWalk();
  Load();
  Play("down D; wait 90");
  Forget();
  InputStatusManager::GetInstance()->ToggleSwipeholdFactor(1.5);
  Play("wait 22");
  EXPECT_WIRE(At(96, 361, 360), At(112, 448, 360));
}

TEST_F(SwipeholdLifetime, TheRadiusSwitchReachesAMoveAtItsTarget) {
  AddWalk();
  Load();
  RestAt("W");
  Play("down D; wait 20");
  Forget();
  InputStatusManager::GetInstance()->ToggleSwipeholdFactor(1.5);  // diagonally 91 * 1.5 = 136.5, cut
  Play("wait 12");
  EXPECT_WIRE(At(224, 324, 260), At(232, 392, 224));
}

TEST_F(SwipeholdLifetime, TheRadiusSwitchLeavesAStickThatIsLetGo) {
  AddWalk();
  Load();
  RestAt("D");
  Play("up D");
  Forget();
  InputStatusManager::GetInstance()->ToggleSwipeholdFactor(1.5);
  EXPECT_WIRE_NONE();
  Play("down D; wait 48");  // 192 / 6 = 32
  EXPECT_WIRE(At(200, 256, 360), At(232, 288, 360), At(248, 320, 360));
}

TEST_F(SwipeholdLifetime, AResetTurnsTheRadiusSwitchOff) {
  AddWalk();
  Load();
  RestAt("D");
  InputStatusManager::GetInstance()->ToggleSwipeholdFactor(1.5);
  Reset();
  EXPECT_EQ(1.0, InputStatusManager::GetInstance()->GetSwipeholdFactor());
  Play("down D; wait 112");
  EXPECT_EQ(At(312, 384, 360), TakeWire().last());
}

// ---- Keymap loads: the old items are deleted before the reset runs ----

TEST_F(SwipeholdLifetime, ALoadEndsASlideAtItsNextTick) {
  AddWalk();
  Load();
  Play("down W; wait 40");
  LoadAnother();
  Play("wait 7");
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE(Up(8));
  Play("up W; wait 500");  // its press belonged to another keymap
  EXPECT_WIRE_NONE();
}

TEST_F(SwipeholdLifetime, ALoadedSlideRestsOnItsOwnCentre) {
  AddWalk()->hold_center_ms = 50;
  Load();
  Play("down W; wait 40");
  LoadAnother();
  Play("wait 500");
  EXPECT_WIRE(At(8, 256, 360), Up(58));
}

TEST_F(SwipeholdLifetime, AKeyRightAfterALoadWalksByTheNewKeymap) {
  AddWalk();
  Load();
  Play("down W; wait 40");
  LoadAnother()->first_press_steps = 4;  // 32 pixels each
  Play("down D; wait 80");
  EXPECT_WIRE(At(0, 768, 360), At(32, 800, 360), At(48, 832, 360), At(64, 864, 360), At(80, 896, 360));
}

TEST_F(SwipeholdLifetime, ALoadLetsAMoveGoOnToItsTime) {
  AddWalk();
  Load();
  RestAt("W");
  Play("down D; wait 10");
  LoadAnother()->subsequent_steps = 100;  // not part of this move
  Play("wait 500");
  EXPECT_WIRE(At(6, 302, 251), At(14, 324, 260), Up(22));
}

TEST_F(SwipeholdLifetime, ALoadLetsTheRestOnTheCentreGoOn) {
  AddWalk()->hold_center_ms = 50;
  Load();
  RestAt("W");
  Play("up W; wait 10");
  LoadAnother();
  Play("wait 39");
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE(Up(40));
}

TEST_F(SwipeholdLifetime, ALoadLetsAWiggleGoOn) {
  SwipeholdConfigItem* item = AddWalk();
  item->compensate = true;
  item->compensate_amplitude = 0.5;
  item->compensate_rounds = 1;
  Load();
  Play("down D; wait 140");
  LoadAnother();
  Play("wait 500");
  EXPECT_WIRE(At(4, 352, 360), At(12, 384, 360));
}

// The walk that began before the load determines how long the next must wait; it had no rest on the centre.
TEST_F(SwipeholdLifetime, TheGapIsKeptAcrossALoad) {
  AddWalk();
  Load();
  RestAt("W");
  Play("up W; wait 10");
  LoadAnother()->press_gap_ms = 50;
  Play("down W");
  EXPECT_WIRE(At(40, 768, 360));
}

// An inner walk is entered, its item and the walk's are deleted, and then keys are pressed and released.
TEST_F(SwipeholdLifetime, NoEntryOutlivesItsItem) {
  SwipeholdEventSimulator* simulator = SwipeholdEventSimulator::GetInstance();
  SwipeholdAsyncWorker* inner = SwipeholdAsyncWorker::GetInstance(1);
  AddWalk();
  Load();
  Play("down W; wait 40");
  auto item = std::make_unique<SwipeholdConfigItem>();
  item->rel_x = 0.8;
  item->rel_y = 0.5;
  SetKeys(item.get(), "W", "A", "S", "D");
  inner->SetItem(item.get());
  simulator->AddWorker(inner, item.get());
  item.reset();
  simulator->EntrustToInner();
  LoadAnother();  // the inner walk's keys outlive the reset
  simulator->CancelEntrustToInner();
  EXPECT_WIRE(At(0, 256, 360), Up(0, 6));  // with the copy of the old item
  Play("wait 1; down D; wait 31");         // within a walk, so that the stick stays; the entry begins a walk
  EXPECT_WIRE(At(1, 1024, 360, 6), At(32, 271, 345));
  simulator->RemoveWorker(inner);
  Play("up D; up W; wait 500");
  Forget();
  Play("down D");
  EXPECT_WIRE(At(532, 768, 360));
}

}  // namespace
}  // namespace taviinputmanager
