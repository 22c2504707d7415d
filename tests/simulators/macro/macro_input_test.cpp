// Input that macros create as if it came from the host.
#include "simulators/macro/macro_input.h"

#include "core/input_status_manager.h"
#include "host/simulation/virtual_event_dispatcher.h"
#include "simulators/macro/macro_command.h"
#include "slots/macro_held_input.h"
#include "slots/macro_slot_manager.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/simulators/macro/macro_story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::StaringConfigItem;
using MacroInputs = MacroStory;

// ---- Keys ----

TEST_F(MacroInputs, AKeyReachesTheGuest) {
  Run({"keyboard_press:17", "sleep:20", "keyboard_release:17"});
  Wait(20);
  EXPECT_WIRE("0ms 1:KBDPR:17:1", "20ms 1:KBDRL:17:0");
}

TEST_F(MacroInputs, AKeyWorksAnotherItem) {
  Add<ConfigItem>("Click", "W", {0.5, 0.5});
  Run({"keyboard_press:17", "keyboard_release:17"});
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360", "0ms 1:SLOTRELEASE:11");
}

TEST_F(MacroInputs, AKeySwitchRemembersAcrossMacros) {
  Macro({"keyboard_switch:17"});
  Macro({"keyboard_switch:17"}, {}, "F2");
  Load();
  Play("down F1; up F1; wait 5; down F2; up F2; wait 5; down F1; up F1");
  EXPECT_WIRE("0ms 1:KBDPR:17:1", "5ms 1:KBDRL:17:0", "10ms 1:KBDPR:17:1");
}

TEST_F(MacroInputs, ASwitchKnowsPressesAndReleases) {
  Run({"keyboard_press:17", "keyboard_switch:17", "keyboard_switch:17", "keyboard_release:17", "keyboard_switch:17"});
  EXPECT_WIRE("0ms 1:KBDPR:17:1", "0ms 1:KBDRL:17:0", "0ms 1:KBDPR:17:1", "0ms 1:KBDRL:17:0", "0ms 1:KBDPR:17:1");
}

TEST_F(MacroInputs, AKeyPressedByTheUserIsNotHeldByAMacro) {
  Settings().keyboard_transparent = true;
  Macro({"keyboard_switch:17"});
  Load();
  Play("down W; wait 5; down F1");
  EXPECT_WIRE("0ms 1:KBDPR:17:1", "5ms 1:KBDPR:17:1");
}

// ---- The mouse ----

TEST_F(MacroInputs, AButtonIsPressedAtThePointer) {
  Host().window = {100, 50, 1280, 720};
  Macro({"mouse_press:1", "sleep:20", "mouse_release:1"});
  Load();
  Time().SetPointer({400, 250});  // (300, 200) in the window
  Play("down F1; wait 20");
  EXPECT_WIRE("0ms 1:SLOTPRESS:1:1:1:1:300:200", "20ms 1:SLOTRELEASE:1");
}

TEST_F(MacroInputs, AButtonSwitchTurns) {
  Macro({"mouse_switch:1"});
  Load();
  Time().SetPointer({300, 200});
  Play("down F1; up F1; wait 5; down F1; up F1");
  EXPECT_WIRE("0ms 1:SLOTPRESS:1:1:1:1:300:200", "5ms 1:SLOTRELEASE:1");
}

TEST_F(MacroInputs, AButtonWorksAnotherItem) {
  Add<ConfigItem>("Click", "Mouse Middle", {0.5, 0.5});
  Run({"mouse_press:4", "mouse_release:4"});
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360", "0ms 1:SLOTRELEASE:11");
}

TEST_F(MacroInputs, TheWheelTurnsAtThePointer) {
  Settings().wheel_transparent = true;
  Host().window = {100, 50, 1280, 720};
  Macro({"mouse_wheelup:2", "mouse_wheeldown:2"});
  Load();
  Time().SetPointer({400, 250});
  Play("down F1");
  EXPECT_WIRE("0ms 1:WHEEL:300:200:100:0", "0ms 1:WHEEL:300:200:-100:0");
}

// The delta is the amount times 120, or the amount itself. It shows where the product leaves the range of an int:
// 17895697 * 120 is just within it, and 17895698 * 120 comes out negative.
TEST_F(MacroInputs, AWheelsAmountIsNotchesOrEighthsOfADegree) {
  Settings().wheel_transparent = true;
  Run({"mouse_wheelup:17895697", "mouse_wheelup:17895698", "vmouse_wheelup:17895698", "vmouse_wheeldown:17895698",
       "vmouse_wheeldown:-1"});
  EXPECT_WIRE("0ms 1:WHEEL:0:0:100:0", "0ms 1:WHEEL:0:0:-100:0", "0ms 1:WHEEL:0:0:100:0", "0ms 1:WHEEL:0:0:100:0",
              "0ms 1:WHEEL:0:0:-100:0");
}

// ---- The virtual pointer ----

TEST_F(MacroInputs, AVirtualPointerHasAFingerOfItsOwn) {
  Run({"vmouse_move:(0.25,0.5)", "vmouse_press:1", "sleep:10", "vmouse_move:(0.5,0.5)", "vmouse_move:(0,0)",
       "vmouse_release:1", "vmouse_move:(0.75,0.5)"});
  Wait(10);
  // Only a move with the button down has an effect.
  EXPECT_WIRE("0ms 1:SLOTPRESS:18:18:1:1:320:360", "10ms 1:SLOTPRESS:18:18:1:1:640:360", "10ms 1:SLOTRELEASE:18");
}

TEST_F(MacroInputs, AMovePressesEachOfThreeButtonsAgain) {
  Add<ConfigItem>("Click", "Mouse Right", {0.25, 0.5});
  Run({"vmouse_move:(0.75,0.5)", "vmouse_press:1", "vmouse_press:2", "vmouse_press:4", "sleep:5",
       "vmouse_move:(0.5,0.5)"});
  Wait(5);
  EXPECT_WIRE("0ms 1:SLOTPRESS:18:18:1:1:960:360", "0ms 1:SLOTPRESS:11:11:1:1:320:360",
              "5ms 1:SLOTPRESS:18:18:1:1:640:360", "5ms 1:SLOTPRESS:11:11:1:1:320:360");
}

// A release has the number of a button; any other text is no button.
TEST_F(MacroInputs, AReleaseOfAVirtualButtonMovesNothing) {
  Run({"vmouse_move:(0.25,0.5)", "vmouse_press:1", "vmouse_release:(0.5,0.5)"});
  EXPECT_WIRE("0ms 1:SLOTPRESS:18:18:1:1:320:360");
}

TEST_F(MacroInputs, AVirtualPointerCountsInDisplayPixels) {
  Host().display = QRect(0, 0, 640, 360);
  Run({"vmouse_move:(0.5,0.5)", "vmouse_press:1"});
  EXPECT_WIRE("0ms 1:SLOTPRESS:18:18:1:1:320:180");
}

TEST_F(MacroInputs, TheVirtualWheelTurnsAtTheVirtualPointer) {
  Settings().wheel_transparent = true;
  Run({"vmouse_move:(0.25,0.5)", "vmouse_wheelup:1"});
  EXPECT_WIRE("0ms 1:WHEEL:320:360:100:0");
}

TEST_F(MacroInputs, TwoMacrosHoldVirtualButtonsAtOnce) {
  Macro({"vmouse_move:(0.25,0.5)", "vmouse_press:1"}, {"vmouse_release:1"});
  Macro({"vmouse_move:(0.75,0.5)", "vmouse_press:1"}, {"vmouse_release:1"}, "F2");
  Load();
  Play("down F1; wait 5; down F2; wait 5; up F1; wait 5; up F2");
  // The record of held buttons is shared: the second pointer presses at its move already.
  EXPECT_WIRE("0ms 1:SLOTPRESS:18:18:1:1:320:360", "5ms 1:SLOTPRESS:19:19:1:1:960:360",
              "5ms 1:SLOTPRESS:19:19:1:1:960:360", "10ms 1:SLOTRELEASE:18", "15ms 1:SLOTRELEASE:19");
}

TEST_F(MacroInputs, EachHasAnIdOfItsOwn) { EXPECT_NE(MacroInput().GetVmouseId(), MacroInput().GetVmouseId()); }

// ---- The gamepad ----

class MacroGamepad : public MacroStory {
 protected:
  // Button A taps at (640, 360).
  void LoadMacro(const QStringList& press) {
    Add<ConfigItem>("Click", "Pad A", {0.5, 0.5});
    LoadJoystick();
    Macro(press);
    Load();
  }
};

TEST_F(MacroGamepad, AButtonGoesDownAndUp) {
  LoadMacro({"joystick_press:A", "sleep:20", "joystick_release:A"});
  Play("down F1; wait 20");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360", "20ms 1:SLOTRELEASE:11");
}

TEST_F(MacroGamepad, ASwitchTurnsAButton) {
  LoadMacro({"joystick_switch:A"});
  Play("down F1; up F1; wait 5; down F1; up F1");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360", "5ms 1:SLOTRELEASE:11");
}

// ---- Text and switches ----

TEST_F(MacroInputs, TextIsTyped) {
  Run({"text_inject:h\u00e9 llo", "text_inject:", "text_inject:a:b"});
  EXPECT_WIRE(QStringLiteral("0ms text TEXT:h\u00e9 llo"));
}

TEST_F(MacroInputs, ViewControlIsEnteredAndLeft) {
  auto* staring = Add<StaringConfigItem>("Staring", "F", {0.5, 0.5});
  staring->range_size = {0.5, 0.5};
  Macro({"exit_staring", "enter_staring", "enter_staring"}, {"exit_staring"});
  Load();
  Play("down F1");
  EXPECT_CALLS("0ms status 1 F");
  Play("wait 50; up F1");
  EXPECT_CALLS("50ms status 2 F");
}

TEST_F(MacroInputs, WithoutStaringItemThereIsNoViewControl) {
  Run({"enter_staring", "exit_staring"});
  EXPECT_CALLS_NONE();
}

TEST_F(MacroInputs, InputIsHeldOrNot) {
  Run({"hold_switch"}, {"hold_switch"});
  EXPECT_TRUE(isInputHoldWhenWindowDeactivate());
  Play("up F1");
  EXPECT_FALSE(isInputHoldWhenWindowDeactivate());
}

TEST_F(MacroInputs, TheWalksRadiusTurnsBetweenTwo) {
  Run({"swipehold_radius_increased_switch:1.5"}, {"swipehold_radius_increased_switch:2"});
  EXPECT_EQ(1.5, InputStatusManager::GetInstance()->GetSwipeholdFactor());
  Play("up F1");
  EXPECT_EQ(1.0, InputStatusManager::GetInstance()->GetSwipeholdFactor());
}

TEST_F(MacroInputs, TheHostIsAskedForTheMouse) {
  Run({"mouselocked_switch"});
  EXPECT_CALLS("0ms mouse_lock F1");
}

TEST_F(MacroInputs, WithViewControlTheMouseIsItsOwn) {
  Add<StaringConfigItem>("Staring", "F", {0.5, 0.5});
  Run({"mouselocked_switch"});
  EXPECT_CALLS_NONE();
}

TEST_F(MacroInputs, TheHostIsAskedForAPicture) {
  Run({"screenshot_rel", "screenshot_relative:(0.1,0.1):(0.2,0.2)"});
  EXPECT_CALLS("0ms screenshot screenshot_rel", "0ms screenshot screenshot_relative:(0.1,0.1):(0.2,0.2)");
}

TEST_F(MacroInputs, AHostMayAnswerNeither) {
  Host().table.OnMouseLockSwitch = nullptr;
  Host().table.OnScreenshotRequest = nullptr;
  Run({"mouselocked_switch", "screenshot_rel", "text_inject:a"});
  EXPECT_WIRE("0ms text TEXT:a");
}

}  // namespace
}  // namespace taviinputmanager
