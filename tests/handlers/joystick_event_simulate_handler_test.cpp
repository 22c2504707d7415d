#include "handlers/joystick_event_simulate_handler.h"

#include "core/input_manager.h"
#include "handlers/simulator_table.h"
#include "keymap/tavikeymapmanager.h"
#include "simulators/cast/spell_event_simulator.h"
#include "simulators/curve/curve_event_simulator.h"
#include "simulators/macro/macro_event_simulator.h"
#include "simulators/tap/bunch_tap_event_simulator.h"
#include "simulators/tap/tap_event_simulator.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

namespace keywords = tavikeymapmanager::keywords;
using tavikeymapmanager::BunchClickConfigItem;
using tavikeymapmanager::ComposableConfigItem;
using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::JoystickEvent;
using tavikeymapmanager::SpellCancelConfigItem;
using tavikeymapmanager::TipConfigItem;

// Each button taps at its own point: "A" at x = 128, "B" at 256, "A+B" at 384, "X+B" at 512.
class Gamepad : public Story {
 protected:
  void SetUp() override { Load(); }  // an empty keymap, for display 1

  void Tap(const QString& button, int x) { Add<ConfigItem>("Click", "Pad " + button, {x / 1280.0, 0.5}); }
  static QString Down(int slot, int x) { return QStringLiteral("0ms 1:SLOTPRESS:%1:%1:1:1:%2:360").arg(slot).arg(x); }
  static QString Up(int slot) { return QStringLiteral("0ms 1:SLOTRELEASE:%1").arg(slot); }

  bool Press(const QString& button) { return Button(JoystickEvent::ButtonPress, button); }
  bool Release(const QString& button) { return Button(JoystickEvent::ButtonRelease, button); }
  bool Axis(int stick, double x = 1, double y = 0) {
    JoystickAxisEvent event(JoystickEvent::AxisTriggle, x, y, stick, 0);
    return handler_->OnAxis(&event);
  }

  JoystickEventSimulateHandler* handler_ = JoystickEventSimulateHandler::GetInstance();

 private:
  bool Button(QEvent::Type type, const QString& button) {
    JoystickButtonEvent event(type, button, 0, 0);
    return handler_->HandleButtonEvent(&event, 0);
  }
};

TEST_F(Gamepad, AButtonIsAKey) {
  Tap("A", 128);
  LoadJoystick();
  EXPECT_TRUE(Press("A"));
  EXPECT_WIRE(Down(11, 128));
  EXPECT_TRUE(Release("A"));
  EXPECT_WIRE(Up(11));
}

TEST_F(Gamepad, EventsOfTheHostArrive) {
  Tap("A", 128);
  LoadJoystick();
  Play("joy down A; joy up A");
  EXPECT_WIRE(Down(11, 128), Up(11));
}

TEST_F(Gamepad, ButtonsPressedByMacrosArrive) {
  Tap("A", 128);
  LoadJoystick();
  InputManager::GetInstance()->DispatchVirtualJoystickButton("joystick", "A", true);
  InputManager::GetInstance()->DispatchVirtualJoystickButton("joystick", "A", false);
  InputManager::GetInstance()->DispatchVirtualJoystickButton("mouse", "A", true);
  EXPECT_WIRE(Down(11, 128), Up(11));
}

TEST_F(Gamepad, AButtonThatIsNotMappedIsLeftOver) {
  Tap("A", 128);
  LoadJoystick();
  EXPECT_FALSE(Press("B"));
  EXPECT_FALSE(Release("B"));
  EXPECT_WIRE_NONE();
  EXPECT_CALLS_NONE();
}

TEST_F(Gamepad, ANameIsAKeyOfTheGamepadOnly) {
  Add<ConfigItem>("Click", "A", {0.1, 0.5});  // of the keyboard
  LoadJoystick();
  EXPECT_FALSE(Press("A"));
}

TEST_F(Gamepad, ACombinationComesBeforeTheButton) {
  Tap("A", 128);
  Tap("B", 256);
  Tap("A+B", 384);
  LoadJoystick();
  EXPECT_TRUE(Press("A"));
  EXPECT_TRUE(Press("B"));
  EXPECT_WIRE(Down(11, 128), Down(12, 384));
}

TEST_F(Gamepad, WithoutCombinationTheButtonCounts) {
  Tap("A", 128);
  Tap("B", 256);
  LoadJoystick();
  Press("A");
  EXPECT_TRUE(Press("B"));
  EXPECT_WIRE(Down(11, 128), Down(12, 256));
}

TEST_F(Gamepad, ACombinationHasAnOrder) {
  Tap("A+B", 384);
  LoadJoystick();
  EXPECT_FALSE(Press("B"));
  EXPECT_FALSE(Press("A"));  // that is B+A
  EXPECT_WIRE_NONE();
}

TEST_F(Gamepad, AHeldButtonThatIsNotMappedCombinesToo) {
  Tap("A+B", 384);
  LoadJoystick();
  EXPECT_FALSE(Press("A"));
  EXPECT_TRUE(Press("B"));
  EXPECT_WIRE(Down(11, 384));
}

TEST_F(Gamepad, AllCombinationsAreTried) {
  Tap("B", 256);
  Tap("X+B", 512);
  Tap("A+B", 384);
  LoadJoystick();
  Press("A");
  Press("Y");
  Press("X");
  EXPECT_TRUE(Press("B"));
  EXPECT_WIRE(Down(11, 384), Down(12, 512));  // in the order of the presses
}

TEST_F(Gamepad, AButtonDoesNotCombineWithItself) {
  Tap("B+B", 384);
  LoadJoystick();
  Press("B");
  EXPECT_FALSE(Press("B"));
  EXPECT_WIRE_NONE();
}

TEST_F(Gamepad, AReleasedButtonCombinesNoMore) {
  Tap("A+B", 384);
  LoadJoystick();
  Press("A");
  Press("A");  // held only once
  Release("A");
  EXPECT_FALSE(Press("B"));
  EXPECT_WIRE_NONE();
}

TEST_F(Gamepad, AReleaseEndsAllThatEndsInTheButton) {
  Tap("A", 128);
  Tap("B", 256);
  Tap("A+B", 384);
  LoadJoystick();
  Press("B");  // by itself
  Press("A");
  Press("B");  // once more, now as A+B
  Forget();
  EXPECT_TRUE(Release("B"));
  EXPECT_WIRE(Up(11), Up(13));
  EXPECT_TRUE(Release("A"));
  EXPECT_WIRE(Up(12));
}

TEST_F(Gamepad, TheFirstButtonDoesNotEndACombination) {
  Tap("A", 128);
  Tap("A+B", 384);
  LoadJoystick();
  Press("A");
  Press("B");
  Forget();
  EXPECT_TRUE(Release("A"));
  EXPECT_WIRE(Up(11));
  EXPECT_TRUE(Release("B"));
  EXPECT_WIRE(Up(12));
}

TEST_F(Gamepad, AReleaseEndsNoButtonWhoseNameOnlyEndsAlike) {
  Tap("LB", 128);
  LoadJoystick();
  Press("LB");
  EXPECT_FALSE(Release("B"));
  EXPECT_TRUE(Release("LB"));
}

TEST_F(Gamepad, AStrayReleaseDoesNothing) {
  Tap("A", 128);
  LoadJoystick();
  EXPECT_FALSE(Release("A"));
  Press("A");
  Press("A");  // active once
  Forget();
  EXPECT_TRUE(Release("A"));
  EXPECT_FALSE(Release("A"));
  EXPECT_WIRE(Up(11));
}

TEST_F(Gamepad, AMatchIsToldToTheHost) {
  Tap("A", 128);
  LoadJoystick();
  Press("A");
  EXPECT_CALLS("0ms mapped 0");
  Release("A");
  EXPECT_CALLS("0ms mapped 0");
  Host().table.OnMappedDeviceUsed = nullptr;
  EXPECT_TRUE(Press("A"));
}

TEST_F(Gamepad, TheFirstItemWinsAndTipsAreSkipped) {
  Add<TipConfigItem>("Click", "Pad A", {0.9, 0.5});
  Tap("A", 128);
  Tap("A", 256);
  LoadJoystick();
  EXPECT_TRUE(Press("A"));
  EXPECT_WIRE(Down(11, 128));
}

TEST_F(Gamepad, TheFirstItemWinsEvenIfItDoesNothing) {
  Add<ConfigItem>("Swipehold", "Pad A");
  Tap("A", 128);
  LoadJoystick();
  EXPECT_FALSE(Press("A"));
  EXPECT_CALLS("0ms mapped 0");
  EXPECT_WIRE_NONE();
}

TEST_F(Gamepad, AnItemWithAFirstKeyAnswersToItsKeyAlone) {
  auto* item = Add<ComposableConfigItem>("Click", "Pad A", {0.1, 0.5});
  item->first_key = Key("Pad B");
  LoadJoystick();
  EXPECT_TRUE(Press("A"));
  EXPECT_WIRE(Down(11, 128));
}

TEST_F(Gamepad, ButtonsWorkSomeTypesOnly) {
  const struct {
    QString type;
    EventSimulator* simulator;
  } rows[] = {
      {"Click", TapEventSimulator::GetInstance()},
      {"BunchClick", BunchTapEventSimulator::GetInstance()},
      {"Curve", CurveEventSimulator::GetInstance()},
      {"Spell", SpellEventSimulator::GetInstance()},
      {"Macro", MacroEventSimulator::GetInstance()},
      {"OperationRecorder", MacroEventSimulator::GetInstance()},
      {"SpellCancel", nullptr},  // of a class without the field "immediate"
      {"Swipehold", nullptr},
      {"RightWalk", nullptr},
      {"Staring", nullptr},
      {"Fire", nullptr},
      {"Eye", nullptr},
      {"Gravity", nullptr},
      {"Wheel", nullptr},
      {"Zoom", nullptr},
      {"Observe", nullptr},
      {"VirtualLeftStick", nullptr},
      {"VirtualRightStick", nullptr},
      {"VirtualJoystickButton", nullptr},
      {"VirtualLeftStickShiftButton", nullptr},
      {"VirtualJoystickBunchButton", nullptr},
      {"LeftStickWalk", nullptr},
      {"RightStickEye", nullptr},
      {"Tip", nullptr},
      {"Unknown", nullptr},
      {"click", nullptr},
      {"", nullptr},
  };
  ConfigItem item;
  for (const auto& row : rows) {
    item.type = row.type;
    EXPECT_EQ(row.simulator, JoystickSimulatorOf(&item)) << row.type.toStdString();
  }
}

TEST_F(Gamepad, ASpellCancelCountsWhereItIsImmediate) {
  SpellCancelConfigItem item;
  item.type = keywords::kTypeSpellCancel;
  EXPECT_EQ(nullptr, JoystickSimulatorOf(&item));
  item.cancel_immediately = true;
  EXPECT_EQ(SpellEventSimulator::GetInstance(), JoystickSimulatorOf(&item));
}

TEST_F(Gamepad, AFreshConfigLeavesWhatIsHeldAlone) {
  Tap("A", 128);
  LoadJoystick();
  Press("A");
  LoadJoystick();
  EXPECT_WIRE_NONE();
  EXPECT_FALSE(Release("A"));  // nothing matches it now
  EXPECT_WIRE_NONE();
  Tap("A", 128);
  LoadJoystick();
  EXPECT_TRUE(Release("A"));  // still to be released
  EXPECT_WIRE(Up(11));
  EXPECT_FALSE(Release("A"));
}

TEST_F(Gamepad, AReleaseThatNothingCanBeDoneWithStaysToBeDone) {
  Tap("A", 128);
  LoadJoystick();
  Press("A");
  Forget();
  Add<ConfigItem>("Swipehold", "Pad A");  // matches the button, but has no effect for buttons
  LoadJoystick();
  EXPECT_FALSE(Release("A"));
  EXPECT_CALLS("0ms mapped 0");
  Add<SpellCancelConfigItem>("SpellCancel", "Pad A");  // not immediate
  LoadJoystick();
  EXPECT_FALSE(Release("A"));
  EXPECT_WIRE_NONE();
  Tap("A", 128);
  LoadJoystick();
  EXPECT_TRUE(Release("A"));
  EXPECT_WIRE(Up(11));
  EXPECT_FALSE(Release("A"));
}

TEST_F(Gamepad, OneReleaseMayEndSomeAndLeaveOthers) {
  Tap("B", 256);
  Tap("A+B", 384);
  LoadJoystick();
  Press("B");
  Press("A");
  Press("B");
  Add<ConfigItem>("Zoom", "Pad B");  // without any effect
  Tap("A+B", 384);
  LoadJoystick();
  EXPECT_TRUE(Release("B"));
  EXPECT_WIRE(Up(12));
  Tap("B", 256);
  LoadJoystick();
  EXPECT_TRUE(Release("B"));
  EXPECT_WIRE(Up(11));
}

TEST_F(Gamepad, AStickAtRestLiftsItsFinger) {
  Add<tavikeymapmanager::JoystickLeftWalkConfigItem>("LeftStickWalk", "Pad Left_Stick", {0.25, 0.5});
  Add<tavikeymapmanager::JoystickRightEyeConfigItem>("RightStickEye", "Pad Right_Stick", {0.5, 0.5});
  LoadJoystick();
  Axis(0);
  Axis(1);
  Forget();
  EXPECT_TRUE(Axis(0, 0, 0));
  EXPECT_TRUE(Axis(1, -0.0, 0));
  EXPECT_WIRE("24ms 1:SLOTRELEASE:8", "24ms 1:SLOTRELEASE:9");
}

TEST_F(Gamepad, AResetForgetsNoButton) {
  Tap("A", 128);
  Tap("A+B", 384);
  LoadJoystick();
  Press("A");
  Play("reset full");
  Forget();
  EXPECT_TRUE(Press("B"));  // A is held
  EXPECT_WIRE(Down(11, 384));
  EXPECT_TRUE(Release("A"));  // and still to be released
}

TEST_F(Gamepad, NullItemsAreSkipped) {
  auto* config = new tavikeymapmanager::KeymapConfig;
  config->items = {nullptr};
  handler_->SetConfig(config);
  EXPECT_FALSE(Press("A"));
  EXPECT_FALSE(Axis(0));
  handler_->ForgetConfig();
  delete config;
}

TEST_F(Gamepad, AReleaseGoesToWhateverAnswersByThen) {
  Tap("A", 128);
  LoadJoystick();
  Press("A");
  Tap("A", 256);
  LoadJoystick();
  EXPECT_TRUE(Release("A"));
  EXPECT_WIRE_NONE();  // no contact was pressed at the new point
}

TEST_F(Gamepad, WithoutConfigNothingAnswers) {
  handler_->ForgetConfig();
  EXPECT_FALSE(Press("A"));
  EXPECT_FALSE(Release("A"));
  EXPECT_FALSE(Axis(0));
  EXPECT_FALSE(Axis(1));
}

// The line of the first tap presses and releases further buttons, like a macro.
void PressMoreButtons(const char* data, int length) {
  static bool is_first = true;
  if (!std::exchange(is_first, false)) return;
  EXPECT_EQ("1:SLOTPRESS:11:11:1:1:384:360\n", std::string(data, static_cast<size_t>(length)));
  InputManager* input = InputManager::GetInstance();
  input->DispatchVirtualJoystickButton("joystick", "A", false);
  input->DispatchVirtualJoystickButton("joystick", "X", false);
  for (const char* name : {"1", "2", "3", "4", "5", "6", "7", "8", "9"}) {
    input->DispatchVirtualJoystickButton("joystick", name, true);
  }
}

TEST_F(Gamepad, ButtonsMayChangeUnderAButton) {
  Tap("A+B", 384);
  Tap("X+B", 512);
  LoadJoystick();
  Press("A");
  Press("X");
  SetInputEventSendFunc(reinterpret_cast<void*>(PressMoreButtons));
  EXPECT_TRUE(Press("B"));
  EXPECT_TRUE(Release("B"));
  EXPECT_FALSE(Press("B"));  // A and X are up
}

TEST_F(Gamepad, SticksNeedAnItem) {
  LoadJoystick();
  EXPECT_FALSE(Axis(0));
  EXPECT_FALSE(Axis(1));
  Add<tavikeymapmanager::JoystickLeftWalkConfigItem>("LeftStickWalk", "Pad Left_Stick", {0.25, 0.5});
  Add<tavikeymapmanager::JoystickRightEyeConfigItem>("RightStickEye", "Pad Right_Stick", {0.5, 0.5});
  LoadJoystick();
  EXPECT_TRUE(Axis(0));
  EXPECT_WIRE("0ms 1:SLOTPRESS:8:8:1:1:320:360", "16ms 1:SLOTPRESS:8:8:1:1:320:360");
  EXPECT_TRUE(Axis(1));
  EXPECT_WIRE("24ms 1:SLOTPRESS:9:9:1:1:640:360");
  EXPECT_CALLS("0ms mapped 0", "24ms mapped 0");
}

TEST_F(Gamepad, OtherSticksAreLeftOver) {
  Add<tavikeymapmanager::JoystickLeftWalkConfigItem>("LeftStickWalk", "Pad Left_Stick", {0.25, 0.5});
  LoadJoystick();
  EXPECT_FALSE(Axis(2));
  EXPECT_FALSE(Axis(-1));
  EXPECT_FALSE(Axis(1));
  EXPECT_WIRE_NONE();
}

TEST_F(Gamepad, ASticksItemOfAnotherClassTakesTheEventAndDoesNothing) {
  Tap("Left_Stick", 128);
  Tap("Right_Stick", 256);
  LoadJoystick();
  EXPECT_TRUE(Axis(0));
  EXPECT_TRUE(Axis(1));
  EXPECT_WIRE_NONE();
}

TEST_F(Gamepad, EventsOfOtherTypesAreLeftOver) {
  Tap("A", 128);
  LoadJoystick();
  JoystickButtonEvent event(QEvent::User, "A", 0, 0);
  EXPECT_FALSE(handler_->HandleButtonEvent(&event, 0));
  EXPECT_WIRE_NONE();
}

}  // namespace
}  // namespace taviinputmanager
