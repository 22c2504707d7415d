#include "simulators/curve/curve_event_simulator.h"

#include "core/clock.h"
#include "core/input_status_manager.h"
#include "keymap/tavikeymapmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::CurveConfigItem;

// Origins at a quarter of the usual display, (320, 180). An eighth of it is 160 pixels across and 90 down.
class Curve : public Story {
 protected:
  CurveConfigItem* AddCurve(const QString& key, const QString& points, const QPointF& origin = {0.25, 0.25}) {
    auto* item = Add<CurveConfigItem>("Curve", key, origin);
    item->curve_points = points;
    return item;
  }
  static void ResetAt(int mode) { InputStatusManager::GetInstance()->ResetGuestState(mode, 0); }
  static CurveEventSimulator* Simulator() { return CurveEventSimulator::GetInstance(); }

  const QString two_points_ = "0.125,0;0.25,0.125";
};

TEST_F(Curve, FollowsItsPointsAndStaysOnTheLast) {
  AddCurve("W", two_points_);
  Load();
  Play("down W; wait 7");
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE("8ms 1:SLOTPRESS:5:5:1:1:480:180");
  Play("wait 7");
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE("16ms 1:SLOTPRESS:5:5:1:1:640:270");
  Play("wait 984");
  EXPECT_WIRE_NONE();
  Play("up W; wait 100");
  EXPECT_WIRE("1000ms 1:SLOTRELEASE:5");
}

TEST_F(Curve, ItsFirstDelayIsThatOfTheFirstPointOnly) {
  AddCurve("W", two_points_)->curve_first_delay_ms = 100;
  Load();
  Play("down W; wait 99");
  EXPECT_WIRE_NONE();
  Play("wait 9");
  EXPECT_WIRE("100ms 1:SLOTPRESS:5:5:1:1:480:180", "108ms 1:SLOTPRESS:5:5:1:1:640:270");
}

TEST_F(Curve, AFirstDelayBelowOneIsEightMilliseconds) {
  const struct {
    int delay_ms;
    const char* first;
  } rows[] = {
      {-5, "8ms 1:SLOTPRESS:5:5:1:1:480:180"},
      {0, "8ms 1:SLOTPRESS:5:5:1:1:480:180"},
      {1, "1ms 1:SLOTPRESS:5:5:1:1:480:180"},
  };
  for (const auto& row : rows) {
    AddCurve("W", two_points_)->curve_first_delay_ms = row.delay_ms;
    Load();
    Play("down W; wait 8");
    EXPECT_EQ(row.first, TakeWire().value(0).toStdString()) << row.delay_ms;
  }
}

TEST_F(Curve, AReleaseOnTheWayLiftsAtOnceAndDropsTheRest) {
  AddCurve("W", two_points_);
  Load();
  Play("down W; wait 15; up W; wait 1000");
  EXPECT_WIRE("8ms 1:SLOTPRESS:5:5:1:1:480:180", "15ms 1:SLOTRELEASE:5");
}

TEST_F(Curve, AReleaseBeforeTheFirstPointPressesNothing) {
  AddCurve("W", two_points_);
  Load();
  Play("down W; up W; wait 1000");
  EXPECT_WIRE("0ms 1:SLOTRELEASE:5");
}

TEST_F(Curve, AReleaseAtOnceWithItsPressEndsTheRun) {
  auto* item = AddCurve("W", two_points_);
  Load();
  Simulator()->Press(item, &item->key);
  Simulator()->Release(item, &item->key);
  Wait(1000);
  EXPECT_WIRE("0ms 1:SLOTRELEASE:5");
}

TEST_F(Curve, AStrayReleaseSendsARelease) {
  AddCurve("W", two_points_);
  Load();
  Play("up W");
  EXPECT_WIRE("0ms 1:SLOTRELEASE:5");
}

TEST_F(Curve, ABadEntryPressesNothingAndTakesItsTime) {
  AddCurve("W", "0.125,0;;1,2,3;0.25,0.125;x;");
  Load();
  Play("down W; wait 1000");
  // The entries are at 8, 16, 24, 32, ... ms.
  EXPECT_WIRE("8ms 1:SLOTPRESS:5:5:1:1:480:180", "32ms 1:SLOTPRESS:5:5:1:1:640:270");
}

TEST_F(Curve, AListOfOneEntryIsNone) {
  for (const char* points : {"0.125,0", ""}) {
    AddCurve("W", points);
    Load();
    Play("down W; wait 100");
    EXPECT_WIRE_NONE();
    Play("up W; wait 100");
    EXPECT_WIRE("100ms 1:SLOTRELEASE:5");  // of a contact that is not down
  }
}

// A sixteenth of the display is 3.125 times 2% of it, so 3 steps: 0, 0.0208333, 0.0416667 and 0.0625 times 1280 pixels
// are 0, 26.67, 53.33 and 80.
TEST_F(Curve, AStraightCurveHasAPointForEveryFiftiethOfTheDisplay) {
  auto* item = AddCurve("W", two_points_);  // not read
  item->curve_straight = true;
  item->curve_end = {0.0625, 0};
  Load();
  Play("down W; wait 100");
  EXPECT_WIRE("8ms 1:SLOTPRESS:5:5:1:1:320:180", "16ms 1:SLOTPRESS:5:5:1:1:347:180", "24ms 1:SLOTPRESS:5:5:1:1:373:180",
              "32ms 1:SLOTPRESS:5:5:1:1:400:180");
}

TEST_F(Curve, AStraightCurveWithoutLengthPressesItsOrigin) {
  auto* item = AddCurve("W", "");
  item->curve_straight = true;
  item->curve_start = item->curve_end = {0.125, 0.125};
  Load();
  Play("down W; wait 100; up W");
  EXPECT_WIRE("8ms 1:SLOTPRESS:5:5:1:1:320:180", "100ms 1:SLOTRELEASE:5");
}

TEST_F(Curve, AStraightCurveOfEnormousLengthPlays) {
  auto* item = AddCurve("W", "");
  item->curve_straight = true;
  item->curve_end = {1e12, 0};
  Load();
  Play("down W; wait 8; up W; wait 100");
  EXPECT_WIRE("8ms 1:SLOTPRESS:5:5:1:1:320:180", "8ms 1:SLOTRELEASE:5");
}

TEST_F(Curve, TheTopLeftCornerIsNoFinger) {
  AddCurve("W", "0,0;0.125,0", {0, 0});
  Load();
  Play("down W; wait 100");
  EXPECT_WIRE("8ms 1:SLOTRELEASE:5", "16ms 1:SLOTPRESS:5:5:1:1:160:0");
}

// The finger is one: the second key's origin, (640, 360), is that of both.
TEST_F(Curve, TwoAtOnceFightOverOneFinger) {
  AddCurve("W", two_points_);
  AddCurve("E", two_points_, {0.5, 0.5});
  Load();
  Play("down W; wait 4; down E; wait 10");
  EXPECT_WIRE("8ms 1:SLOTPRESS:5:5:1:1:800:360", "12ms 1:SLOTPRESS:5:5:1:1:800:360");
  Play("up W; wait 100");  // clears the origin too: 0.25 and 0.125 of the display are 320 and 90
  EXPECT_WIRE("14ms 1:SLOTRELEASE:5", "20ms 1:SLOTPRESS:5:5:1:1:320:90");
}

TEST_F(Curve, OneReleaseEndsBothRunsOfAKeyPressedTwice) {
  AddCurve("W", two_points_);
  Load();
  Play("down W; wait 4; down W; wait 6; up W; wait 100");
  EXPECT_WIRE("8ms 1:SLOTPRESS:5:5:1:1:480:180", "10ms 1:SLOTRELEASE:5", "10ms 1:SLOTRELEASE:5");
}

TEST_F(Curve, AReleaseEndsOnlyTheRunsOfItsKey) {
  AddCurve("W", two_points_);
  AddCurve("E", two_points_);
  Load();
  Play("down W; wait 4; up E; wait 100");
  EXPECT_WIRE("4ms 1:SLOTRELEASE:5", "8ms 1:SLOTPRESS:5:5:1:1:160:0", "16ms 1:SLOTPRESS:5:5:1:1:320:90");
}

TEST_F(Curve, JoystickButtonsAreAllOneKey) {
  Load();  // gives the display
  AddCurve("Pad A", two_points_);
  AddCurve("Pad B", two_points_);
  LoadJoystick();
  Play("joy down A; joy down B; wait 8; joy up B; wait 100");
  EXPECT_WIRE("8ms 1:SLOTPRESS:5:5:1:1:480:180", "8ms 1:SLOTPRESS:5:5:1:1:480:180", "8ms 1:SLOTRELEASE:5",
              "8ms 1:SLOTRELEASE:5");
}

TEST_F(Curve, APointOnItsWayIsDroppedByARelease) {
  auto* item = AddCurve("W", two_points_);
  Load();
  Play("down W");
  Clock::Sleep(12);  // the first point waits for the main thread
  Simulator()->Release(item, &item->key);
  Wait(100);
  EXPECT_WIRE("12ms 1:SLOTRELEASE:5");
}

TEST_F(Curve, AnEndOnItsWayLiftsTheFingerOnceIfAReleaseComesFirst) {
  auto* item = AddCurve("W", two_points_);
  Load();
  Play("down W");
  Clock::Sleep(100);  // the points and the end of the list wait
  Simulator()->Release(item, &item->key);
  EXPECT_WIRE_NONE();
  Wait(100);
  EXPECT_WIRE("100ms 1:SLOTRELEASE:5");
}

TEST_F(Curve, ABusyMainThreadGetsItsPointsLateAndKeepsTheFinger) {
  AddCurve("W", two_points_);
  Load();
  Play("down W");
  Clock::Sleep(100);
  Wait(100);
  EXPECT_WIRE("100ms 1:SLOTPRESS:5:5:1:1:480:180", "100ms 1:SLOTPRESS:5:5:1:1:640:270");
}

TEST_F(Curve, ANotchPlaysOnceAndLifts) {
  auto* item = AddCurve("W", two_points_);
  Load();
  Simulator()->Wheel(item, nullptr);
  Wait(23);
  EXPECT_WIRE("8ms 1:SLOTPRESS:5:5:1:1:480:180", "16ms 1:SLOTPRESS:5:5:1:1:640:270");
  Wait(1);
  EXPECT_WIRE("24ms 1:SLOTRELEASE:5");
  Wait(100);
  EXPECT_WIRE_NONE();
}

// The end is reported at 24 and at 32 ms, before the main thread can quit the run.
TEST_F(Curve, ANotchLiftsAsOftenAsItsEndIsToldToABusyMainThread) {
  auto* item = AddCurve("W", two_points_);
  Load();
  Simulator()->Wheel(item, nullptr);
  Wait(0);
  Clock::Sleep(39);
  Wait(100);
  EXPECT_WIRE("39ms 1:SLOTPRESS:5:5:1:1:480:180", "39ms 1:SLOTPRESS:5:5:1:1:640:270", "39ms 1:SLOTRELEASE:5",
              "39ms 1:SLOTRELEASE:5");
}

TEST_F(Curve, ATurnOfTheWheelPlaysAMappedCurveWithoutASleep) {
  AddCurve("Wheel Up", two_points_);
  Load();
  Play("wheel +120 640,360; wait 8");
  EXPECT_WIRE("8ms 1:SLOTPRESS:5:5:1:1:480:180");
  Play("wheel +120 640,360; wait 100");  // the first is in progress
  EXPECT_WIRE("16ms 1:SLOTPRESS:5:5:1:1:640:270", "24ms 1:SLOTRELEASE:5");
}

TEST_F(Curve, ANotchDuringAnyRunDoesNothing) {
  auto* notch = AddCurve("E", "0.5,0.5;0.5,0.5");
  AddCurve("W", two_points_);
  Load();
  Simulator()->Wheel(notch, nullptr);
  Wait(4);
  Simulator()->Wheel(notch, nullptr);
  Wait(96);  // 0.25 + 0.5 of the display
  EXPECT_WIRE("8ms 1:SLOTPRESS:5:5:1:1:960:540", "16ms 1:SLOTPRESS:5:5:1:1:960:540", "24ms 1:SLOTRELEASE:5");
  Play("down W; wait 8");
  Simulator()->Wheel(notch, nullptr);
  Wait(100);
  EXPECT_WIRE("108ms 1:SLOTPRESS:5:5:1:1:480:180", "116ms 1:SLOTPRESS:5:5:1:1:640:270");
  Simulator()->Wheel(notch, nullptr);  // the key is still held, but its run is over
  Wait(8);
  EXPECT_WIRE("216ms 1:SLOTPRESS:5:5:1:1:960:540");
}

TEST_F(Curve, AnItemOfAnotherClassDoesNothing) {
  ConfigItem* item = Add<ConfigItem>("Curve", "W", {0.25, 0.25});
  Load();
  Play("down W; wait 100");
  Simulator()->Wheel(item, nullptr);
  Wait(100);
  EXPECT_WIRE_NONE();
}

TEST_F(Curve, EveryResetLiftsTheFingerAndEndsTheRun) {
  for (const int mode : {kResetInput, kResetFull, kResetAll}) {
    SCOPED_TRACE(mode);
    AddCurve("W", two_points_);
    Load();
    Play("down W; wait 8");
    Forget();
    ResetAt(mode);
    EXPECT_EQ("8ms 1:SLOTRELEASE:5", TakeWire().value(0).toStdString());
    Wait(100);
    EXPECT_WIRE("8ms 1:SLOTRELEASE:5");  // the run's own answer
    Play("up W");
    Forget();
  }
}

TEST_F(Curve, AResetOfTheMacroSlotsLeavesItAlone) {
  AddCurve("W", two_points_);
  Load();
  Play("down W; wait 8");
  ResetAt(kResetMacro);
  Forget();
  Wait(100);
  EXPECT_WIRE("16ms 1:SLOTPRESS:5:5:1:1:640:270");
}

// One request for each run, and both runs react to both.
TEST_F(Curve, AResetOfTwoRunsOfOneKeyLiftsForEachAnswer) {
  auto* item = AddCurve("W", two_points_);
  Load();
  Simulator()->Press(item, &item->key);
  Simulator()->Press(item, &item->key);
  Simulator()->Reset();
  EXPECT_WIRE("0ms 1:SLOTRELEASE:5");
  Wait(100);
  EXPECT_WIRE("0ms 1:SLOTRELEASE:5", "0ms 1:SLOTRELEASE:5", "0ms 1:SLOTRELEASE:5", "0ms 1:SLOTRELEASE:5");
}

TEST_F(Curve, AResetLiftsAFingerThatARunLeftDown) {
  AddCurve("W", two_points_);
  Load();
  Play("down W; wait 100");
  Forget();
  Simulator()->Reset();
  EXPECT_WIRE("100ms 1:SLOTRELEASE:5");
}

TEST_F(Curve, AKeymapLoadEndsARunWhoseItemIsGone) {
  AddCurve("W", two_points_);
  Load();
  Play("down W; wait 10");
  Load();
  Play("wait 1000");
  EXPECT_WIRE_NONE();
}

TEST_F(Curve, AJoystickLoadLetsARunGoOnFromItsCopy) {
  Load();  // gives the display
  AddCurve("Pad A", two_points_);
  LoadJoystick();
  Play("joy down A; wait 10");
  LoadJoystick();  // time zero is now
  Play("wait 1000");
  EXPECT_WIRE("6ms 1:SLOTPRESS:5:5:1:1:640:270");
}

}  // namespace
}  // namespace taviinputmanager
