// The inner walk of a cast, in parallel to the ordinary one.
#include "simulators/walk/swipehold_async_worker.h"
#include "simulators/walk/swipehold_event_simulator.h"
#include "slots/swipehold_slot_manager.h"
#include "tests/simulators/walk/swipehold_story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::SwipeholdConfigItem;

constexpr int kInnerSlot = 6;

class SwipeholdInnerWalk : public SwipeholdStory {
 protected:
  // The inner stick is at (1280 * 0.8, 360) = (1024, 360), with a radius of 1280 * 0.05 = 64, diagonally 45.
  static SwipeholdConfigItem MakeInner() {
    SwipeholdConfigItem item;
    item.rel_x = 0.8;
    item.rel_y = 0.5;
    item.radius = 0.05;
    SetKeys(&item, "W", "A", "S", "D");
    return item;
  }
  // Like a cast that begins to aim. Neither item outlives the call.
  void Entrust(bool exclusive, const SwipeholdConfigItem& item = MakeInner()) {
    simulator_->SetExclusiveInner(exclusive);
    inner_->SetItem(&item);
    simulator_->AddWorker(inner_, &item);
    simulator_->EntrustToInner();
  }

  // The inner walk has taken over the keys of `flags`, and its finger rests. It is 200 ms.
  void RestInside(const QPoint& flags) {
    const SwipeholdConfigItem item = MakeInner();
    inner_->SetItem(&item);
    inner_->ReplayDirections(flags);
    Play("wait 200");
    Forget();
  }

  static QString In(int ms, int x, int y) { return At(ms, x, y, kInnerSlot); }

  SwipeholdEventSimulator* simulator_ = SwipeholdEventSimulator::GetInstance();
  SwipeholdAsyncWorker* walk_ = SwipeholdAsyncWorker::GetInstance(0);
  SwipeholdAsyncWorker* inner_ = SwipeholdAsyncWorker::GetInstance(1);
};

TEST_F(SwipeholdInnerWalk, EachIndexHasItsOwnWorkerAndAllOthersShareOne) {
  EXPECT_EQ(SwipeholdAsyncWorker::GetInstance(3), SwipeholdAsyncWorker::GetInstance(7));
  EXPECT_EQ(3, SwipeholdAsyncWorker::GetInstance(3)->GetIndex());
  EXPECT_EQ(7, SwipeholdAsyncWorker::GetInstance(7)->GetIndex());
  EXPECT_NE(SwipeholdAsyncWorker::GetInstance(2), SwipeholdAsyncWorker::GetInstance(3));
  EXPECT_EQ(0, walk_->GetIndex());
  EXPECT_EQ(1, inner_->GetIndex());
}

// The inner walk slides 64 / 6 = 10.7, so 11 pixels a step.
TEST_F(SwipeholdInnerWalk, TakesOverTheKeysThatAreHeld) {
  AddWalk();
  Load();
  RestAt("W");
  Entrust(false);
  EXPECT_WIRE(In(200, 1024, 360));
  Play("wait 112");
  EXPECT_WIRE(In(232, 1024, 349), In(248, 1024, 338), In(264, 1024, 327), In(280, 1024, 316), In(296, 1024, 305),
              In(312, 1024, 296));
}

TEST_F(SwipeholdInnerWalk, TakesOverTwoKeysAsOneWalk) {
  AddWalk();
  Load();
  Play("down D; down W; wait 200");
  Forget();
  Entrust(false);
  Play("wait 112");  // 45 / 6 = 7.5: 8 to the right, -7 up
  const QStringList lines = TakeWire();
  ASSERT_EQ(7, lines.size());
  EXPECT_EQ(In(200, 1024, 360), lines[0]);
  EXPECT_EQ(In(232, 1032, 353), lines[1]);
  EXPECT_EQ(In(312, 1069, 315), lines[6]);
}

TEST_F(SwipeholdInnerWalk, WithoutKeysThereIsNothingToTakeOver) {
  AddWalk();
  Load();
  Entrust(false);
  Play("wait 500");
  EXPECT_WIRE_NONE();
}

TEST_F(SwipeholdInnerWalk, BothWalkOnUnlessItIsExclusive) {
  AddWalk();
  Load();
  RestAt("W");
  Entrust(false);
  Play("wait 200");
  Forget();
  // The walk from (256, 232) to (347, 269), the inner one from (1024, 296) to (1069, 315): (11.25, 4.75) a tick.
  Play("down D; wait 32");
  EXPECT_WIRE(At(408, 279, 241), In(408, 1035, 301), At(416, 302, 251), In(416, 1047, 306), At(424, 324, 260),
              In(424, 1058, 310), At(432, 347, 269), In(432, 1069, 315));
}

TEST_F(SwipeholdInnerWalk, AnExclusiveOneEndsTheWalkAndGetsTheKeysAlone) {
  AddWalk();
  Load();
  RestAt("W");
  Entrust(true);
  EXPECT_WIRE(In(200, 1024, 360), Up(200));
  Play("wait 200");
  Forget();
  Play("down D; wait 8; up D; up W; wait 500");
  EXPECT_WIRE(In(408, 1035, 301));
}

TEST_F(SwipeholdInnerWalk, ItsEndLeavesTheFingerToTheCast) {
  AddWalk();
  Load();
  Entrust(true);
  Play("down W; wait 200");
  Forget();
  Play("up W; wait 500");
  EXPECT_WIRE_NONE();
}

TEST_F(SwipeholdInnerWalk, ItsRestOnTheCentreLeavesTheFingerThere) {
  AddWalk();
  Load();
  SwipeholdConfigItem item = MakeInner();
  item.hold_center_ms = 50;
  Entrust(true, item);
  Play("down W; wait 200");
  Forget();
  Play("up W; wait 500");
  EXPECT_WIRE(In(200, 1024, 360));
}

TEST_F(SwipeholdInnerWalk, TheWalkTakesItsKeysBack) {
  AddWalk();
  Load();
  RestAt("W");
  Entrust(true);
  Play("wait 200; down D; wait 100");
  Forget();
  simulator_->CancelEntrustToInner();  // a new walk of its own, first up and then right
  EXPECT_WIRE(At(500, 256, 360), Up(500, kInnerSlot));
  Play("wait 112");
  EXPECT_WIRE(At(532, 271, 345), At(548, 286, 330), At(564, 301, 315), At(580, 316, 300), At(596, 331, 285),
              At(612, 347, 269));
}

TEST_F(SwipeholdInnerWalk, AWalkThatHasTheSameKeysGoesOn) {
  AddWalk();
  Load();
  RestAt("W");
  Entrust(false);
  Forget();
  simulator_->CancelEntrustToInner();  // its slide is cut short as well
  EXPECT_WIRE(Up(200, kInnerSlot));
  Play("wait 500");
  EXPECT_WIRE_NONE();
}

TEST_F(SwipeholdInnerWalk, WithoutOneThereIsNothingToTakeBack) {
  AddWalk();
  Load();
  RestAt("W");
  simulator_->CancelEntrustToInner();
  EXPECT_WIRE_NONE();
}

TEST_F(SwipeholdInnerWalk, RemovedItGetsNoFurtherKeys) {
  AddWalk();
  Load();
  Entrust(true);
  EXPECT_WIRE(Up(0));  // whether or not the walk had a key
  simulator_->RemoveWorker(inner_);
  simulator_->SetExclusiveInner(false);
  Play("down W; wait 32");
  EXPECT_WIRE(At(0, 256, 360), At(32, 256, 339));
}

TEST_F(SwipeholdInnerWalk, ItsKeysBecomeThoseOfTheWalk) {
  AddWalk();
  Load();
  SwipeholdConfigItem item = MakeInner();
  SetKeys(&item, "I", "J", "K", "L");
  Entrust(false, item);
  Play("down A; wait 32; up A; wait 16");
  // -128 / 6 = -21.3; -64 / 6 = -10.7
  EXPECT_WIRE(At(0, 256, 360), In(0, 1024, 360), At(32, 235, 360), In(32, 1013, 360), Up(48));
}

TEST_F(SwipeholdInnerWalk, ATransparentOneGetsNoKeys) {
  AddWalk();
  Load();
  SwipeholdConfigItem item = MakeInner();
  item.press_mode = "Transparent";
  Entrust(false, item);
  Play("down W; wait 32; up W; wait 16");
  EXPECT_WIRE(At(0, 256, 360), At(32, 256, 339), Up(48));
}

TEST_F(SwipeholdInnerWalk, ATransparentWalkGivesItNoKeys) {
  AddWalk()->press_mode = "Transparent";
  Load();
  Entrust(false);
  Play("down W; wait 100; up W");
  EXPECT_WIRE("0ms 1:KBDPR:17:1", "100ms 1:KBDRL:17:0");
}

TEST_F(SwipeholdInnerWalk, ASecondItemReplacesTheFirst) {
  AddWalk();
  Load();
  Entrust(false);
  SwipeholdConfigItem item = MakeInner();
  item.rel_x = 0.6;
  Entrust(false, item);
  Play("down W");
  EXPECT_WIRE(At(0, 256, 360), In(0, 768, 360));
}

TEST_F(SwipeholdInnerWalk, NoItemIsNoEntry) {
  AddWalk();
  Load();
  simulator_->AddWorker(inner_, nullptr);
  inner_->ReplayDirections({0, 16});  // there is no item whose keys could be pressed
  Play("down W");
  EXPECT_WIRE(At(0, 256, 360));
}

TEST_F(SwipeholdInnerWalk, WorkersAreServedInOrderOfIndex) {
  AddWalk();
  Load();
  SwipeholdConfigItem item = MakeInner();
  QVector<int> order;
  for (const int index : {2, 0, 1}) {
    SwipeholdAsyncWorker* worker = SwipeholdAsyncWorker::GetInstance(index);
    simulator_->AddWorker(worker, &item);
    QObject::connect(worker, &SwipeholdAsyncWorker::sigSwipeholdTargetPointChanged,
                     [&order, index](QPointF&) { order.append(index); });
  }
  Play("down W; wait 32");  // timers that are due at the same time tick in the order of their start
  EXPECT_EQ((QVector<int>{0, 1, 2}), order);
}

// Keys are pressed as those of a keyboard: gamepad keys are not among them, and an unknown key means right.
TEST_F(SwipeholdInnerWalk, TheKeysOfAGamepadAreTakenOverAsRight) {
  AddWalk();
  Load();
  SwipeholdConfigItem item = MakeInner();
  SetKeys(&item, "Pad Up", "Pad Left", "Pad Down", "Pad Right");
  inner_->SetItem(&item);
  inner_->ReplayDirections({0, 16});
  Play("wait 32");
  EXPECT_WIRE(In(0, 1024, 360), In(32, 1035, 360));
}

TEST_F(SwipeholdInnerWalk, WithoutAnItemThereAreNoKeysToTakeOver) {
  Load();
  const SwipeholdConfigItem item = MakeInner();
  inner_->SetItem(&item);
  inner_->SetItem(nullptr);
  inner_->ReplayDirections({0, 16});
  Play("wait 200");
  EXPECT_WIRE_NONE();
}

// 64 pixels in 6 steps: 10.7, and backwards -10.7.
TEST_F(SwipeholdInnerWalk, TakesOverEachDirectionByItsKey) {
  const struct {
    QPoint flags;
    QPoint first_step;
  } rows[] = {
      {{0, 16}, {1024, 349}},
      {{0, 1}, {1024, 371}},
      {{16, 0}, {1013, 360}},
      {{1, 0}, {1035, 360}},
  };
  Load();
  const SwipeholdConfigItem item = MakeInner();
  inner_->SetItem(&item);
  int ms = 0;
  for (const auto& row : rows) {
    inner_->ReplayDirections(row.flags);
    EXPECT_EQ(row.flags, inner_->GetDirections());
    Play("wait 32");
    ms += 32;
    EXPECT_EQ(In(ms, row.first_step.x(), row.first_step.y()), TakeWire().last());
    inner_->StopAndRelease();
  }
}

// Up is pressed before down, and left before right.
TEST_F(SwipeholdInnerWalk, OfOppositeKeysDownAndRightAreTheLast) {
  Load();
  SwipeholdConfigItem item = MakeInner();
  item.press_mode = "Click";
  item.opposite_keys_mode = "Just_Use_Last";
  inner_->SetItem(&item);
  inner_->ReplayDirections({0, 17});
  Play("wait 32");
  EXPECT_WIRE(In(0, 1024, 360), In(32, 1024, 424));
  inner_->StopAndRelease();
  inner_->ReplayDirections({17, 0});
  Play("wait 32");
  EXPECT_WIRE(Up(32, kInnerSlot), In(32, 1024, 360), In(64, 1088, 360));
}

// It clears all keys, and presses those of the axes that differ.
TEST_F(SwipeholdInnerWalk, TakesOverOnlyTheAxisThatDiffers) {
  Load();
  RestInside({0, 16});
  inner_->ReplayDirections({1, 16});
  EXPECT_EQ(QPoint(1, 0), inner_->GetDirections());
  Play("wait 32");
  EXPECT_WIRE(In(200, 1024, 360), In(232, 1035, 360));
}

TEST_F(SwipeholdInnerWalk, KeepsItsKeysWhereThereIsNoneToPress) {
  Load();
  RestInside({1, 16});
  inner_->ReplayDirections({0, 16});  // right differs, and is not among the keys to take over
  inner_->ReplayDirections({0, 0});
  EXPECT_EQ(QPoint(1, 16), inner_->GetDirections());
  Play("wait 500");
  EXPECT_WIRE_NONE();
}

TEST_F(SwipeholdInnerWalk, ItemsOfAnotherKindAreIgnored) {
  AddWalk();
  Load();
  ConfigItem item;
  ConfigKey key = Key("W");
  simulator_->Press(&item, &key);
  simulator_->Release(&item, &key);
  inner_->Press(&item, &key);
  inner_->Release(&item, &key);
  simulator_->Press(nullptr, &key);
  Play("wait 500");
  EXPECT_WIRE_NONE();
}

}  // namespace
}  // namespace taviinputmanager
