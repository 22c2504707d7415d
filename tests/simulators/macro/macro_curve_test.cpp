// Curves. Points at y 0.5: (0.25,0.5) is 320,360; (0.5,0.5) is 640,360; (0.75,0.5) is 960,360.
#include "simulators/macro/macro_curve.h"

#include "host/simulation/virtual_event_dispatcher.h"
#include "slots/macro_slot_manager.h"
#include "tests/simulators/macro/macro_story.h"

namespace taviinputmanager {
namespace {

using MacroCurves = MacroStory;

const QString kThree = QStringLiteral("curve_rel:(0.25,0.5);(0.5,0.5);(0.75,0.5)");

TEST_F(MacroCurves, APointATick) {
  Run({kThree, "press_rel:(0.5,0.5)"});
  Wait(24);
  // 8 ms after each point; 8 ms after the last one up, and the next command.
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:320:360", "8ms 1:SLOTMULTIPRESS:18:18:640:360",
              "16ms 1:SLOTMULTIPRESS:18:18:960:360", "24ms 1:SLOTMULTIRELEASE:18",
              "24ms 1:SLOTMULTIPRESS:18:18:640:360");
}

TEST_F(MacroCurves, BothSleepsServeOneCurve) {
  Run({"curve_first_point_sleep_time:100", "curve_last_point_sleep_time:50", "default_sleep_time:10", kThree,
       "curve_rel:(0.5,0.5);(0.25,0.5)"});
  Wait(1000);
  // 0, +100, +10, up after +50. The second has the default time at both ends.
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:320:360", "100ms 1:SLOTMULTIPRESS:18:18:640:360",
              "110ms 1:SLOTMULTIPRESS:18:18:960:360", "160ms 1:SLOTMULTIRELEASE:18",
              "160ms 1:SLOTMULTIPRESS:18:18:640:360", "170ms 1:SLOTMULTIPRESS:18:18:320:360",
              "180ms 1:SLOTMULTIRELEASE:18");
}

TEST_F(MacroCurves, ASleepOutOfRangeIsTheDefault) {
  const struct {
    const char* ms;
    int expected;
  } rows[] = {{"0", 8}, {"-5", 8}, {"2147483647", 8}, {"x", 8}, {"1", 1}, {"2147483646", 2147483646}};
  for (const auto& row : rows) {
    MacroCurve curve;
    curve.SetFirstSleep(QString(row.ms).toInt());
    curve.SetLastSleep(QString(row.ms).toInt());
    EXPECT_EQ(row.expected, curve.GetFirstSleep(8)) << row.ms;
    EXPECT_EQ(row.expected, curve.GetLastSleep(8)) << row.ms;
  }
}

TEST_F(MacroCurves, ACurveOfOnePointLastsItsFirstSleep) {
  Run({"curve_first_point_sleep_time:30", "curve_last_point_sleep_time:500", "curve_rel:(0.5,0.5)"});
  Wait(1000);
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:640:360", "30ms 1:SLOTMULTIRELEASE:18");
}

TEST_F(MacroCurves, WhatIsNoPointTakesItsTime) {
  Run({"curve_rel:(0,0);(0.5,0.5);x;(0.75,0.5)"});
  Wait(1000);
  EXPECT_WIRE("8ms 1:SLOTMULTIPRESS:18:18:640:360", "24ms 1:SLOTMULTIPRESS:18:18:960:360",
              "32ms 1:SLOTMULTIRELEASE:18");
}

TEST_F(MacroCurves, AnEmptyListHasOneElementThatIsNoPoint) {
  Run({"curve_rel:", "press_rel:(0.5,0.5)"});
  Wait(1000);
  EXPECT_WIRE("8ms 1:SLOTMULTIRELEASE:18", "8ms 1:SLOTMULTIPRESS:18:18:640:360");
}

TEST_F(MacroCurves, MouseIsReadPointByPoint) {
  Macro({"curve_rel:mouse;mouse"});
  Load();
  Time().SetPointer({100, 100});
  Play("down F1");
  Time().SetPointer({200, 100});
  Wait(8);
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:100:100", "8ms 1:SLOTMULTIPRESS:18:18:200:100");
}

TEST_F(MacroCurves, WithoutAFreeFingerTheNextCommandRuns) {
  Macro({kThree, "text_inject:a"});
  Load();
  for (int slot = 18; slot <= 25; ++slot) MacroSlotManager::GetInstance()->Reserve(slot);
  Play("down F1; wait 100");
  EXPECT_WIRE("0ms text TEXT:a");
}

// ---- Held at the end ----

TEST_F(MacroCurves, ACurveIsHeldUntilItIsReleased) {
  Run({"curve_last_point_sleep_time:until_release_cmd", "curve_rel:(0.25,0.5);(0.75,0.5)", "sleep:100", "curve_release",
       "curve_release"});
  Wait(1000);
  // The command after it runs at the last point.
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:320:360", "8ms 1:SLOTMULTIPRESS:18:18:960:360",
              "108ms 1:SLOTMULTIRELEASE:18");
}

TEST_F(MacroCurves, ACurveOfOnePointIsHeldToo) {
  Run({"curve_last_point_sleep_time:until_release_cmd", "curve_rel:(0.25,0.5)", "sleep:100", "release_all",
       "curve_rel:(0.25,0.5)"});
  Wait(1000);
  // release_all resets the setting: the second curve is completed.
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:320:360", "108ms 1:SLOTMULTIRELEASE:18",
              "108ms 1:SLOTMULTIPRESS:18:18:320:360", "116ms 1:SLOTMULTIRELEASE:18");
}

TEST_F(MacroCurves, ACurveInsideACurveIsNone) {
  Run({"curve_last_point_sleep_time:until_release_cmd", "curve_rel:(0.25,0.5)", "curve_rel:(0.75,0.5)",
       "text_inject:a"});
  Wait(1000);
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:320:360", "8ms text TEXT:a");
}

TEST_F(MacroCurves, ANumberTakesUntilReleaseBack) {
  Run({"curve_last_point_sleep_time:until_release_cmd", "curve_last_point_sleep_time:20",
       "curve_rel:(0.25,0.5);(0.5,0.5)"});
  Wait(1000);
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:320:360", "8ms 1:SLOTMULTIPRESS:18:18:640:360", "28ms 1:SLOTMULTIRELEASE:18");
}

TEST_F(MacroCurves, ANumberGivenToAHeldCurveEndsItAtTheNextTick) {
  Run({"curve_last_point_sleep_time:until_release_cmd", "curve_rel:(0.25,0.5)", "curve_last_point_sleep_time:20",
       "sleep:5"});
  Wait(1000);
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:320:360", "13ms 1:SLOTMULTIRELEASE:18");
}

TEST_F(MacroCurves, AReleaseWithoutCurveLeavesTheSleeps) {
  Run({"curve_first_point_sleep_time:50", "curve_release", "release_all", "curve_rel:(0.25,0.5)"});
  Wait(1000);
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:320:360", "50ms 1:SLOTMULTIRELEASE:18");
}

TEST_F(MacroCurves, ReleaseAllOfOtherFingersForgetsTheSleeps) {
  Run({"curve_first_point_sleep_time:50", "press_rel:(0.5,0.5)", "release_all", "curve_rel:(0.25,0.5)"});
  Wait(1000);
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:640:360", "0ms 1:SLOTMULTIRELEASE:18", "0ms 1:SLOTMULTIPRESS:18:18:320:360",
              "8ms 1:SLOTMULTIRELEASE:18");
}

// ---- Releases and resets ----

TEST_F(MacroCurves, AReleaseListForgetsACurveAndLeavesItsFingerDown) {
  Run({kThree}, {"sleep:20", "release_all"});
  Play("wait 10; up F1; wait 1000");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:320:360", "8ms 1:SLOTMULTIPRESS:18:18:640:360", "30ms 1:SLOTMULTIRELEASE:18");
}

TEST_F(MacroCurves, AResetLiftsTheFinger) {
  Run({"start_loop:until_release", kThree, "stop_loop"});
  Forget();
  Play("wait 4; reset full; wait 100");
  // Every reset releases the contact of curve items; then the macro's own.
  EXPECT_EQ((QStringList{"4ms 1:SLOTRELEASE:5", "4ms 1:SLOTMULTIRELEASE:18"}), TakeWire().mid(0, 2));
  EXPECT_TRUE(MacroSlotManager::GetInstance()->ActiveSlots().isEmpty());
}

}  // namespace
}  // namespace taviinputmanager
