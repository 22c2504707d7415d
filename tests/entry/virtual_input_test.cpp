// Input created inside the library, as if from the host.
#include "core/input_manager.h"
#include "core/input_status_manager.h"
#include "keymap/tavikeymapmanager.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::StaringConfigItem;

class VirtualInput : public Story {
 protected:
  InputManager* manager_ = InputManager::GetInstance();
  void Key(int code, bool press) { manager_->DispatchVirtualEvent("keyboard", 0, code, press, {}); }
};

TEST_F(VirtualInput, AKeyReachesItsItem) {
  Add<ConfigItem>("Click", "W", {0.5, 0.5});
  Load();
  Key(17, true);
  Key(17, false);
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360", "0ms 1:SLOTRELEASE:11");
}

TEST_F(VirtualInput, AnUnmappedKeyPassesWhateverTheKeymapSays) {
  Load();
  Key(30, true);
  Key(30, false);
  EXPECT_WIRE("0ms 1:KBDPR:30:1", "0ms 1:KBDRL:30:0");
}

TEST_F(VirtualInput, KeysIgnoreTextModeAndForcedTransparency) {
  Add<ConfigItem>("Click", "W", {0.5, 0.5});
  Load();
  Play("textfield on; transparent 1 on");
  Key(17, true);
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360");
}

TEST_F(VirtualInput, ARealButtonIsOneOfTheRealMouse) {
  Load();
  manager_->DispatchVirtualEvent("mouse", 0, Qt::LeftButton, true, {100, 200});
  manager_->DispatchVirtualEvent("mouse", 0, Qt::LeftButton, false, {100, 200});
  EXPECT_WIRE("0ms 1:SLOTPRESS:1:1:1:1:100:200", "0ms 1:SLOTRELEASE:1");
}

TEST_F(VirtualInput, AWheelCodeIsATurnOfTheWheel) {
  Settings().wheel_transparent = true;
  Load();
  manager_->DispatchVirtualEvent("mouse", 0, 548, true, {100, 200});
  manager_->DispatchVirtualEvent("mouse", 0, 549, true, {100, 200});
  EXPECT_WIRE("0ms 1:WHEEL:100:200:100:0", "0ms 1:WHEEL:100:200:-100:0");
}

TEST_F(VirtualInput, AVirtualPointerHasNoWheel) {
  Settings().wheel_transparent = true;
  Load();
  manager_->DispatchVirtualEvent("mouse", 77, 548, true, {100, 200});
  EXPECT_WIRE_NONE();  // an unknown button
}

TEST_F(VirtualInput, ACodeBelowZeroIsNoButton) {
  Settings().mouse_mode = "Mouse_OtherButton_Transparent";
  Load();
  manager_->DispatchVirtualEvent("mouse", 77, -8, true, {100, 200});
  manager_->DispatchVirtualEvent("mouse", 77, -8, false, {100, 200});
  EXPECT_WIRE_NONE();
}

TEST_F(VirtualInput, OtherDevicesDoNothing) {
  Load();
  manager_->DispatchVirtualEvent("joystick", 0, 17, true, {});
  manager_->DispatchVirtualEvent("Keyboard", 0, 17, true, {});
  manager_->DispatchVirtualJoystickButton("keyboard", "A", true);
  EXPECT_WIRE_NONE();
}

TEST_F(VirtualInput, AMacrosWheelIsNamedByItsOwnCodes) {
  Settings().wheel_transparent = true;
  Load();
  manager_->DispatchVirtualWheel("mouse", 240, 224, {100, 200});
  manager_->DispatchVirtualWheel("mouse", -1, 225, {100, 200});
  manager_->DispatchVirtualWheel("mouse", 120, 548, {100, 200});
  manager_->DispatchVirtualWheel("keyboard", 120, 224, {100, 200});
  EXPECT_WIRE("0ms 1:WHEEL:100:200:100:0", "0ms 1:WHEEL:100:200:-100:0");
}

TEST_F(VirtualInput, InjectedTextReleasesNoKeys) {
  Settings().keyboard_transparent = true;
  Load();
  Play("down A");
  Forget();
  manager_->InjectText("hello");
  manager_->InjectText("");
  EXPECT_WIRE("0ms text TEXT:hello");
}

TEST_F(VirtualInput, KnowsTheTypesOfTheKeymap) {
  Add<StaringConfigItem>("Staring", "F");
  Load();
  EXPECT_TRUE(manager_->isConfigHasSpeicalTypeKey("Staring"));
  EXPECT_FALSE(manager_->isConfigHasSpeicalTypeKey("Fire"));
}

// Whether SwitchStaring pressed the staring key: another item before it on the same key shows the press.
class SwitchStaring : public VirtualInput {
 protected:
  void LoadWithProbe(const ConfigKey& staring_key) {
    auto* probe = Add<ConfigItem>("Click", "", {0.5, 0.5});
    probe->key = staring_key;
    Add<StaringConfigItem>("Staring")->key = staring_key;
    Load();
  }
  bool IsPressed(bool enter) {
    Forget();
    manager_->SwitchStaring(enter);
    return !TakeWire().isEmpty();
  }
  static void SetStatus(InputStatus status) { InputStatusManager::GetInstance()->SetStatus(status, "K"); }
};

TEST_F(SwitchStaring, PressesTheKeyWhereThatChangesTheStatus) {
  LoadWithProbe(Story::Key("F"));
  const struct {
    InputStatus status;
    bool enter;
    bool pressed;
  } rows[] = {
      {InputStatus::Normal, true, false},    {InputStatus::Normal, false, false},
      {InputStatus::Staring, true, false},   {InputStatus::Staring, false, true},
      {InputStatus::StaringOff, true, true}, {InputStatus::StaringOff, false, false},
      {InputStatus::Observing, true, false}, {InputStatus::Observing, false, false},
  };
  for (const auto& row : rows) {
    SetStatus(row.status);
    EXPECT_EQ(row.pressed, IsPressed(row.enter)) << static_cast<int>(row.status) << row.enter;
  }
}

TEST_F(SwitchStaring, NeverReleasesIt) {
  LoadWithProbe(Story::Key("F"));
  manager_->SwitchStaring(true);
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360");
}

TEST_F(SwitchStaring, NeedsAStaringItem) {
  Load();
  SetStatus(InputStatus::StaringOff);
  EXPECT_FALSE(IsPressed(true));
}

TEST_F(SwitchStaring, NeedsBothCodes) {
  ConfigKey half = Story::Key("F");
  half.virtual_key = tavikeymapmanager::kUnsetCode;
  LoadWithProbe(half);
  EXPECT_FALSE(IsPressed(true));
  half = Story::Key("F");
  half.scancode = tavikeymapmanager::kUnsetCode;
  LoadWithProbe(half);
  EXPECT_FALSE(IsPressed(true));
}

TEST_F(SwitchStaring, CannotPressAJoystick) {
  LoadWithProbe(Story::Key("Pad A"));
  EXPECT_FALSE(IsPressed(true));
}

TEST_F(SwitchStaring, PressesAMouseButton) {
  LoadWithProbe(Story::Key("Mouse Middle"));
  EXPECT_TRUE(IsPressed(true));
}

}  // namespace
}  // namespace taviinputmanager
