#include "simulators/walk/left_stick_walk_sync_worker.h"

#include "keymap/tavikeymapmanager.h"
#include "simulators/walk/left_stick_walk_event_simulator.h"
#include "tests/support/finger_lines.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::JoystickLeftWalkConfigItem;

// The guest's stick has its centre at (320, 360) and a radius of 1280 * 0.1 = 128; a step is 128 / 8 = 16.
class LeftStickWalk : public Story {
 protected:
  void SetUp() override { Load(); }  // an empty keymap, for display 1

  JoystickLeftWalkConfigItem* AddWalk(const QPointF& centre = {0.25, 0.5}) {
    auto* item = Add<JoystickLeftWalkConfigItem>("LeftStickWalk", "Pad Left_Stick", centre);
    item->walk_radius = 0.1;
    return item;
  }
  JoystickLeftWalkConfigItem* AddDelayedWalk() {
    JoystickLeftWalkConfigItem* item = AddWalk();
    item->delayed_stop = true;
    item->stop_delay_ms = 100;
    return item;
  }
  static QString At(int ms, int x, int y) { return FingerLines(8).At(ms, x, y); }
  static QString Up(int ms) { return FingerLines(8).Up(ms); }
};

TEST_F(LeftStickWalk, DrawsAMovementInSteps) {
  AddWalk();
  LoadJoystick();
  // 16 ms after the press a step every 8 ms; a step that would reach the target is the target.
  Play("joy axis 0 1,0");
  EXPECT_WIRE(At(0, 320, 360), At(16, 336, 360), At(24, 352, 360), At(32, 368, 360), At(40, 384, 360), At(48, 400, 360),
              At(56, 416, 360), At(64, 432, 360), At(72, 448, 360));
  // From its position, after the pause of the last step: 320 + 64 is four steps back.
  Play("joy axis 0 0.5,0");
  EXPECT_WIRE(At(80, 432, 360), At(88, 416, 360), At(96, 400, 360), At(104, 384, 360));
  Play("joy axis 0 0,0");
  EXPECT_WIRE(Up(112));
}

TEST_F(LeftStickWalk, TruncatesTowardsTheCentre) {
  AddWalk();
  LoadJoystick();
  // The target is (truncate(76.8), truncate(102.4)) = (76, 102) away, which is 127.2, at a cosine of 0.59748 and a sine
  // of 0.80188. Seven steps of 16: 9.56, 12.83; 19.12, 25.66; 28.68, 38.49; 38.24, 51.32; 47.80, 64.15; 57.36, 76.98;
  // 66.92, 89.81.
  Play("joy axis 0 0.6,0.8");
  EXPECT_WIRE(At(0, 320, 360), At(16, 329, 372), At(24, 339, 385), At(32, 348, 398), At(40, 358, 411), At(48, 367, 424),
              At(56, 377, 436), At(64, 386, 449), At(72, 396, 462));
  Play("joy axis 0 0,0");
  Forget();
  Play("joy axis 0 -0.6,-0.8");
  EXPECT_WIRE(At(80, 320, 360), At(96, 311, 348), At(104, 301, 335), At(112, 292, 322), At(120, 282, 309),
              At(128, 273, 296), At(136, 263, 284), At(144, 254, 271), At(152, 244, 258));
}

TEST_F(LeftStickWalk, ASmallMovementIsOneStep) {
  AddWalk();
  LoadJoystick();
  Play("joy axis 0 0.1,0");  // truncate(12.8)
  EXPECT_WIRE(At(0, 320, 360), At(16, 332, 360));
  Play("joy axis 0 0.1,0");  // where it is already
  EXPECT_WIRE(At(24, 332, 360));
}

TEST_F(LeftStickWalk, ASmoothStartHoldsAndJumps) {
  auto* item = AddWalk();
  item->smooth_start = true;
  item->press_hold_ms = 30;
  item->start_jump = 0.5;  // truncate(0.5 * 8) = 4 steps at once, and the next is the fifth
  LoadJoystick();
  Play("joy axis 0 1,0");
  EXPECT_WIRE(At(0, 320, 360), At(30, 384, 360), At(38, 400, 360), At(46, 416, 360), At(54, 432, 360),
              At(62, 448, 360));
  Play("joy axis 0 0.75,0");  // the jump is only for the start
  EXPECT_WIRE(At(70, 432, 360), At(78, 416, 360));
}

TEST_F(LeftStickWalk, AJumpIsAMultipleOfTheTruncatedStep) {
  auto* item = AddWalk();
  item->smooth_start = true;
  item->start_jump = 0.99;  // 7 steps
  LoadJoystick();
  // 7 * truncate(9.56) = 63 and 7 * truncate(12.83) = 84; the eighth step would be beyond the target.
  Play("joy axis 0 0.6,0.8");
  EXPECT_WIRE(At(0, 320, 360), At(0, 383, 444), At(8, 396, 462));
}

TEST_F(LeftStickWalk, AJumpMayOvershoot) {
  auto* item = AddWalk();
  item->smooth_start = true;
  item->start_jump = 0.5;
  LoadJoystick();
  Play("joy axis 0 0.1,0");
  EXPECT_WIRE(At(0, 320, 360), At(0, 384, 360), At(8, 332, 360));
}

TEST_F(LeftStickWalk, WithoutSmoothStartThereIsNoJump) {
  auto* item = AddWalk();
  item->press_hold_ms = 30;
  item->start_jump = 0.5;
  LoadJoystick();
  Play("joy axis 0 0.25,0");
  EXPECT_WIRE(At(0, 320, 360), At(16, 336, 360), At(24, 352, 360));
}

TEST_F(LeftStickWalk, ADelayedStopLiftsLater) {
  AddDelayedWalk()->stop_settle_ms = 50;
  LoadJoystick();
  Play("joy axis 0 0.125,0; joy axis 0 0,0");  // at rest from 24 ms on
  EXPECT_WIRE(At(0, 320, 360), At(16, 336, 360));
  Wait(99);
  EXPECT_WIRE_NONE();
  Wait(1);
  EXPECT_WIRE(Up(124));
  Play("joy axis 0 0.125,0");  // after 50 ms to settle
  EXPECT_WIRE(At(174, 320, 360), At(190, 336, 360));
}

TEST_F(LeftStickWalk, ADelayedStopLiftsOnce) {
  AddDelayedWalk();
  LoadJoystick();
  Play("joy axis 0 0.125,0; joy axis 0 0,0; wait 1000");
  EXPECT_EQ(QStringList{Up(124)}, TakeWire().mid(2));
}

TEST_F(LeftStickWalk, AStickThatLeavesItsRestInTimeNeverLifts) {
  AddDelayedWalk();
  LoadJoystick();
  Play("joy axis 0 0.125,0; joy axis 0 0,0; wait 99");
  Forget();
  Play("joy axis 0 0.25,0; wait 1000");  // at 24 + 99
  EXPECT_WIRE(At(123, 352, 360));
}

TEST_F(LeftStickWalk, EachRestCountsAnew) {
  AddDelayedWalk();
  LoadJoystick();
  Play("joy axis 0 0.125,0; joy axis 0 0,0; wait 99; joy axis 0 0,0");
  Forget();
  Wait(99);
  EXPECT_WIRE_NONE();
  Wait(1);
  EXPECT_WIRE(Up(223));  // 24 + 99 + 100
}

TEST_F(LeftStickWalk, ANegativeDelayIsNone) {
  AddDelayedWalk()->stop_delay_ms = -1;
  LoadJoystick();
  Play("joy axis 0 0.125,0; joy axis 0 0,0; wait 1");
  EXPECT_EQ(3, TakeWire().size());
}

TEST_F(LeftStickWalk, AForcedStopWaitsForTheSticksRest) {
  AddWalk();
  LoadJoystick();
  Play("joy axis 0 0.125,0");
  Forget();
  LeftStickWalkEventSimulator::GetInstance()->StopWalk();
  EXPECT_WIRE(Up(24));
  Play("joy axis 0 1,0; joy axis 0 0.5,0");
  EXPECT_WIRE_NONE();
  Play("joy axis 0 0,0");
  EXPECT_WIRE(Up(24));
  Play("joy axis 0 0.125,0");
  EXPECT_WIRE(At(24, 320, 360), At(40, 336, 360));
}

TEST_F(LeftStickWalk, WithADelayedStopTheRestCountsFromTheLift) {
  AddDelayedWalk();
  LoadJoystick();
  Play("joy axis 0 0.125,0");
  LeftStickWalkEventSimulator::GetInstance()->StopWalk();
  Play("joy axis 0 0,0; wait 99; joy axis 0 1,0");  // too short: not at rest yet
  Forget();
  Play("joy axis 0 0,0; wait 100");
  EXPECT_WIRE(Up(223));
  Play("joy axis 0 0.125,0");
  EXPECT_WIRE(At(223, 320, 360), At(239, 336, 360));
}

TEST_F(LeftStickWalk, AForcedStopLeavesADelayedOneToCome) {
  AddDelayedWalk();
  LoadJoystick();
  Play("joy axis 0 0.125,0; joy axis 0 0,0; wait 50");
  Forget();
  LeftStickWalkEventSimulator::GetInstance()->StopWalk();
  Wait(50);
  EXPECT_WIRE(Up(74), Up(124));
}

TEST_F(LeftStickWalk, AForcedStopWithTheFingerUpHoldsNothingBack) {
  AddWalk();
  LoadJoystick();
  LeftStickWalkEventSimulator::GetInstance()->StopWalk();
  EXPECT_WIRE(Up(0));
  Play("joy axis 0 0.125,0");
  EXPECT_WIRE(At(0, 320, 360), At(16, 336, 360));
}

TEST_F(LeftStickWalk, AfterAResetItStartsFromTheCentre) {
  AddWalk();
  LoadJoystick();
  Play("joy axis 0 1,0; reset full");
  Forget();
  Play("joy axis 0 0.125,0");
  EXPECT_WIRE(At(80, 320, 360), At(96, 336, 360));
}

TEST_F(LeftStickWalk, AJoystickLoadLeavesAHeldStickAlone) {
  AddWalk();
  LoadJoystick();
  Play("joy axis 0 1,0");
  LoadJoystick();  // nothing is mapped to the stick now
  EXPECT_WIRE_NONE();
  Play("joy axis 0 0,0; wait 1000");
  EXPECT_WIRE_NONE();
  AddWalk({0.5, 0.5});
  LoadJoystick();
  Play("joy axis 0 0,0");
  EXPECT_WIRE(Up(0));
}

TEST_F(LeftStickWalk, AJoystickLoadLeavesADelayedStopToItsEnd) {
  AddDelayedWalk()->stop_settle_ms = 30;
  LoadJoystick();
  Play("joy axis 0 0.125,0; joy axis 0 0,0; wait 50");
  AddWalk();
  LoadJoystick();
  Wait(49);
  EXPECT_WIRE_NONE();
  Wait(1);
  EXPECT_WIRE(Up(50));
  Play("joy axis 0 0.125,0");  // the pause belongs to the deleted item
  EXPECT_WIRE(At(80, 320, 360), At(96, 336, 360));
}

TEST_F(LeftStickWalk, AResetLeavesADelayedStopToItsEnd) {
  AddDelayedWalk();
  LoadJoystick();
  Play("joy axis 0 0.125,0; joy axis 0 0,0; wait 50");
  Load();
  Wait(49);
  EXPECT_WIRE_NONE();
  Wait(1);
  EXPECT_WIRE(Up(50));
}

TEST_F(LeftStickWalk, CountsInWidthsInPortraitToo) {
  Host().window = {0, 0, 720, 1280};
  Host().display = QRect(0, 0, 720, 1280);
  Host().touch = QRect(0, 0, 720, 1280);
  AddWalk();
  LoadJoystick();
  // The centre is (180, 640), the radius 72, a step 9.
  Play("joy axis 0 0,-1");
  EXPECT_WIRE(At(0, 180, 640), At(16, 180, 631), At(24, 180, 622), At(32, 180, 613), At(40, 180, 604), At(48, 180, 595),
              At(56, 180, 586), At(64, 180, 577), At(72, 180, 568));
}

TEST_F(LeftStickWalk, GoesToATurnedTouchSurfaceFromAWindowOfAnotherSize) {
  Host().window = {0, 0, 640, 360};
  Host().touch = QRect(0, 0, 720, 1280);
  Host().rotation = 90;
  AddWalk({0.25, 0.25});
  LoadJoystick();
  // (320, 180) of the display goes out as the middle of the window; steps of 16 to (352, 180) as 16 / 640 of 1280.
  Play("joy axis 0 0.25,0");
  EXPECT_WIRE(At(0, 360, 640), At(16, 360, 672), At(24, 360, 704));
}

TEST_F(LeftStickWalk, ARadiusOfNothingStaysOnTheCentre) {
  for (const double radius : {0.0, 1e-12}) {
    AddWalk()->walk_radius = radius;
    LoadJoystick();
    Play("joy axis 0 1,0");
    EXPECT_WIRE(At(0, 320, 360), At(16, 320, 360));
    Play("joy axis 0 0,0");
  }
}

TEST_F(LeftStickWalk, ARadiusThatShrinksToNothingIsCrossedAtOnce) {
  for (const double radius : {0.0, 1e-12, -1e-12}) {
    AddWalk();
    LoadJoystick();
    Play("joy axis 0 1,0");
    AddWalk()->walk_radius = radius;
    LoadJoystick();
    Play("joy axis 0 1,0");
    EXPECT_WIRE(At(0, 320, 360));
    Play("joy axis 0 0,0");
  }
}

// The second radius is 1280 * 0.0063 = 8.064 pixels, and its step 1.008. From 1018 pixels off the centre to the new
// target at 8 it is 1010, which is 1000.98 steps behind the first; from 1017 it is 1009, which is 999.99.
TEST_F(LeftStickWalk, AThousandStepsAreWalkedAndNoMore) {
  const struct {
    double radius;
    int lines;
  } rows[] = {{0.7957, 1}, {0.7949, 1001}};  // 1018.5 and 1017.5 pixels
  for (const auto& row : rows) {
    AddWalk({0.125, 0.5})->walk_radius = row.radius;
    LoadJoystick();
    Play("joy axis 0 1,0");
    AddWalk({0.125, 0.5})->walk_radius = 0.0063;
    LoadJoystick();
    Play("joy axis 0 1,0");
    const QStringList lines = TakeWire();
    EXPECT_EQ(row.lines, lines.size());
    EXPECT_TRUE(lines.last().endsWith("SLOTPRESS:8:8:1:1:168:360")) << lines.last().toStdString();
    Play("joy axis 0 0,0");
  }
}

TEST_F(LeftStickWalk, ASenselessJumpComesToItsEnd) {
  for (const double jump : {-1e300, -1e6, 1e6, 1e300}) {
    SCOPED_TRACE(jump);
    auto* item = AddWalk();
    item->smooth_start = true;
    item->start_jump = jump;
    LoadJoystick();
    Play("joy axis 0 1,0");  // only the jump before the target
    EXPECT_EQ(At(8, 448, 360), TakeWire().last());
    Play("joy axis 0 0,0");
  }
}

TEST_F(LeftStickWalk, AnEndlessRadiusIsNoTrap) {
  AddWalk()->walk_radius = 1e300;
  LoadJoystick();
  Play("joy axis 0 1,1");
  EXPECT_EQ(1, TakeWire().size());  // the press; a target out of the range of numbers is not sent
}

TEST_F(LeftStickWalk, AKeyDoesNotWalk) {
  JoystickLeftWalkConfigItem item;
  tavikeymapmanager::ConfigKey key;
  LeftStickWalkEventSimulator::GetInstance()->Press(&item, &key);
  LeftStickWalkEventSimulator::GetInstance()->Release(&item, &key);
  LeftStickWalkEventSimulator::GetInstance()->OnStick(nullptr, {1, 0});
  EXPECT_WIRE_NONE();
}

TEST_F(LeftStickWalk, TheWorkerNeedsAnItem) {
  const JoystickLeftWalkConfigItem* item = AddWalk();
  LoadJoystick();
  LeftStickWalkSyncWorker* worker = LeftStickWalkSyncWorker::GetInstance();
  worker->OnStick(nullptr, {0.125, 0});
  EXPECT_WIRE_NONE();
  worker->OnStick(item, {0.125, 0});
  worker->OnStick(nullptr, {});
  EXPECT_WIRE(At(0, 320, 360), At(16, 336, 360));
  worker->OnStick(item, {});
  EXPECT_WIRE(Up(24));
}

}  // namespace
}  // namespace taviinputmanager
