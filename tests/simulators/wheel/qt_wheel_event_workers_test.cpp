// Wheel movements as a swipe of one contact, and as a pinch of two.
#include "keymap/tavikeymapmanager.h"
#include "simulators/wheel/qt_wheel_event_async_worker.h"
#include "simulators/wheel/qt_wheel_event_zoom_worker.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/keymap_source.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

class Scroll : public Story {};

// 720 * 0.01 = 7.2, 7 pixels a tick for a notch; 20 moves from 8 ms on, then the release.
TEST_F(Scroll, ATurnSwipesTwentySteps) {
  Load();
  Play("wheel +120 640,360; wait 7");
  EXPECT_WIRE("0ms 1:SLOTPRESS:10:10:1:1:640:360");
  Play("wait 1");
  EXPECT_WIRE("8ms 1:SLOTPRESS:10:10:1:1:640:367");
  Play("wait 152");
  const QStringList wire = TakeWire();
  EXPECT_EQ(19, wire.size());
  EXPECT_EQ("160ms 1:SLOTPRESS:10:10:1:1:640:500", wire.last().toStdString());  // 360 + 20 * 7
  Play("wait 7");
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE("168ms 1:SLOTRELEASE:10");
  EXPECT_FALSE(QtWheelEventAsyncWorker::GetInstance()->IsRunning());
}

TEST_F(Scroll, DownSwipesUp) {
  Load();
  Play("wheel -120 640,360; wait 500");
  const QStringList wire = TakeWire();
  EXPECT_EQ("8ms 1:SLOTPRESS:10:10:1:1:640:353", wire.value(1).toStdString());
  EXPECT_EQ("160ms 1:SLOTPRESS:10:10:1:1:640:220", wire.value(20).toStdString());
  EXPECT_EQ("168ms 1:SLOTRELEASE:10", wire.value(21).toStdString());
}

// 720 * 0.2 = 144 pixels a notch, and 1 of its 120 parts is 1.2 of them, so 1.
TEST_F(Scroll, TheLeastTurnHasItsDirection) {
  Wheel().scroll_step = 0.2;
  Load();
  Play("wheel +1 640,360; wait 8");
  EXPECT_WIRE("0ms 1:SLOTPRESS:10:10:1:1:640:360", "8ms 1:SLOTPRESS:10:10:1:1:640:361");
}

TEST_F(Scroll, ATurnOnTheWaySetsStepAndCountAnew) {
  Load();
  Play("wheel +120 640,360; wait 16");  // two moves: 374
  Forget();
  Play("wheel -240 10,10; wait 8");  // two notches: 14 pixels, upwards, from where it is
  EXPECT_WIRE("24ms 1:SLOTPRESS:10:10:1:1:640:360");
  Play("wait 500");
  EXPECT_EQ("184ms 1:SLOTRELEASE:10", TakeWire().last().toStdString());  // 16 + 21 * 8
}

TEST_F(Scroll, TheStepIsTruncatedAndMayBeNone) {
  Load();
  Play("wheel +30 640,360; wait 8");  // 7 / 4 = 1.75
  EXPECT_WIRE("0ms 1:SLOTPRESS:10:10:1:1:640:360", "8ms 1:SLOTPRESS:10:10:1:1:640:361");
  Play("wait 500");
  Forget();
  Play("wheel +15 640,360; wait 500");  // 0.875
  const QStringList wire = TakeWire();
  EXPECT_TRUE(wire.value(20).endsWith("SLOTPRESS:10:10:1:1:640:360"));
  EXPECT_TRUE(wire.value(21).endsWith("SLOTRELEASE:10"));
}

TEST_F(Scroll, TheStepIsTheKeymapsAndRounded) {
  Wheel().scroll_step = 0.0201;  // 14.472
  Load();
  Play("wheel +120 640,360; wait 8");
  EXPECT_EQ("8ms 1:SLOTPRESS:10:10:1:1:640:374", TakeWire().last().toStdString());
  Play("wait 500");
  Wheel().scroll_step = 0.0204;  // 14.688
  Load();
  Play("wheel +120 640,360; wait 8");
  EXPECT_EQ("8ms 1:SLOTPRESS:10:10:1:1:640:375", TakeWire().last().toStdString());
}

TEST_F(Scroll, WithoutSettingsItIsAHundredthTruncated) {
  Host().display = QRect(0, 0, 1280, 799);
  test::SetNextKeymap(new tavikeymapmanager::KeymapConfig);
  OnLoadKeymapConfigAndInfo("bare", "p", "", 1);
  Host().StartTimeline();
  Forget();
  Play("wheel +120 640,360; wait 8");  // 7.99
  EXPECT_EQ("8ms 1:SLOTPRESS:10:10:1:1:640:367", TakeWire().last().toStdString());
}

// On 1280 x 720 with a step of 0.005 the unit is 6.4, 6 pixels; at 0 degrees the fingers lie on a horizontal line.
class Pinch : public Story {
 protected:
  void LoadPinch() {
    Wheel().wheel_zoom = true;
    Wheel().zoom_step = 0.005;
    Wheel().zoom_angle = 0;
    Wheel().zoom_spread = 10;
    Wheel().zoom_notch_ticks = 2;
    Wheel().zoom_first_interval_ms = 16;
    Wheel().zoom_tick_ms = 10;
    Wheel().zoom_release_ms = 80;
    Load();
  }
};

// Fingers 10 units from the pointer: 640 - 60, 640 + 60. Two moves of 6, then the rest, then the release.
TEST_F(Pinch, ATurnUpMovesApartRestsAndLifts) {
  LoadPinch();
  Play("wheel +120 640,360; wait 15");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:0:0:580:360:10:10:700:360");
  Play("wait 1");
  EXPECT_WIRE("16ms 1:SLOTMULTIPRESS:0:0:574:360:10:10:706:360");
  Play("wait 10");
  EXPECT_WIRE("26ms 1:SLOTMULTIPRESS:0:0:568:360:10:10:712:360");
  Play("wait 10; wait 79");  // the tick at 36 starts the rest
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE("116ms 1:SLOTMULTIRELEASE:10:0");
  EXPECT_FALSE(QtWheelEventZoomWorker::GetInstance()->IsRunning());
}

// Without wheel settings the first move comes after 16 ms and the next ones every 14. The unit is 1280 * 0.00325
// = 4.16, 4 pixels, and the fingers begin 10 of them from the pointer. The line lies as it did for the keymap before.
TEST_F(Pinch, AKeymapWithoutWheelSettingsGetsTheUsualTimes) {
  LoadPinch();
  Play("wheel +120 640,360; wait 500");
  OnLoadKeymapConfigAndInfo("", "com.example", "", 1);
  Wait(0);
  Host().StartTimeline();
  Forget();
  Play("down Left Ctrl; wheel +120 640,360; wait 44; up Left Ctrl");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:0:0:600:360:10:10:680:360", "16ms 1:SLOTMULTIPRESS:0:0:596:360:10:10:684:360",
              "30ms 1:SLOTMULTIPRESS:0:0:592:360:10:10:688:360", "44ms 1:SLOTMULTIPRESS:0:0:588:360:10:10:692:360");
}

// Inwards it starts at 10 + 3 * 2 units: 96 pixels from the pointer.
TEST_F(Pinch, ATurnDownMovesTogether) {
  LoadPinch();
  Play("wheel -120 640,360; wait 30");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:0:0:544:360:10:10:736:360", "16ms 1:SLOTMULTIPRESS:0:0:550:360:10:10:730:360",
              "26ms 1:SLOTMULTIPRESS:0:0:556:360:10:10:724:360");
  Play("wait 85");  // two moves are all; the tick at 36 starts the rest
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE("116ms 1:SLOTMULTIRELEASE:10:0");
}

TEST_F(Pinch, ATurnInTheRestGoesOnInTheSamePinch) {
  LoadPinch();
  Play("wheel +120 640,360; wait 50; wheel +120 10,10; wait 9");
  Forget();
  Play("wait 1");
  EXPECT_WIRE("60ms 1:SLOTMULTIPRESS:0:0:562:360:10:10:718:360");  // from 568
}

// The path ends (10 + 4 * 2) * 6 = 108 pixels from the pointer, at 532: 8 moves from 580. The 8th is no longer inside.
TEST_F(Pinch, AtTheEndOfItsWayItLiftsAtOnce) {
  LoadPinch();
  Play("wheel +120 640,360; wheel +120 640,360; wheel +120 640,360; wheel +120 640,360; wheel +120 640,360; wait 500");
  const QStringList wire = TakeWire();
  // Movements after the first start the timer with 10 ms: moves at 10, 20, ... 70; at 80 the end.
  EXPECT_EQ("70ms 1:SLOTMULTIPRESS:0:0:538:360:10:10:742:360", wire.value(7).toStdString());
  EXPECT_EQ("80ms 1:SLOTMULTIRELEASE:10:0", wire.value(8).toStdString());
  EXPECT_EQ(9, wire.size());
}

// Inwards from 544 the path ends at 580: the 6th move is no longer inside.
TEST_F(Pinch, AndSoItDoesInwards) {
  LoadPinch();
  Play("wheel -120 640,360; wheel -120 640,360; wheel -120 640,360; wheel -120 640,360; wait 500");
  const QStringList wire = TakeWire();
  EXPECT_EQ("50ms 1:SLOTMULTIPRESS:0:0:574:360:10:10:706:360", wire.value(5).toStdString());
  EXPECT_EQ("60ms 1:SLOTMULTIRELEASE:10:0", wire.value(6).toStdString());
  EXPECT_EQ(7, wire.size());
}

TEST_F(Pinch, WithoutARestTheNextTickLifts) {
  LoadPinch();
  Forget();
  Wheel().wheel_zoom = true;
  Wheel().zoom_step = 0.005;
  Wheel().zoom_angle = 0;
  Wheel().zoom_notch_ticks = 1;
  Wheel().zoom_tick_ms = 10;
  Wheel().zoom_release_ms = 0;
  Load();
  Play("wheel +120 640,360; wait 500");
  // A move at 16, the decision at 26, the release one tick later.
  EXPECT_EQ("36ms 1:SLOTMULTIRELEASE:10:0", TakeWire().last().toStdString());
}

TEST_F(Pinch, FingersCanChangeSlots) {
  Wheel().zoom_swap_fingers = true;
  LoadPinch();
  Play("wheel +120 640,360");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:10:10:580:360:0:0:700:360");
}

// At 90 degrees finger a is below the pointer: sine 1, cosine 6e-17.
TEST_F(Pinch, TheLineIsTurned) {
  LoadPinch();
  Wheel().wheel_zoom = true;
  Wheel().zoom_step = 0.005;
  Wheel().zoom_angle = 90;
  Load();
  Play("wheel +120 640,360");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:0:0:640:420:10:10:640:300");
}

// At 180 degrees contact a begins 60 pixels to the right of the pointer, and moves further to the right.
TEST_F(Pinch, TheLineMayPointTheOtherWay) {
  LoadPinch();
  Wheel().wheel_zoom = true;
  Wheel().zoom_step = 0.005;
  Wheel().zoom_angle = 180;
  Load();
  Play("wheel +120 640,360; wait 16");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:0:0:700:360:10:10:580:360", "16ms 1:SLOTMULTIPRESS:0:0:706:360:10:10:574:360");
}

TEST_F(Pinch, TheUnitIsOfTheLongerSide) {
  Host().display = QRect(0, 0, 720, 1280);
  LoadPinch();
  Play("wheel +120 640,360");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:0:0:580:360:10:10:700:360");  // 6 pixels as before
}

// 1280 * 0.00325 = 4.16: 4 pixels; 10 units at 45 degrees are 28.28: 28.
TEST_F(Pinch, HasSettingsOfItsOwn) {
  test::SetNextKeymap(new tavikeymapmanager::KeymapConfig);
  OnLoadKeymapConfigAndInfo("bare", "p", "", 1);
  Host().StartTimeline();
  Forget();
  Play("down Left Ctrl; wheel +120 640,360; wait 16");
  // A move is 4 * 0.707 = 2.83: 3.
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:0:0:612:388:10:10:668:332", "16ms 1:SLOTMULTIPRESS:0:0:609:391:10:10:671:329");
}

TEST_F(Pinch, NoTurnAtAllIsInwards) {
  LoadPinch();
  Play("wheel 0 640,360");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:0:0:544:360:10:10:736:360");
}

}  // namespace
}  // namespace taviinputmanager
