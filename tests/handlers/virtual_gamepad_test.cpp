// Keys that operate a gamepad: from the key to the guest's gamepad.
#include "core/input_status_manager.h"
#include "handlers/joystick_event_transparent_handler.h"
#include "keymap/tavikeymapmanager.h"
#include "simulators/gamepad/vjoystick_button_event_simulator.h"
#include "slots/macro_slot_manager.h"
#include "slots/multipoint_slot_manager.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/handlers/without_sweep.h"
#include "tests/support/keymap_source.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::KeymapConfig;
using tavikeymapmanager::SwipeholdConfigItem;
using tavikeymapmanager::VirtualJoystickBunchButtonConfigItem;
using tavikeymapmanager::VirtualJoystickButtonConfigItem;
using tavikeymapmanager::VirtualStickLeftShiftButtonConfigItem;

int asked_device = 0;

int KindOfAskedDevice(int device) {
  asked_device = device;
  return 4;
}

// A stick's radius is 0.1 * 1280 = 128 pixels; W, A, S and D hold the left one, the arrow keys the right one. As items
// come, it slides in 6 steps of round(128 / 6) = 21: the first one 32 ms after the key, the next ones 16 ms apart, and
// the exact target at 112 ms. Step n is n * 21 / 128 of the radius, in millionths: 164062.5, 328125, 492187.5, 656250,
// 820312.5.
class VirtualGamepad : public Story {
 protected:
  void SetUp() override { Wheel().virtual_joystick = true; }

  SwipeholdConfigItem* AddStick(const QString& type, const QString& up, const QString& left, const QString& down,
                                const QString& right) {
    auto* item = Add<SwipeholdConfigItem>(type, {}, {0.2, 0.5});
    item->key_up = Key(up);
    item->key_left = Key(left);
    item->key_down = Key(down);
    item->key_right = Key(right);
    return item;
  }
  SwipeholdConfigItem* AddLeft() { return AddStick("VirtualLeftStick", "W", "A", "S", "D"); }
  SwipeholdConfigItem* AddRight() { return AddStick("VirtualRightStick", "Up", "Left", "Down", "Right"); }
  void AddButton(const QString& key, const QString& text) {
    Add<VirtualJoystickButtonConfigItem>("VirtualJoystickButton", key)->map_text = text;
  }
  void AddShift(const QString& key, double factor) {
    Add<VirtualStickLeftShiftButtonConfigItem>("VirtualLeftStickShiftButton", key)->factor = factor;
  }
  // The next load, without clearing its timeline.
  void LoadAgain(bool virtual_joystick) {
    auto* config = new KeymapConfig;
    config->wheel_settings = new tavikeymapmanager::WheelSettings;
    config->wheel_settings->virtual_joystick = virtual_joystick;
    test::SetNextKeymap(config);
    OnLoadKeymapConfigAndInfo("again.yaml", "com.example.game", "", 1);
  }
};

// ---- Sticks ----

TEST_F(VirtualGamepad, AKeySlidesTheLeftStickAndLetsItGo) {
  AddLeft();
  Load();
  Play("down W; wait 31");
  EXPECT_WIRE_NONE();  // the stick is on its centre already
  Play("wait 81");
  EXPECT_WIRE("32ms 1:LSTICKAXIS:0:-164062", "48ms 1:LSTICKAXIS:0:-328125", "64ms 1:LSTICKAXIS:0:-492187",
              "80ms 1:LSTICKAXIS:0:-656250", "96ms 1:LSTICKAXIS:0:-820312", "112ms 1:LSTICKAXIS:0:-1000000");
  Play("wait 1000");
  EXPECT_WIRE_NONE();
  Play("up W");
  EXPECT_WIRE("1112ms 1:LSTICKAXIS:0:0");
}

TEST_F(VirtualGamepad, TheRightStickIsOneOfItsOwn) {
  AddLeft();
  AddRight();
  Load();
  Play("down D; down Left; wait 112");
  EXPECT_WIRE("32ms 1:LSTICKAXIS:164062:0", "32ms 1:RSTICKAXIS:-164062:0", "48ms 1:LSTICKAXIS:328125:0",
              "48ms 1:RSTICKAXIS:-328125:0", "64ms 1:LSTICKAXIS:492187:0", "64ms 1:RSTICKAXIS:-492187:0",
              "80ms 1:LSTICKAXIS:656250:0", "80ms 1:RSTICKAXIS:-656250:0", "96ms 1:LSTICKAXIS:820312:0",
              "96ms 1:RSTICKAXIS:-820312:0", "112ms 1:LSTICKAXIS:1000000:0", "112ms 1:RSTICKAXIS:-1000000:0");
  Play("up D");
  EXPECT_WIRE("112ms 1:LSTICKAXIS:0:0");
  Play("wait 8; up Left");
  EXPECT_WIRE("120ms 1:RSTICKAXIS:0:0");
}

const struct {
  const char* name;
  const char* keys;
  const char* target;
} kTargets[] = {
    {"up is negative", "down W", "0:-1000000"},
    {"down", "down S", "0:1000000"},
    {"left is negative", "down A", "-1000000:0"},
    {"right", "down D", "1000000:0"},
    {"two keys: round(128 * 0.7071) = 91 of 128 on each axis", "down W; down D", "710937:-710937"},
    {"opposite keys", "down A; down D", "0:0"},
};

TEST_F(VirtualGamepad, KeysSayWhereTheStickGoes) {
  for (const auto& row : kTargets) {
    SCOPED_TRACE(row.name);
    SetUp();
    AddLeft()->press_mode = "Click";
    Load();
    Play(row.keys);
    Play("wait 32");
    EXPECT_WIRE(QStringLiteral("32ms 1:LSTICKAXIS:%1").arg(row.target));
    Play("up W; up A; up S; up D; wait 100");
  }
}

// From (1, 0) to (0.7109375, -0.7109375) in 4 steps: (91 - 128) / 4 = -9.25 and -91 / 4 = -22.75 pixels. In pixels from
// the centre and rounded: (118.75, -22.75) is (119, -23), (109.5, -45.5) is (110, -45), since the centre (256, 360)
// counts: 365.5 and 314.5 round upwards to 366 and 315; (100.25, -68.25) is (100, -68).
TEST_F(VirtualGamepad, ASecondKeyTurnsTheStick) {
  AddLeft();
  Load();
  Play("down D; wait 200");
  Forget();
  Play("down W; wait 32");
  EXPECT_WIRE("208ms 1:LSTICKAXIS:929687:-179687", "216ms 1:LSTICKAXIS:859375:-351562",
              "224ms 1:LSTICKAXIS:781250:-531250", "232ms 1:LSTICKAXIS:710937:-710937");
}

TEST_F(VirtualGamepad, ARestOnTheCentreIsALetGoStickTwice) {
  auto* item = AddLeft();
  item->press_mode = "Click";
  item->hold_center_ms = 50;
  Load();
  Play("down W; wait 32; up W; wait 100");
  EXPECT_WIRE("32ms 1:LSTICKAXIS:0:-1000000", "32ms 1:LSTICKAXIS:0:0", "82ms 1:LSTICKAXIS:0:0");
}

TEST_F(VirtualGamepad, AWiggleStaysWithinTheMachine) {
  auto* item = AddLeft();
  item->press_mode = "Click";
  item->compensate = true;
  Load();
  Play("down W; wait 1000");
  EXPECT_WIRE("32ms 1:LSTICKAXIS:0:-1000000");
}

TEST_F(VirtualGamepad, AStickOfKeysThatPassThroughIsAStickAllTheSame) {
  AddLeft()->press_mode = "Transparent";
  Load();
  Play("down W; wait 112; up W");
  const QStringList lines = TakeWire();
  ASSERT_EQ(7, lines.size());
  EXPECT_EQ("32ms 1:LSTICKAXIS:0:-164062", lines.first());
  EXPECT_EQ("112ms 1:LSTICKAXIS:0:0", lines.last());
}

TEST_F(VirtualGamepad, NeedsNoSlot) {
  AddLeft()->press_mode = "Click";
  AddRight()->press_mode = "Click";
  AddButton("Space", "A");
  Load();
  for (int i = 0; i < 7; ++i) MultipointSlotManager::GetInstance()->PressAt(i, 9);
  MacroSlotManager* macros = MacroSlotManager::GetInstance();
  for (int slot = macros->FindFree(); slot >= 0; slot = macros->FindFree()) macros->Reserve(slot);
  Play("down W; down Up; down Space; wait 32");
  EXPECT_WIRE("0ms 1:GPDBUTTON:304:1", "32ms 1:LSTICKAXIS:0:-1000000", "32ms 1:RSTICKAXIS:0:-1000000");
}

TEST_F(VirtualGamepad, TwoItemsOfOneStickShareItsKeys) {
  AddLeft()->press_mode = "Click";
  AddStick("VirtualLeftStick", "I", "J", "K", "L")->press_mode = "Click";
  Load();
  Play("down W; wait 32");
  EXPECT_WIRE("32ms 1:LSTICKAXIS:0:-1000000");
  Play("down L; wait 32");  // the second item continues the first one's walk
  EXPECT_EQ("64ms 1:LSTICKAXIS:710937:-710937", TakeWire().last().toStdString());
  Play("up I; wait 32");  // the up of either
  EXPECT_EQ("96ms 1:LSTICKAXIS:1000000:0", TakeWire().last().toStdString());
  Play("up W; wait 32; up D");
  EXPECT_EQ("128ms 1:LSTICKAXIS:0:0", TakeWire().last().toStdString());
}

TEST_F(VirtualGamepad, AnOrdinaryWalkBesideItIsAFinger) {
  AddLeft()->press_mode = "Click";
  AddStick("Swipehold", "I", "J", "K", "L")->press_mode = "Click";
  Load();
  Play("down I; down W; wait 32; up I; up W");
  EXPECT_WIRE("0ms 1:SLOTPRESS:2:2:1:1:256:360", "32ms 1:SLOTPRESS:2:2:1:1:256:232", "32ms 1:LSTICKAXIS:0:-1000000",
              "32ms 1:SLOTRELEASE:2", "32ms 1:LSTICKAXIS:0:0");
}

// ---- Buttons ----

TEST_F(VirtualGamepad, AKeyIsAButton) {
  AddButton("Space", "A");
  AddButton("Mouse Right", "LT");
  AddButton("E", "\u2191");
  Load();
  Play("down Space; up Space; mouse down right 10,10; mouse up right 10,10; down E; up E");
  EXPECT_WIRE("0ms 1:GPDBUTTON:304:1", "0ms 1:GPDBUTTON:304:0", "0ms 1:LTRIGGERAXIS:1", "0ms 1:LTRIGGERAXIS:0",
              "0ms 1:HATY:-1", "0ms 1:HATY:0");
}

TEST_F(VirtualGamepad, AButtonOfAnUnknownNameIsSilent) {
  AddButton("Space", "Jump");
  AddButton("E", "");
  Load();
  Play("down Space; up Space; down E; up E");
  EXPECT_WIRE_NONE();
}

TEST_F(VirtualGamepad, TriggersFollowTheKeysKeymapNotTheGamepads) {
  AddButton("Space", "RT");
  Wheel().simulate_mode = 1;
  Load();
  LoadJoystick();  // its own is 0
  Play("down Space; up Space");
  EXPECT_WIRE("0ms 1:GPDBUTTON:313:1", "0ms 1:GPDBUTTON:313:0");
}

TEST_F(VirtualGamepad, TheHostSaysWhatKindOfGamepadItIs) {
  AddButton("Space", "0");
  Load();
  Host().table.GetJoystickType = KindOfAskedDevice;
  Play("down Space");
  EXPECT_WIRE("0ms 1:GPDBUTTON:305:1");  // layout C
  EXPECT_EQ(100801, asked_device);
}

TEST_F(VirtualGamepad, IsTheGuestsGamepadWhateverTheGamepadsKeymapSays) {
  AddButton("Space", "A");
  Load();
  Add<tavikeymapmanager::ConfigItem>("Click", "Pad A", {0.5, 0.5});
  LoadJoystick();
  Play("down Space; up Space");
  EXPECT_WIRE("0ms 1:GPDBUTTON:304:1", "0ms 1:GPDBUTTON:304:0");
}

TEST_F(VirtualGamepad, RapidButtonsReachNoButton) {
  for (const char* mode : {"Continue", "One_Off", ""}) {
    for (const bool enabled : {true, false}) {
      SCOPED_TRACE(mode);
      SetUp();
      auto* item = Add<VirtualJoystickBunchButtonConfigItem>("VirtualJoystickBunchButton", "F");
      item->map_text = "A";
      item->bunch_enabled = enabled;
      item->bunch_mode = mode;
      Load();
      Play("down F; wait 500; up F; wait 500");
      EXPECT_WIRE_NONE();
      EXPECT_CALLS("0ms mapped 1", "500ms mapped 1");
    }
  }
}

// ---- The shift button ----

TEST_F(VirtualGamepad, TheShiftButtonScalesTheLeftStickAtOnce) {
  AddLeft()->press_mode = "Click";
  AddRight()->press_mode = "Click";
  AddShift("Left Shift", 0.5);
  Load();
  Play("down W; down Up; wait 32");
  Forget();
  Play("down Left Shift");
  EXPECT_WIRE("32ms 1:LSTICKAXIS:0:-500000");  // the right one is left alone
  Play("up Up; down Up; wait 32");
  EXPECT_WIRE("32ms 1:RSTICKAXIS:0:0", "64ms 1:RSTICKAXIS:0:-1000000");
  Play("up Left Shift");
  EXPECT_WIRE("64ms 1:LSTICKAXIS:0:-1000000");
}

TEST_F(VirtualGamepad, TheShiftButtonScalesWhatComesWhileItIsHeld) {
  AddLeft();
  AddShift("Left Shift", 0.5);
  Load();
  Play("down Left Shift");
  EXPECT_WIRE("0ms 1:LSTICKAXIS:0:0");
  Play("down D; wait 112");
  EXPECT_WIRE("32ms 1:LSTICKAXIS:82031:0", "48ms 1:LSTICKAXIS:164062:0", "64ms 1:LSTICKAXIS:246093:0",
              "80ms 1:LSTICKAXIS:328125:0", "96ms 1:LSTICKAXIS:410156:0", "112ms 1:LSTICKAXIS:500000:0");
  Play("up D; up Left Shift");
  EXPECT_WIRE("112ms 1:LSTICKAXIS:0:0", "112ms 1:LSTICKAXIS:0:0");
}

// During a slide the current target counts, not the position of the stick.
TEST_F(VirtualGamepad, TheShiftButtonInASlideGoesByTheTarget) {
  AddLeft();
  AddShift("Left Shift", 0.5);
  Load();
  Play("down D; wait 32; down Left Shift; wait 16");
  EXPECT_WIRE("32ms 1:LSTICKAXIS:164062:0", "32ms 1:LSTICKAXIS:500000:0", "48ms 1:LSTICKAXIS:164062:0");
}

TEST_F(VirtualGamepad, OfTwoShiftButtonsTheLastPressCountsAndAnyReleaseEndsIt) {
  AddLeft()->press_mode = "Click";
  AddShift("Left Shift", 0.5);
  AddShift("Left Ctrl", 0.25);
  Load();
  Play("down D; wait 32");
  Forget();
  Play("down Left Shift; down Left Ctrl; up Left Shift; up Left Ctrl");
  EXPECT_WIRE("32ms 1:LSTICKAXIS:500000:0", "32ms 1:LSTICKAXIS:250000:0", "32ms 1:LSTICKAXIS:1000000:0",
              "32ms 1:LSTICKAXIS:1000000:0");
}

// ---- Connecting ----

TEST_F(VirtualGamepad, WithoutTheSettingNothingIsHeard) {
  Wheel().virtual_joystick = false;
  AddLeft();
  AddRight();
  AddButton("Space", "A");
  AddShift("Left Shift", 0.5);
  Load();
  Play("down W; down Up; down Space; down Left Shift; wait 200; up W; up Up; up Space; up Left Shift; wait 100");
  EXPECT_WIRE_NONE();
}

TEST_F(VirtualGamepad, ALoadThatConnectsSaysWhereTheSticksAreAndTellsTheHost) {
  LoadAgain(true);
  EXPECT_EQ("0ms 0:LSTICKAXIS:0:0\n0ms 0:RSTICKAXIS:0:0", WithoutSweep(TakeWire()));
  EXPECT_EQ("0ms virtual_joystick 1", TakeCalls().value(0));
  LoadAgain(true);  // connected once all the same
  EXPECT_EQ("0ms 1:LSTICKAXIS:0:0\n0ms 1:RSTICKAXIS:0:0", WithoutSweep(TakeWire()));
  QString text = "A";
  Q_EMIT VJoystickButtonEventSimulator::GetInstance()->sigVJoystickButtonPressOrRelease(text, true);
  EXPECT_WIRE("0ms 1:GPDBUTTON:304:1");
}

TEST_F(VirtualGamepad, ALoadWithoutTheSettingDisconnectsAndSaysNothingOfIt) {
  AddButton("Space", "A");
  Load();
  LoadAgain(false);
  EXPECT_EQ("", WithoutSweep(TakeWire()));
  QString text = "A";
  Q_EMIT VJoystickButtonEventSimulator::GetInstance()->sigVJoystickButtonPressOrRelease(text, true);
  EXPECT_WIRE_NONE();
}

// No reset affects the sticks, so a held one stays held through a load.
TEST_F(VirtualGamepad, AStickThatIsHeldThroughALoadCounts) {
  AddLeft();
  AddRight();
  Load();
  Play("down W; down Right; wait 200");
  Forget();
  LoadAgain(true);
  EXPECT_EQ("200ms 1:LSTICKAXIS:0:-1000000\n200ms 1:RSTICKAXIS:1000000:0", WithoutSweep(TakeWire()));
}

TEST_F(VirtualGamepad, AResetLeavesItAlone) {
  AddLeft();
  AddButton("Space", "A");
  AddShift("Left Shift", 0.5);
  Load();
  Play("down W; down Space; down Left Shift; wait 200");
  Forget();
  Play("reset full");
  EXPECT_EQ("", WithoutSweep(TakeWire()));
  Play("up Space; up Left Shift; up W");
  EXPECT_WIRE("200ms 1:GPDBUTTON:304:0", "200ms 1:LSTICKAXIS:0:-1000000", "200ms 1:LSTICKAXIS:0:0");
}

TEST_F(VirtualGamepad, AnotherDisplayGetsWhatComesNext) {
  AddLeft()->press_mode = "Click";
  Load();
  Play("down W; wait 32; display 2; up W");
  EXPECT_EQ("32ms 1:LSTICKAXIS:0:-1000000\n32ms 2:LSTICKAXIS:0:0", WithoutSweep(TakeWire()));
}

TEST_F(VirtualGamepad, AHostThatIsNotToldHasNone) {
  AddButton("Space", "A");
  Host().table.OnVirtualJoystickChanged = nullptr;
  Load();
  Play("down Space; up Space");
  EXPECT_WIRE_NONE();
}

TEST_F(VirtualGamepad, AFocusedTextFieldTakesTheKeys) {
  AddButton("Space", "A");
  Load();
  Play("textfield on; down Space; up Space");
  for (const QString& line : TakeWire()) EXPECT_FALSE(line.contains("GPDBUTTON")) << line.toStdString();
}

}  // namespace
}  // namespace taviinputmanager
