// One action of a record at a time: its line, and the state that is kept.
#include "record/replay_event_handler.h"

#include "core/input_status_manager.h"
#include "slots/macro_slot_manager.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

// Points are fractions of 1280 x 720: (0.25,0.5) is 320,360; (0.5,0.5) is 640,360; (0.75,0.5) is 960,360.
class ReplayHandler : public Story {
 protected:
  ReplayHandler() {
    Load(1);
    UpdateReplayDisplayId(2);
  }

  void Touch(const QString& data, const QString& extra1 = {}) { handler_->OnTouchAction(data, extra1, {}, false); }
  void Press(const QString& slot, const QString& point) { Touch("press_rel:" + point, slot); }
  void Release(const QString& slot) { Touch("release", slot); }
  void Keyboard(const QString& data) { handler_->OnKeyboardAction(data, {}, {}); }
  void Mouse(const QString& data) { handler_->OnMouseAction(data, {}, {}); }
  void InputMethod(const QString& data) { handler_->OnInputMethodAction(data, {}, {}); }

  static void Take(int slots) {
    for (int i = 0; i < slots; ++i) Pool()->Reserve(18 + i);
  }
  static MacroSlotManager* Pool() { return MacroSlotManager::GetInstance(); }
  static QList<int> Taken() {
    QList<int> taken = Pool()->ActiveSlots().values();
    std::sort(taken.begin(), taken.end());
    return taken;
  }
  static std::vector<int> HeldKeys() {
    const CodeSet& held = InputStatusManager::GetInstance()->ReplayHeldKeys();
    return {held.begin(), held.end()};
  }

  ReplayEventHandler* handler_ = ReplayEventHandler::GetInstance();
};

using Codes = std::vector<int>;
using Slots = QList<int>;

// ---- Single contacts ----

TEST_F(ReplayHandler, APressTakesTheFirstSlotOfThePool) {
  Press("0", "(0.5,0.5)");
  EXPECT_WIRE("0ms 2:SLOTPRESS:18:18:1:1:640:360");
  EXPECT_EQ((Slots{18}), Taken());
}

TEST_F(ReplayHandler, EachSlotOfAFileHasItsOwn) {
  Press("11", "(0.25,0.5)");
  Press("2", "(0.5,0.5)");
  Press("11", "(0.75,0.5)");
  EXPECT_WIRE("0ms 2:SLOTPRESS:18:18:1:1:320:360", "0ms 2:SLOTPRESS:19:19:1:1:640:360",
              "0ms 2:SLOTPRESS:18:18:1:1:960:360");
}

TEST_F(ReplayHandler, ASecondPressReplacesWhatIsHeld) {
  Press("0", "(0.25,0.5)");
  Press("0", "(0.5,0.5)");
  TakeWire();
  handler_->ResumeHeldInput();
  EXPECT_WIRE("0ms 2:SLOTPRESS:18:18:1:1:640:360");
}

TEST_F(ReplayHandler, TheSameFractionIsTheSamePlaceOnAnyDisplay) {
  Host().display = QRect(0, 0, 1920, 1080);
  Press("0", "(0.5,0.5)");
  Host().display = QRect(0, 0, 720, 1280);
  Press("0", "(0.5,0.5)");
  Host().display = QRect(100, 50, 640, 360);  // its position does not matter
  Press("0", "(0.5,0.5)");
  EXPECT_WIRE("0ms 2:SLOTPRESS:18:18:1:1:960:540", "0ms 2:SLOTPRESS:18:18:1:1:360:640",
              "0ms 2:SLOTPRESS:18:18:1:1:320:180");
}

TEST_F(ReplayHandler, PlacesKeepSixDigits) {
  Press("0", "(0.3333333,0.1)");    // 1280 / 3 = 426.6666..., 72
  Press("0", "(1e-07,0.00001)");    // 0.000128, 0.0072
  Press("0", "(1000,-0.5)");        // 1280000, -360
  Press("0", "(0.0000001,10000)");  // 0.000128, 7200000
  EXPECT_WIRE("0ms 2:SLOTPRESS:18:18:1:1:426.667:72", "0ms 2:SLOTPRESS:18:18:1:1:0.000128:0.0072",
              "0ms 2:SLOTPRESS:18:18:1:1:1.28e+06:-360", "0ms 2:SLOTPRESS:18:18:1:1:0.000128:7.2e+06");
}

TEST_F(ReplayHandler, OnlyTheCornerItselfIsNoPoint) {
  Press("0", "(0,0.5)");
  Press("0", "(0.5,0)");
  Press("0", "(0,0)");
  EXPECT_WIRE("0ms 2:SLOTPRESS:18:18:1:1:0:360", "0ms 2:SLOTPRESS:18:18:1:1:640:0");
}

TEST_F(ReplayHandler, WhatIsNoPointPressesNothingAndTakesNoSlot) {
  for (const char* point : {"", "(0,0)", "0.5,0.5", "(0.5,0.5", "0.5,0.5)", "(0.5)", "(0.5,0.5,0.5)", "(a,b)", "()",
                            " (0.5,0.5)", "(0.5;0.5)"}) {
    Press("0", point);
    EXPECT_WIRE_NONE() << point;
  }
  EXPECT_EQ(Slots(), Taken());
}

TEST_F(ReplayHandler, ACoordinateThatIsNoNumberIsZero) {
  Press("0", "(a,0.5)");
  Press("0", "(0.5,)");
  EXPECT_WIRE("0ms 2:SLOTPRESS:18:18:1:1:0:360", "0ms 2:SLOTPRESS:18:18:1:1:640:0");
}

TEST_F(ReplayHandler, APressHasTwoParts) {
  Touch("press_rel", "0");
  Touch("press_rel:(0.5,0.5):1", "0");
  Touch("press_rel::(0.5,0.5)", "0");
  EXPECT_WIRE_NONE();
  Touch("press_relative:(0.5,0.5)", "0");  // only the start of the word matters
  EXPECT_WIRE("0ms 2:SLOTPRESS:18:18:1:1:640:360");
}

TEST_F(ReplayHandler, ASlotThatIsNoNumberIsZero) {
  Press("first", "(0.5,0.5)");
  Press("0", "(0.25,0.5)");
  Press("", "(0.75,0.5)");
  EXPECT_WIRE("0ms 2:SLOTPRESS:18:18:1:1:640:360", "0ms 2:SLOTPRESS:18:18:1:1:320:360",
              "0ms 2:SLOTPRESS:18:18:1:1:960:360");
}

TEST_F(ReplayHandler, AReleaseGivesTheSlotBack) {
  Press("3", "(0.5,0.5)");
  Press("4", "(0.5,0.5)");
  TakeWire();
  Release("3");
  EXPECT_WIRE("0ms 2:SLOTRELEASE:18");
  EXPECT_EQ((Slots{19}), Taken());
  handler_->ResumeHeldInput();
  EXPECT_WIRE("0ms 2:SLOTPRESS:19:19:1:1:640:360");
  Press("5", "(0.5,0.5)");  // the lowest that is free
  EXPECT_WIRE("0ms 2:SLOTPRESS:18:18:1:1:640:360");
}

TEST_F(ReplayHandler, AnUnknownSlotIsReleasedThroughThePoolToo) {
  Take(2);
  Release("7");
  EXPECT_WIRE("0ms 2:SLOTRELEASE:20");
  EXPECT_EQ((Slots{18, 19}), Taken());
}

TEST_F(ReplayHandler, AFullPoolLeavesTheSlotsOfTheFile) {
  Take(8);
  Press("3", "(0.5,0.5)");
  Release("3");
  EXPECT_WIRE("0ms 2:SLOTPRESS:3:3:1:1:640:360", "0ms 2:SLOTRELEASE:3");
  EXPECT_EQ(8, Taken().size());
  // Nothing was stored: as soon as a slot is free, the slot is mapped.
  Pool()->Free(21);
  Press("3", "(0.5,0.5)");
  EXPECT_WIRE("0ms 2:SLOTPRESS:21:21:1:1:640:360");
}

TEST_F(ReplayHandler, AContactFromBeforeThePoolWasFullKeepsItsSlot) {
  Press("3", "(0.5,0.5)");
  Take(8);
  TakeWire();
  Press("3", "(0.25,0.5)");
  Press("4", "(0.25,0.5)");
  Release("3");
  EXPECT_WIRE("0ms 2:SLOTPRESS:18:18:1:1:320:360", "0ms 2:SLOTPRESS:4:4:1:1:320:360", "0ms 2:SLOTRELEASE:18");
}

TEST_F(ReplayHandler, AReleaseIsTheWholeWord) {
  Touch("release:1", "0");
  Touch("releases", "0");
  Touch("resets");
  Touch("release_multi:0", "0");
  Touch("unknown", "0");
  Touch("");
  EXPECT_WIRE_NONE();
}

TEST_F(ReplayHandler, AResetKeepsSlotsAndForgetsContacts) {
  Press("3", "(0.5,0.5)");
  Press("4", "(0.5,0.5)");
  Touch("press_multi_rel:(0.5,0.5)", "5");
  TakeWire();
  Touch("reset");
  EXPECT_WIRE("0ms 2:SLOTRELEASEALL");
  EXPECT_EQ((Slots{18, 19, 20}), Taken());
  handler_->ResumeHeldInput();  // contacts of several stay
  EXPECT_WIRE("0ms 2:SLOTMULTIPRESS:20:20:640:360");
  Press("4", "(0.25,0.5)");
  EXPECT_WIRE("0ms 2:SLOTPRESS:19:19:1:1:320:360");
}

// ---- Several contacts at once ----

TEST_F(ReplayHandler, SeveralContactsAreOneLine) {
  Touch("press_multi_rel:(0.25,0.5):(0.75,0.5)", "18:19");
  EXPECT_WIRE("0ms 2:SLOTMULTIPRESS:18:18:320:360:19:19:960:360");
  Touch("release_multi", "18:19");
  EXPECT_WIRE("0ms 2:SLOTMULTIRELEASE:18:19");
  EXPECT_EQ(Slots(), Taken());
}

TEST_F(ReplayHandler, SeveralContactsKeepSixDigits) {
  Touch("press_multi_rel:(0.3333333,0.1)", "0");
  EXPECT_WIRE("0ms 2:SLOTMULTIPRESS:18:18:426.667:72");
}

TEST_F(ReplayHandler, AReleaseOfSeveralNamesTheSlotsOfTheFile) {
  Take(2);
  Touch("press_multi_rel:(0.25,0.5):(0.75,0.5)", "18:19");
  Touch("release_multi", "18:19");
  EXPECT_WIRE("0ms 2:SLOTMULTIPRESS:20:20:320:360:21:21:960:360", "0ms 2:SLOTMULTIRELEASE:18:19");
  EXPECT_EQ((Slots{18, 19}), Taken());  // those that it pressed are free again
  handler_->ResumeHeldInput();
  EXPECT_WIRE_NONE();
}

TEST_F(ReplayHandler, AReleaseOfSeveralIsWrittenAsItStands) {
  Touch("release_multi", "x: 7:");
  EXPECT_WIRE("0ms 2:SLOTMULTIRELEASE:x: 7:");
  EXPECT_EQ(Slots(), Taken());
  Touch("release_multi", "");
  EXPECT_WIRE_NONE();
}

TEST_F(ReplayHandler, SomeOfSeveralMayBeReleased) {
  Touch("press_multi_rel:(0.25,0.5):(0.5,0.5):(0.75,0.5)", "1:2:3");
  Touch("release_multi", "2");
  TakeWire();
  EXPECT_EQ((Slots{18, 20}), Taken());
  handler_->ResumeHeldInput();
  EXPECT_WIRE("0ms 2:SLOTMULTIPRESS:18:18:320:360:20:20:960:360");
}

TEST_F(ReplayHandler, EveryContactOfSeveralHasAPoint) {
  Touch("press_multi_rel:(0.25,0.5)", "1:2");
  Touch("press_multi_rel:(0.25,0.5):(0.5,0.5)", "1");
  Touch("press_multi_rel", "1");
  Touch("press_multi_rel", "");
  EXPECT_WIRE_NONE();
  EXPECT_EQ(Slots(), Taken());
  Touch("press_multi_rel:(0.25,0.5)", "");  // one slot, which is not a number
  EXPECT_WIRE("0ms 2:SLOTMULTIPRESS:18:18:320:360");
}

TEST_F(ReplayHandler, AContactOfSeveralWithoutPointIsLeftOutAndKeepsItsSlot) {
  Touch("press_multi_rel:(0,0):(0.5,0.5)", "1:2");
  EXPECT_WIRE("0ms 2:SLOTMULTIPRESS:19:19:640:360");
  EXPECT_EQ((Slots{18, 19}), Taken());
  Press("1", "(0.25,0.5)");
  EXPECT_WIRE("0ms 2:SLOTPRESS:18:18:1:1:320:360");
}

TEST_F(ReplayHandler, SeveralContactsWithoutAnyPointAreNoLine) {
  Touch("press_multi_rel:(0,0):none", "1:2");
  EXPECT_WIRE_NONE();
  EXPECT_EQ((Slots{18, 19}), Taken());
}

TEST_F(ReplayHandler, SingleAndSeveralShareTheirSlots) {
  Press("1", "(0.25,0.5)");
  Touch("press_multi_rel:(0.5,0.5):(0.75,0.5)", "1:2");
  Touch("release", "2");
  EXPECT_WIRE("0ms 2:SLOTPRESS:18:18:1:1:320:360", "0ms 2:SLOTMULTIPRESS:18:18:640:360:19:19:960:360",
              "0ms 2:SLOTRELEASE:19");
  handler_->ResumeHeldInput();  // a single release does not change the list of several
  EXPECT_WIRE("0ms 2:SLOTPRESS:18:18:1:1:320:360", "0ms 2:SLOTMULTIPRESS:18:18:640:360:19:19:960:360");
}

TEST_F(ReplayHandler, SeveralContactsMayBeMoreThanThePoolHas) {
  Take(7);
  Touch("press_multi_rel:(0.25,0.5):(0.5,0.5)", "3:4");
  EXPECT_WIRE("0ms 2:SLOTMULTIPRESS:25:25:320:360:4:4:640:360");
}

// ---- Keys ----

TEST_F(ReplayHandler, KeysGoDownAndUp) {
  Keyboard("keyboard_press:30");
  Keyboard("keyboard_press:17");
  EXPECT_EQ((Codes{17, 30}), HeldKeys());
  Keyboard("keyboard_release:30");
  EXPECT_WIRE("0ms 2:KBDPR:30:1", "0ms 2:KBDPR:17:1", "0ms 2:KBDRL:30:0");
  EXPECT_EQ((Codes{17}), HeldKeys());
}

TEST_F(ReplayHandler, AKeyThatIsNotDownIsReleasedToo) {
  Keyboard("keyboard_release:30");
  EXPECT_WIRE("0ms 2:KBDRL:30:0");
  EXPECT_EQ(Codes(), HeldKeys());
}

TEST_F(ReplayHandler, AKeyHasTwoParts) {
  for (const char* data : {"keyboard_press", "keyboard_press:30:1", "keyboard_release", "keyboard_release:30:0",
                           "keyboard:30", "", "press:30", "Keyboard_press:30"}) {
    Keyboard(data);
    EXPECT_WIRE_NONE() << data;
  }
  EXPECT_EQ(Codes(), HeldKeys());
}

TEST_F(ReplayHandler, AKeyThatIsNoNumberIsZero) {
  Keyboard("keyboard_press:A");
  Keyboard("keyboard_pressed:30");  // only the start of the word matters
  EXPECT_WIRE("0ms 2:KBDPR:0:1", "0ms 2:KBDPR:30:1");
  EXPECT_EQ((Codes{0, 30}), HeldKeys());
}

TEST_F(ReplayHandler, LiveKeysAreAnotherBook) {
  Keyboard("keyboard_press:30");
  TakeWire();
  Play("reset");
  EXPECT_TRUE(TakeWire().filter("KBDRL").isEmpty());
  EXPECT_EQ((Codes{30}), HeldKeys());
}

TEST_F(ReplayHandler, ReleasingReplayInputLiftsFingersAndKeys) {
  Keyboard("keyboard_press:30");
  Keyboard("keyboard_press:17");
  TakeWire();
  InputStatusManager::GetInstance()->ReleaseReplayInput();
  EXPECT_WIRE("0ms 2:SLOTRELEASEALL", "0ms 2:KBDRL:17:0", "0ms 2:KBDRL:30:0");
  EXPECT_EQ(Codes(), HeldKeys());
  InputStatusManager::GetInstance()->ReleaseReplayInput();
  EXPECT_WIRE("0ms 2:SLOTRELEASEALL");
}

// ---- Pointer and wheel ----

TEST_F(ReplayHandler, ThePointerMoves) {
  Mouse("move:(0.25,0.5)");
  Mouse("move:(-0.25,0.3333333)");  // 720 / 3 = 240 (239.99998 with six digits)
  EXPECT_WIRE("0ms 2:MOUSEMOVE_REL:320:360", "0ms 2:MOUSEMOVE_REL:-320:240");
}

TEST_F(ReplayHandler, AWheelHasAmountsWithoutSign) {
  Mouse("wheel:(0.25,-0.1)");  // 320, -72
  Mouse("wheel:(-0.25,0.1)");
  Mouse("wheel:(0,-1)");
  EXPECT_WIRE("0ms 2:WHEEL:320:72:320:-72", "0ms 2:WHEEL:320:72:-320:72", "0ms 2:WHEEL:0:720:0:-720");
}

TEST_F(ReplayHandler, PointerAndWheelNeedAPoint) {
  for (const char* data : {"move", "wheel", "move:(0,0)", "wheel:(0,0)", "move:0.5,0.5", "wheel:0.5,0.5",
                           "move:(0.5,0.5):1", "wheel:(0.5,0.5):1", "", "click:(0.5,0.5)"}) {
    Mouse(data);
    EXPECT_WIRE_NONE() << data;
  }
}

// ---- Text and gamepads ----

TEST_F(ReplayHandler, TextIsWhatComesBehindTheColon) {
  InputMethod("text_inject:abc");
  InputMethod(QString::fromUtf8("text_inject:a:b \xC3\xA4\xF0\x9F\x98\x80"));
  InputMethod("text_control:BACKSPACE");
  EXPECT_WIRE("0ms text TEXT:abc", QString::fromUtf8("0ms text TEXT:a:b \xC3\xA4\xF0\x9F\x98\x80"),
              "0ms text TEXT_CONTROL:BACKSPACE");
}

TEST_F(ReplayHandler, WhateverStandsBehindTheWordIsTheColon) {
  InputMethod("text_injectXabc");
  InputMethod("text_inject:");
  InputMethod("text_control;END");
  EXPECT_WIRE("0ms text TEXT:abc", "0ms text TEXT:", "0ms text TEXT_CONTROL:END");
}

TEST_F(ReplayHandler, AWordAloneIsNoText) {
  for (const char* data : {"text_inject", "text_control", "", "text:abc", "Text_inject:abc"}) {
    InputMethod(data);
    EXPECT_WIRE_NONE() << data;
  }
}

TEST_F(ReplayHandler, AGamepadLineGoesOutAsItIs) {
  Host().display = QRect(0, 0, 1920, 1080);
  handler_->OnJoystickAction("LSTICKAXIS:500000:-250000", "x", "y");
  handler_->OnJoystickAction("anything", {}, {});
  handler_->OnJoystickAction("", {}, {});
  EXPECT_WIRE("0ms 2:LSTICKAXIS:500000:-250000", "0ms 2:anything");
}

// ---- Displays ----

TEST_F(ReplayHandler, EachLineAsksForTheDisplay) {
  Press("0", "(0.5,0.5)");
  Keyboard("keyboard_press:30");
  UpdateReplayDisplayId(5);
  Mouse("move:(0.5,0.5)");
  Release("0");
  UpdateReplayDisplayId(6);
  handler_->OnJoystickAction("GPDBUTTON:304:1", {}, {});
  handler_->ResumeHeldInput();
  EXPECT_WIRE("0ms 2:SLOTPRESS:18:18:1:1:640:360", "0ms 2:KBDPR:30:1", "0ms 5:MOUSEMOVE_REL:640:360",
              "0ms 5:SLOTRELEASE:18", "0ms 6:GPDBUTTON:304:1", "0ms 6:KBDPR:30:1");
}

// ---- What is held ----

TEST_F(ReplayHandler, HeldInputIsPressedAgainInOrder) {
  Press("9", "(0.25,0.5)");
  Touch("press_multi_rel:(0.25,0.5):(0.75,0.5)", "5:4");
  Press("1", "(0.5,0.5)");
  Keyboard("keyboard_press:30");
  Keyboard("keyboard_press:17");
  TakeWire();
  InputStatusManager::GetInstance()->ReleaseReplayInput();
  EXPECT_EQ(Codes(), HeldKeys());
  TakeWire();
  handler_->ResumeHeldInput();
  EXPECT_WIRE("0ms 2:SLOTPRESS:18:18:1:1:320:360", "0ms 2:SLOTPRESS:21:21:1:1:640:360",
              "0ms 2:SLOTMULTIPRESS:19:19:320:360:20:20:960:360", "0ms 2:KBDPR:17:1", "0ms 2:KBDPR:30:1");
  EXPECT_EQ((Codes{17, 30}), HeldKeys());
}

TEST_F(ReplayHandler, HeldInputIsOfTheDisplayOfItsTime) {
  Press("0", "(0.5,0.5)");
  Touch("press_multi_rel:(0.5,0.5)", "1");
  TakeWire();
  Host().display = QRect(0, 0, 1920, 1080);
  handler_->ResumeHeldInput();
  EXPECT_WIRE("0ms 2:SLOTPRESS:18:18:1:1:640:360", "0ms 2:SLOTMULTIPRESS:19:19:640:360");
}

TEST_F(ReplayHandler, NothingHeldIsNothingToPress) {
  Press("0", "(0.5,0.5)");
  Release("0");
  Touch("press_multi_rel:(0.5,0.5)", "1");
  Touch("release_multi", "1");
  Keyboard("keyboard_press:30");
  Keyboard("keyboard_release:30");
  TakeWire();
  handler_->ResumeHeldInput();
  EXPECT_WIRE_NONE();
}

TEST_F(ReplayHandler, AResetForgetsAllAndFreesNothing) {
  Press("0", "(0.5,0.5)");
  Touch("press_multi_rel:(0.5,0.5)", "1");
  Keyboard("keyboard_press:30");
  TakeWire();
  handler_->Reset();
  EXPECT_WIRE_NONE();
  EXPECT_EQ((Slots{18, 19}), Taken());
  EXPECT_EQ((Codes{30}), HeldKeys());  // the guest's state is not affected
  handler_->ResumeHeldInput();
  EXPECT_WIRE_NONE();
  Press("0", "(0.5,0.5)");  // no longer slot 18
  EXPECT_WIRE("0ms 2:SLOTPRESS:20:20:1:1:640:360");
  InputStatusManager::GetInstance()->ResetInputStatus(kResetMacro, 0);
  EXPECT_EQ(Slots(), Taken());
}

// The input resets that clear the pool are those of mode 2 and 4.
TEST_F(ReplayHandler, AnInputResetOfOtherModesLeavesThePool) {
  Press("0", "(0.5,0.5)");
  OnResetInputStatus(false, 0);
  OnResetInputStatus(true, 0);
  EXPECT_EQ((Slots{18}), Taken());
  UpdateDisplayId(1);
  EXPECT_EQ(Slots(), Taken());
}

}  // namespace
}  // namespace taviinputmanager
