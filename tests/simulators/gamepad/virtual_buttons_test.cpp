// The virtual gamepad's buttons without the gamepad: their signals.
#include "core/input_status_manager.h"
#include "simulators/gamepad/vjoystick_bunch_button_event_simulator.h"
#include "simulators/gamepad/vjoystick_button_event_simulator.h"
#include "simulators/gamepad/vstick_left_shift_button_event_simulator.h"
#include "tests/simulators/gamepad/pad_story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::VirtualJoystickBunchButtonConfigItem;
using tavikeymapmanager::VirtualJoystickButtonConfigItem;
using tavikeymapmanager::VirtualStickLeftShiftButtonConfigItem;

class VirtualButtons : public PadStory {
 protected:
  VirtualButtons() {
    ListenToButton(VJoystickButtonEventSimulator::GetInstance());
    QObject::connect(VStickLeftShiftButtonEventSimulator::GetInstance(),
                     &VStickLeftShiftButtonEventSimulator::sigVStickLeftShiftButtonPressOrRelease,
                     [this](double factor, bool press) {
                       Say(QStringLiteral("%1 %2").arg(press ? "press" : "release").arg(factor));
                     });
  }

  // Presses and releases an item of another class, and no item.
  static void Misuse(EventSimulator* simulator) {
    ConfigItem other;
    ConfigKey key;
    for (ConfigItem* item : {static_cast<ConfigItem*>(nullptr), &other}) {
      simulator->Press(item, &key);
      simulator->Release(item, &key);
    }
  }
};

TEST_F(VirtualButtons, AButtonSaysItsName) {
  Add<VirtualJoystickButtonConfigItem>("VirtualJoystickButton", "Space")->map_text = "A";
  Add<VirtualJoystickButtonConfigItem>("VirtualJoystickButton", "E")->map_text = "";
  LoadPad();
  Play("down Space; wait 40; up Space; down E; up E");
  EXPECT_EQ("0ms press A, 40ms release A, 40ms press , 40ms release ", Said());
  EXPECT_WIRE_NONE();
}

TEST_F(VirtualButtons, AReleaseNeedsNoPressAndAPressNoRelease) {
  Add<VirtualJoystickButtonConfigItem>("VirtualJoystickButton", "Space")->map_text = "A";
  LoadPad();
  Play("up Space; down Space; down Space");
  EXPECT_EQ("0ms release A, 0ms press A, 0ms press A", Said());
}

TEST_F(VirtualButtons, AShiftButtonSaysItsFactorBothTimes) {
  Add<VirtualStickLeftShiftButtonConfigItem>("VirtualLeftStickShiftButton", "Left Shift")->factor = 0.25;
  Add<VirtualStickLeftShiftButtonConfigItem>("VirtualLeftStickShiftButton", "Left Ctrl")->factor = -2;
  LoadPad();
  Play("down Left Shift; wait 40; up Left Shift; down Left Ctrl; up Left Ctrl");
  EXPECT_EQ("0ms press 0.25, 40ms release 0.25, 40ms press -2, 40ms release -2", Said());
}

TEST_F(VirtualButtons, ItemsOfOtherClassesSayNothing) {
  LoadPad();
  Misuse(VJoystickButtonEventSimulator::GetInstance());
  Misuse(VStickLeftShiftButtonEventSimulator::GetInstance());
  EXPECT_EQ("", Said());
}

// Key F presses "X" of the virtual gamepad rapidly.
class RapidButtons : public PadStory {
 protected:
  RapidButtons() { ListenToButton(simulator_); }

  VirtualJoystickBunchButtonConfigItem* AddRapid(const QString& mode, const QString& key = "F",
                                                 const QString& text = "X") {
    auto* item = Add<VirtualJoystickBunchButtonConfigItem>("VirtualJoystickBunchButton", key);
    item->map_text = text;
    item->bunch_enabled = true;
    item->bunch_mode = mode;
    item->bunch_frequency = 20;  // 500 / 20 = 25 ms down, 25 ms up
    return item;
  }

  VJoystickBunchButtonEventSimulator* simulator_ = VJoystickBunchButtonEventSimulator::GetInstance();
};

TEST_F(RapidButtons, GoOnForAsLongAsTheKeyIsHeld) {
  AddRapid("Continue");
  LoadPad();
  Play("down F; wait 80");
  EXPECT_EQ("0ms press X, 25ms release X, 50ms press X, 75ms release X", Said());
  Play("wait 30; up F; wait 1000");
  EXPECT_EQ("100ms press X, 110ms release X", Said());
  EXPECT_WIRE_NONE();
}

TEST_F(RapidButtons, EndWithAReleaseAlsoWhereTheButtonIsUp) {
  AddRapid("Continue");
  LoadPad();
  Play("down F; wait 30; up F; wait 1000");
  EXPECT_EQ("0ms press X, 25ms release X, 30ms release X", Said());
}

TEST_F(RapidButtons, InAnyOtherModeRunWhenTheKeyComesUp) {
  for (const char* mode : {"One_Off", "", "continue"}) {
    SCOPED_TRACE(mode);
    auto* item = AddRapid(mode);
    item->bunch_frequency = 1;  // not read
    item->bunch_count = 2;
    LoadPad();
    Play("down F; wait 40");
    EXPECT_EQ("", Said());
    Play("up F; wait 1000");
    EXPECT_EQ("40ms press X, 65ms release X, 90ms press X, 115ms release X, 115ms release X", Said());
  }
}

TEST_F(RapidButtons, ACountOfZeroIsAPressAndARelease) {
  AddRapid("One_Off")->bunch_count = 0;
  LoadPad();
  Play("down F; up F; wait 1000");
  EXPECT_EQ("0ms press X, 0ms release X", Said());
}

TEST_F(RapidButtons, OnesThatAreNotEnabledArePlainWhateverTheirMode) {
  for (const char* mode : {"Continue", "One_Off", ""}) {
    SCOPED_TRACE(mode);
    AddRapid(mode)->bunch_enabled = false;
    LoadPad();
    Play("down F; wait 200; up F; wait 200");
    EXPECT_EQ("0ms press X, 200ms release X", Said());
  }
}

TEST_F(RapidButtons, EachKeyHasItsOwnRun) {
  AddRapid("Continue", "F", "X");
  AddRapid("Continue", "G", "Y");
  LoadPad();
  Play("down F; wait 10; down G; wait 20; up F; wait 10; up G; wait 100");
  EXPECT_EQ("0ms press X, 10ms press Y, 25ms release X, 30ms release X, 35ms release Y, 40ms release Y", Said());
}

TEST_F(RapidButtons, OneReleaseEndsBothRunsOfAKeyPressedTwice) {
  AddRapid("Continue");
  LoadPad();
  Play("down F; wait 10; down F; wait 5; up F; wait 1000");
  EXPECT_EQ("0ms press X, 10ms press X, 15ms release X, 15ms release X", Said());
}

// A run compares the device and the code of a key, never its name.
TEST_F(RapidButtons, AMouseButtonEndsItsRunByItsCode) {
  AddRapid("Continue", "Mouse Right");
  LoadPad();
  Play("mouse down right 100,100; wait 10; mouse up right 100,100; wait 1000");
  EXPECT_EQ("0ms press X, 10ms release X", Said());
}

TEST_F(RapidButtons, AResetOfInputLetsRunsGoOn) {
  AddRapid("Continue");
  LoadPad();
  Play("down F; wait 10");
  InputStatusManager::GetInstance()->ResetGuestState(kResetInput, 0);
  Play("wait 50");
  EXPECT_EQ("0ms press X, 25ms release X, 50ms press X", Said());
}

TEST_F(RapidButtons, AFullResetEndsHeldKeysOnly) {
  AddRapid("Continue", "F", "X");
  AddRapid("One_Off", "G", "Y");
  LoadPad();
  Play("down F; up G; wait 10");
  InputStatusManager::GetInstance()->ResetGuestState(kResetFull, 0);
  Play("wait 1000");
  EXPECT_EQ("0ms press X, 0ms press Y, 10ms release X, 25ms release Y, 25ms release Y", Said());
}

TEST_F(RapidButtons, AKeymapLoadEndsAllRuns) {
  AddRapid("Continue", "F", "X");
  AddRapid("One_Off", "G", "Y")->bunch_count = 100;
  LoadPad();
  Play("down F; up G; wait 10");
  EXPECT_EQ("0ms press X, 0ms press Y", Said());
  Load();
  EXPECT_EQ("10ms release X, 10ms release Y", Said());
  Wait(1000);
  EXPECT_EQ("", Said());
}

TEST_F(RapidButtons, ItemsOfOtherClassesDoNothing) {
  ConfigItem other;
  ConfigKey key = Key("F");
  LoadPad();
  for (ConfigItem* item : {static_cast<ConfigItem*>(nullptr), &other}) {
    simulator_->Press(item, &key);
    Wait(100);
    simulator_->Release(item, &key);
    Wait(100);
  }
  EXPECT_EQ("", Said());
}

}  // namespace
}  // namespace taviinputmanager
