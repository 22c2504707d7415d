// Contacts by point: press_rel, release_rel, release_all, switch_rel and click_rel.
#include "simulators/macro/macro_fingers.h"

#include "host/simulation/virtual_event_dispatcher.h"
#include "slots/macro_slot_manager.h"
#include "tests/simulators/macro/macro_story.h"

namespace taviinputmanager {
namespace {

using MacroFinger = MacroStory;

TEST_F(MacroFinger, GoesDownAndUpByItsPoint) {
  Run({"press_rel:(0.5,0.5)", "sleep:20", "release_rel:(0.5,0.5)"});
  Wait(20);
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:640:360", "20ms 1:SLOTMULTIRELEASE:18");
}

TEST_F(MacroFinger, AListIsOneLine) {
  Run({"press_rel:(0.25,0.5);(0.75,0.5)", "release_rel:(0.75,0.5);(0.25,0.5)"});
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:320:360:19:19:960:360", "0ms 1:SLOTMULTIRELEASE:19:18");
}

TEST_F(MacroFinger, WhatIsNoPointIsSkipped) {
  Run({"press_rel:(0,0)", "press_rel:(0.1,0.2,0.3)", "press_rel:", "press_rel:(0,0);(0.5,0.5);x", "release_rel:(0,0)",
       "release_rel:x;(0.5,0.5)"});
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:640:360", "0ms 1:SLOTMULTIRELEASE:18");
}

TEST_F(MacroFinger, APointPressedTwiceIsOneFinger) {
  Run({"press_rel:(0.5,0.5);(0.5,0.5)", "release_rel:(0.5,0.5);(0.5,0.5)"});
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:640:360:18:18:640:360", "0ms 1:SLOTMULTIRELEASE:18");
}

TEST_F(MacroFinger, APointIsFoundAgainFuzzily) {
  Run({"press_rel:(0.3,0.5)", "release_rel:(0.30000000000000004,0.5)"});
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:384:360", "0ms 1:SLOTMULTIRELEASE:18");  // 0.3 * 1280
}

TEST_F(MacroFinger, ReleasesOfPointsThatAreUpSayNothing) {
  Run({"release_rel:(0.5,0.5)", "release_rel:mouse", "release_all"});
  EXPECT_WIRE_NONE();
}

TEST_F(MacroFinger, PointsFollowTheTurnOfTheDisplay) {
  // At 90 degrees (x, y) is (1 - y, x) on the touch surface: (0.25 * 720, 0.25 * 1280) of (0.25, 0.75).
  Host().rotation = 90;
  Host().touch = QRect(0, 0, 720, 1280);
  Run({"press_rel:(0.25,0.75)"});
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:180:320");
}

TEST_F(MacroFinger, TheNinthFingerIsLeftOut) {
  Macro({"press_rel:(0.25,0.5);(0.75,0.5)", "release_rel:(0.75,0.5);(0.25,0.5)"});
  Load();
  for (int slot = 18; slot <= 24; ++slot) MacroSlotManager::GetInstance()->Reserve(slot);
  Play("down F1");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:25:25:320:360", "0ms 1:SLOTMULTIRELEASE:25");
}

TEST_F(MacroFinger, NoLineForAListOfWhichNothingGoesDown) {
  Macro({"press_rel:(0.25,0.5)"});
  Load();
  for (int slot = 18; slot <= 25; ++slot) MacroSlotManager::GetInstance()->Reserve(slot);
  Play("down F1");
  EXPECT_WIRE_NONE();
}

TEST_F(MacroFinger, IsReleasedWhereThePointerWas) {
  Macro({"press_rel:mouse", "sleep:20", "release_rel:mouse", "release_rel:mouse"});
  Load();
  Time().SetPointer({640, 360});
  Play("down F1");
  Time().SetPointer({100, 100});
  Wait(20);
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:640:360", "20ms 1:SLOTMULTIRELEASE:18");
}

TEST_F(MacroFinger, ReleaseAllLiftsTheFingersOfEveryMacro) {
  Macro({"press_rel:(0.75,0.5);(0.25,0.5)"});
  Macro({"press_rel:(0.5,0.5)", "release_all"}, {}, "F2");
  Load();
  Play("down F1; wait 5; down F2");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:960:360:19:19:320:360", "5ms 1:SLOTMULTIPRESS:20:20:640:360",
              "5ms 1:SLOTMULTIRELEASE:18:19:20");
}

// ---- click_rel ----

TEST_F(MacroFinger, AClickLastsTheDefaultSleep) {
  Run({"click_rel:(0.25,0.5);(0.75,0.5)", "click_rel:(0.5,0.5)"});
  Wait(16);
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:320:360:19:19:960:360", "8ms 1:SLOTMULTIRELEASE:18:19",
              "8ms 1:SLOTMULTIPRESS:18:18:640:360", "16ms 1:SLOTMULTIRELEASE:18");
}

TEST_F(MacroFinger, AClickLastsTheTimeThatWasSet) {
  Run({"default_sleep_time:30", "click_rel:(0.5,0.5)"});
  Wait(30);
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:640:360", "30ms 1:SLOTMULTIRELEASE:18");
}

TEST_F(MacroFinger, AClickOfNothingPausesAllTheSame) {
  Run({"click_rel:", "press_rel:(0.5,0.5)"});
  Wait(8);
  EXPECT_WIRE("8ms 1:SLOTMULTIPRESS:18:18:640:360");
}

TEST_F(MacroFinger, AClickWithoutArgumentIsNoCommand) {
  Run({"click_rel", "press_rel:(0.5,0.5)"});
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:640:360");
}

// If a release list cuts a click short, the next pause releases its contact.
TEST_F(MacroFinger, AClickThatIsCutShortEndsAtTheNextTick) {
  Run({"click_rel:(0.5,0.5)"}, {"press_rel:(0.25,0.5)", "sleep:20", "release_rel:(0.25,0.5)"});
  Play("wait 4; up F1; wait 20");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:640:360", "4ms 1:SLOTMULTIPRESS:19:19:320:360", "24ms 1:SLOTMULTIRELEASE:18",
              "24ms 1:SLOTMULTIRELEASE:19");
}

// ---- switch_rel ----

TEST_F(MacroFinger, ASwitchTurnsEachPoint) {
  Run({"press_rel:(0.25,0.5)", "sleep:10", "switch_rel:(0.25,0.5);(0,0);(0.75,0.5)", "sleep:10",
       "switch_rel:(0.25,0.5);(0.75,0.5)"});
  Wait(20);
  // The presses come first. What is pressed again takes the first free slot.
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:320:360", "10ms 1:SLOTMULTIPRESS:19:19:960:360", "10ms 1:SLOTMULTIRELEASE:18",
              "20ms 1:SLOTMULTIPRESS:18:18:320:360", "20ms 1:SLOTMULTIRELEASE:19");
}

TEST_F(MacroFinger, ASwitchWorksFromOneMacroToTheNext) {
  Macro({"switch_rel:(0.5,0.5)"});
  Macro({"switch_rel:(0.5,0.5)"}, {}, "F2");
  Load();
  Play("down F1; up F1; wait 5; down F2");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:640:360", "5ms 1:SLOTMULTIRELEASE:18");
}

TEST_F(MacroFinger, ASwitchAtThePointerFindsThePointPressed) {
  Macro({"switch_rel:mouse"});
  Load();
  Time().SetPointer({640, 360});
  Play("down F1; up F1");
  Time().SetPointer({100, 100});
  Play("wait 5; down F1; up F1");
  Play("wait 5; down F1");  // the point is cleared: the next press is at the pointer's current position
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:640:360", "5ms 1:SLOTMULTIRELEASE:18", "10ms 1:SLOTMULTIPRESS:18:18:100:100");
}

// ---- The end of a macro ----

TEST_F(MacroFinger, TheEndLiftsPressesOfOnePoint) {
  MacroFingers fingers;
  fingers.Press("(0.25,0.5)");
  fingers.Press("(0.5,0.5);(0.75,0.5)");
  fingers.Press("(0.1,0.1)");
  fingers.Press("(0.25,0.5)");
  EXPECT_EQ("SLOTMULTIRELEASE:18:21\n", fingers.ReleasePressed().toStdString());
  EXPECT_EQ((QSet<int>{19, 20}), MacroSlotManager::GetInstance()->ActiveSlots());
}

// The placeholder of a contact that is taken by number is the point (1, 1): each press there releases one contact that
// has it.
TEST_F(MacroFinger, TheEndLiftsAFingerForEachPressOfItsPoint) {
  for (const int presses : {1, 2}) {
    MacroFingers fingers;
    for (int i = 0; i < presses; ++i) fingers.Press("(1,1)");
    MacroSlotManager::GetInstance()->Reserve(19);
    EXPECT_EQ(presses == 1 ? "SLOTMULTIRELEASE:18\n" : "SLOTMULTIRELEASE:18:19\n",
              fingers.ReleasePressed().toStdString());
    MacroSlotManager::GetInstance()->Reset();
  }
}

TEST_F(MacroFinger, TheEndLiftsThePressAtThePointer) {
  Time().SetPointer({640, 360});
  MacroFingers fingers;
  fingers.Press("mouse");
  EXPECT_EQ("SLOTMULTIRELEASE:18\n", fingers.ReleasePressed().toStdString());
}

TEST_F(MacroFinger, TheEndLiftsNothingOfASwitch) {
  MacroFingers fingers;
  fingers.Press(fingers.Split("(0.5,0.5)").press);
  EXPECT_EQ("", fingers.ReleasePressed().toStdString());
}

}  // namespace
}  // namespace taviinputmanager
