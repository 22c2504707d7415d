#include "simulators/walk/right_walk_sync_worker.h"

#include "keymap/tavikeymapmanager.h"
#include "simulators/walk/right_walk_event_simulator.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/finger_lines.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::MouseRightWalkConfigItem;

// The character is in the middle of the display, at (640, 360); the guest's stick has its centre at (320, 360) and a
// radius of 1280 * 0.1 = 128.
class RightWalk : public Story {
 protected:
  MouseRightWalkConfigItem* AddWalk(const QPointF& centre = {0.25, 0.5}) {
    auto* item = Add<MouseRightWalkConfigItem>("RightWalk", "Mouse Right", centre);
    item->walk_radius = 0.1;
    return item;
  }
  static QString At(int ms, int x, int y) { return FingerLines(4).At(ms, x, y); }
  static QString Up(int ms) { return FingerLines(4).Up(ms); }
};

TEST_F(RightWalk, SlidesFromTheCentreToTheEdge) {
  auto* item = AddWalk();
  item->press_hold_ms = 20;
  item->swipe_steps = 4;
  item->swipe_step_ms = 5;
  Load();
  // The click is straight to the right of the character: the target is 320 + 128 = 448, in steps of 32.
  Play("mouse down right 960,360");
  EXPECT_WIRE(At(0, 320, 360), At(20, 352, 360), At(25, 384, 360), At(30, 416, 360), At(35, 448, 360));
  Play("wait 400; mouse up right 960,360");
  EXPECT_WIRE(Up(435));
}

TEST_F(RightWalk, RoundsHalvesOfTheSlideUpwards) {
  AddWalk()->swipe_steps = 4;
  Load();
  // (1024, 648) is (0.3, 0.4) from the character, at a distance of 0.5: 0.1 / 0.5 = 0.2, and the target is (320 + 0.3 *
  // 0.2 * 1280, 360 + 0.4 * 0.2 * 1280) = (396.8, 462.4), rounded (397, 462). The steps are 320 + 77 * (1, 2, 3) / 4 =
  // 339.25, 358.5, 377.75 and 360 + 102 * (1, 2, 3) / 4 = 385.5, 411, 436.5.
  Play("mouse down right 1024,648");
  EXPECT_WIRE(At(0, 320, 360), At(0, 339, 386), At(0, 359, 411), At(0, 378, 437), At(0, 397, 462));
}

TEST_F(RightWalk, StartsFromTheTruncatedCentreAndMeasuresFromTheRoundedOne) {
  AddWalk({320.6 / 1280, 360.7 / 720})->swipe_steps = 2;
  Load();
  // Measured from (321, 361): the target is 321 + 128 = 449, half of the way 385.
  Play("mouse down right 960,360");
  EXPECT_WIRE(At(0, 320, 360), At(0, 385, 361), At(0, 449, 361));
}

TEST_F(RightWalk, AnySenselessNumberOfStepsIsOne) {
  for (const int steps : {1, 0, -3}) {
    AddWalk()->swipe_steps = steps;
    Load();
    Play("mouse down right 960,360");
    EXPECT_WIRE(At(0, 320, 360), At(0, 448, 360));
    Play("reset full");
  }
}

TEST_F(RightWalk, NegativePausesAreNone) {
  auto* item = AddWalk();
  item->swipe_steps = 2;
  item->press_hold_ms = -5;
  item->swipe_step_ms = -5;
  Load();
  Play("mouse down right 960,360");
  EXPECT_WIRE(At(0, 320, 360), At(0, 384, 360), At(0, 448, 360));
}

TEST_F(RightWalk, KeepsTheTargetOffTheDisplaysEdges) {
  const struct {
    const char* name;
    QPointF centre;
    const char* press;
    QPoint target;
  } rows[] = {
      {"left: 64 - 128", {0.05, 0.5}, "mouse down right 320,360", {1, 360}},
      {"right: 1216 + 128", {0.95, 0.5}, "mouse down right 960,360", {1279, 360}},
      {"top: 72 - 128", {0.5, 0.1}, "mouse down right 640,180", {640, 1}},
      {"bottom: 648 + 128", {0.5, 0.9}, "mouse down right 640,540", {640, 719}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    AddWalk(row.centre);
    Load();
    Play(row.press);
    EXPECT_EQ(At(0, row.target.x(), row.target.y()), TakeWire().last());
    Play("reset full");
  }
}

TEST_F(RightWalk, AClickOnTheCharacterGoesWhereTheLimitsPutIt) {
  AddWalk();
  Load();
  Play("mouse down right 640,360");  // no direction at all: the infinite factor times 0 is undefined
  EXPECT_WIRE(At(0, 320, 360), At(0, 1, 1));
}

TEST_F(RightWalk, FollowsThePointerWhileHeld) {
  AddWalk()->swipe_steps = 4;
  Load();
  Play("mouse down right 960,360");
  Forget();
  Play("wait 10; move 640,90");  // straight up
  EXPECT_WIRE(At(10, 320, 232));
  Play("wait 10; move 320,360");
  EXPECT_WIRE(At(20, 192, 360));
}

TEST_F(RightWalk, AMoveWithTheFingerUpDoesNothing) {
  AddWalk();
  Load();
  Play("mouse down right 960,360; reset");  // the reset lifts the finger; the button stays down
  Forget();
  Play("wait 10; move 640,90");
  EXPECT_WIRE_NONE();
}

TEST_F(RightWalk, AShortClickBeyondTheRadiusWalksOn) {
  AddWalk()->continue_factor = 2.0;
  Load();
  // (960 / 1280 - 0.5) / 0.1 = 2.5 radii, and so 2.5 * 1000 * 2 ms.
  Play("mouse down right 960,360; wait 299; mouse up right 960,360");
  EXPECT_WIRE(At(0, 320, 360), At(0, 448, 360));
  Wait(4999);
  EXPECT_WIRE_NONE();
  Wait(1);
  EXPECT_WIRE(Up(5299));
  Wait(20000);  // once
  EXPECT_WIRE_NONE();
}

TEST_F(RightWalk, APressOf300MsIsAHold) {
  AddWalk();
  Load();
  Play("mouse down right 960,360; wait 300; mouse up right 960,360");
  EXPECT_WIRE(At(0, 320, 360), At(0, 448, 360), Up(300));
}

TEST_F(RightWalk, TheSlideIsPartOfThePress) {
  AddWalk()->press_hold_ms = 290;
  Load();
  Play("mouse down right 960,360; wait 10; mouse up right 960,360");
  EXPECT_WIRE(At(0, 320, 360), At(290, 448, 360), Up(300));
}

TEST_F(RightWalk, AMoveDoesNotMakeThePressShorter) {
  AddWalk();
  Load();
  Play("mouse down right 960,360; wait 200; move 961,360; wait 100; mouse up right 960,360");
  EXPECT_EQ(Up(300), TakeWire().last());
}

TEST_F(RightWalk, AShortClickInsideTheRadiusLiftsAtOnce) {
  AddWalk()->walk_radius = 0.25;
  Load();
  Play("mouse down right 960,360; wait 10; mouse up right 960,360");  // exactly on it
  EXPECT_EQ(Up(10), TakeWire().last());
  Play("mouse down right 960,360; wait 10; mouse up right 961,360");  // the position of the release counts
  Forget();
  Wait(1002);  // (961 / 1280 - 0.5) / 0.25 = 1.003125
  EXPECT_WIRE_NONE();
  Wait(1);
  EXPECT_WIRE(Up(1023));
}

TEST_F(RightWalk, TheTimeThatItWalksOnIsCutOff) {
  AddWalk()->continue_factor = 0.7;
  Load();
  // (962 / 1280 - 0.5) / 0.1 = 2.515625 radii, and so 1760.9375 ms.
  Play("mouse down right 960,360; mouse up right 962,360");
  Forget();
  Wait(1759);
  EXPECT_WIRE_NONE();
  Wait(1);
  EXPECT_WIRE(Up(1760));
}

TEST_F(RightWalk, APressWhileItWalksOnTurnsWithoutLifting) {
  AddWalk()->swipe_steps = 4;
  Load();
  Play("mouse down right 960,360; wait 100; mouse up right 960,360");  // on until 100 + 2500
  Forget();
  Play("wait 900; mouse down right 640,90");
  EXPECT_WIRE(At(1000, 320, 232));
  Wait(5000);
  EXPECT_WIRE_NONE();
  Play("mouse up right 640,90");
  EXPECT_WIRE(Up(6000));
}

TEST_F(RightWalk, ANegativeFactorDoesNotWalkOn) {
  AddWalk()->continue_factor = -1.0;
  Load();
  Play("mouse down right 960,360; mouse up right 960,360");
  Forget();
  Wait(1);
  EXPECT_EQ(1, TakeWire().size());
}

TEST_F(RightWalk, AStickWithoutRadiusStaysOnItsCentre) {
  AddWalk()->walk_radius = 0;
  Load();
  Play("mouse down right 960,360; wait 300; mouse up right 960,360");
  EXPECT_WIRE(At(0, 320, 360), At(0, 320, 360), Up(300));
  Play("mouse down right 960,360; mouse up right 960,360");  // no duration follows from infinitely many radii
  EXPECT_WIRE(At(300, 320, 360), At(300, 320, 360), Up(300));
}

TEST_F(RightWalk, AStrayReleaseIsSent) {
  AddWalk();
  Load();
  Play("mouse up right 960,360");
  EXPECT_WIRE(Up(0));
}

TEST_F(RightWalk, StopWalkEndsTheWalkOfAShortClick) {
  AddWalk();
  Load();
  Play("mouse down right 960,360; mouse up right 960,360");
  Forget();
  RightWalkEventSimulator::GetInstance()->StopWalk();
  EXPECT_WIRE(Up(0));
  Wait(5000);
  EXPECT_WIRE_NONE();
}

TEST_F(RightWalk, AResetLiftsAndForgets) {
  AddWalk();
  Load();
  Play("mouse down right 960,360; mouse up right 960,360");
  Forget();
  OnResetInputStatus(true, 2);
  const QStringList lines = TakeWire();
  // The walk ends on the current display, before the sweep, which goes to the display of the reset.
  EXPECT_EQ(1, lines.count(Up(0)));
  EXPECT_LT(lines.indexOf(Up(0)), lines.indexOf("0ms 2:SLOTRELEASE:0"));
  Wait(5000);
  EXPECT_WIRE_NONE();
}

TEST_F(RightWalk, AKeymapMayGoWhileItWalksOn) {
  AddWalk();
  Load();
  Play("mouse down right 960,360; wait 100; mouse up right 960,360; wait 100");
  Load();
  Wait(5000);
  EXPECT_WIRE_NONE();
}

TEST_F(RightWalk, AKeymapMayGoUnderAHeldButton) {
  AddWalk();
  Load();
  Play("mouse down right 960,360; wait 10");
  Load();
  Play("wait 10; move 640,90; mouse up right 640,90");
  EXPECT_WIRE_NONE();
}

TEST_F(RightWalk, PixelsOfTheEventAreReadAsThoseOfTheDisplay) {
  Host().window = {0, 0, 640, 360};
  AddWalk();
  Load();
  // (320, 360) of the display is straight to the left of the character: the target is 320 - 128 = 192. Positions then
  // go out as pixels of the window: (320 / 640, 360 / 360) and (192 / 640, 360 / 360) of the touch surface.
  Play("mouse down right 320,360");
  EXPECT_WIRE(At(0, 640, 720), At(0, 384, 720));
}

TEST_F(RightWalk, TheRadiusIsAFractionOfTheWidthInPortraitToo) {
  Host().window = {0, 0, 720, 1280};
  Host().display = QRect(0, 0, 720, 1280);
  Host().touch = QRect(0, 0, 720, 1280);
  AddWalk();
  Load();
  // The centre is (180, 640), the radius 72, and the click straight above the character.
  Play("mouse down right 360,320");
  EXPECT_WIRE(At(0, 180, 640), At(0, 180, 568));
}

TEST_F(RightWalk, GoesToATurnedTouchSurface) {
  Host().touch = QRect(0, 0, 720, 1280);
  Host().rotation = 90;
  AddWalk({0.25, 0.25});
  Load();
  // (320, 180) and (448, 180): x = 720 * (1 - 180 / 720) = 540, y = 1280 * 320 / 1280 and 1280 * 448 / 1280.
  Play("mouse down right 960,360");
  EXPECT_WIRE(At(0, 540, 320), At(0, 540, 448));
}

TEST_F(RightWalk, NeedsADisplay) {
  Host().display = QRect();
  AddWalk();
  Load();
  Play("mouse down right 960,360");
  EXPECT_WIRE_NONE();
}

TEST_F(RightWalk, AnItemOfAnotherClassPutsNoFingerDown) {
  Add<ConfigItem>("RightWalk", "Mouse Right", {0.25, 0.5});
  Load();
  Play("mouse down right 960,360");
  EXPECT_WIRE_NONE();
  Play("mouse up right 960,360");
  EXPECT_WIRE(Up(0));
}

TEST_F(RightWalk, AKeyDoesNotWalk) {
  auto* item = AddWalk();
  item->key = Key("W");
  Load();
  Play("down W; up W");
  EXPECT_WIRE_NONE();
}

}  // namespace
}  // namespace taviinputmanager
