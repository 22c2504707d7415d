#include "core/input_status_manager.h"
#include "keymap/tavikeymapmanager.h"
#include "slots/curve_slot_manager.h"
#include "slots/eye_slot_manager.h"
#include "slots/fire_slot_manager.h"
#include "slots/joystick_left_stick_slot_manager.h"
#include "slots/joystick_right_stick_slot_manager.h"
#include "slots/macro_held_input.h"
#include "slots/macro_slot_manager.h"
#include "slots/mouse_slot_manager.h"
#include "slots/mouse_swipehold_slot_manager.h"
#include "slots/mouse_wheel_slot_manager.h"
#include "slots/mult_point_slot_manager.h"
#include "slots/multipoint_slot_manager.h"
#include "slots/spell_slot_manager.h"
#include "slots/swipehold_slot_manager.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigItem;

class Reset : public Story {
 protected:
  Reset() { Load(); }

  // The releases of a range of slots, as the sweep sends them.
  static QStringList Sweep(int first, int last, int display) {
    QStringList lines;
    for (int slot = first; slot <= last; ++slot) {
      lines.append(QStringLiteral("0ms %1:SLOTRELEASE:%2").arg(display).arg(slot));
    }
    return lines;
  }
  // The lines after those of the simulators.
  QStringList TakeSweep(int lines) {
    const QStringList wire = TakeWire();
    return wire.mid(wire.size() - lines);
  }
  static void HoldKeys() {
    for (const int code : {158, 30, 272}) InputStatusManager::GetInstance()->AddHeldKey(code);
  }
};

TEST_F(Reset, TheSweepHasFiveModes) {
  InputStatusManager* status = InputStatusManager::GetInstance();
  const struct {
    int mode;
    QStringList lines;
  } rows[] = {
      {0, Sweep(0, 10, 7)}, {1, Sweep(0, 17, 7)}, {2, {"0ms 7:SLOTRELEASEALL"}}, {3, {}}, {4, Sweep(18, 25, 7)},
  };
  for (const auto& row : rows) {
    status->ReleaseSlots(row.mode, 7);
    EXPECT_EQ(row.lines, TakeWire()) << row.mode;
  }
}

TEST_F(Reset, SweepsThenReleasesKeysInAscendingOrderOnItsDisplay) {
  HoldKeys();
  OnResetInputStatus(false, 4);
  EXPECT_EQ(Sweep(0, 10, 4) + QStringList({"0ms 4:KBDRL:30:0", "0ms 4:KBDRL:158:0", "0ms 4:KBDRL:272:0"}),
            TakeSweep(14));
  OnResetInputStatus(false, 4);  // cleared by now
  EXPECT_EQ(Sweep(0, 10, 4), TakeSweep(11));
}

TEST_F(Reset, DisplayZeroIsThePresentOne) {
  OnResetInputStatus(true, 0);
  EXPECT_EQ(Sweep(0, 17, 1), TakeSweep(18));
}

TEST_F(Reset, TellsTheStatusFirst) {
  InputStatusManager::GetInstance()->SetStatus(InputStatus::Staring, "K");
  Forget();
  OnResetInputStatus(false, 0);
  EXPECT_EQ("0ms status 2 K", TakeCalls().first().toStdString());
  EXPECT_EQ(InputStatus::StaringOff, GetInputStatus());
  InputStatusManager::GetInstance()->SetStatus(InputStatus::Observing, "K");
  OnResetInputStatus(false, 0);
  EXPECT_EQ(InputStatus::StaringOff, GetInputStatus());
}

TEST_F(Reset, AStatusOfZeroStaysAndIsTold) {
  OnResetInputStatus(false, 0);
  EXPECT_EQ("0ms status 0", TakeCalls().first().toStdString());
}

TEST_F(Reset, AStatusMayBeSetByItsNumber) {
  Forget();
  InputStatusManager::GetInstance()->SetStatus(3, "K");
  EXPECT_CALLS("0ms status 3 K");
  EXPECT_EQ(InputStatus::Observing, GetInputStatus());
}

// The status is reported before any contact is released.
TEST_F(Reset, AChangeOfDisplayTellsThenReleasesOnTheOldOne) {
  InputStatusManager::GetInstance()->SetStatus(InputStatus::Staring, "K");
  HoldKeys();
  Host().StartTimeline();
  UpdateDisplayId(2);
  const auto timeline = Host().TakeTimeline();
  EXPECT_EQ("0ms ! status 2 K", tavi::FormatEntry(timeline.first()).toStdString());
  EXPECT_EQ("0ms 1:KBDRL:272:0", tavi::FormatEntry(timeline.last()).toStdString());
  EXPECT_EQ(2, InputStatusManager::GetInstance()->GetDisplayId());
}

TEST_F(Reset, AChangeOfDisplaySweepsAll) {
  UpdateDisplayId(2);
  EXPECT_EQ(QStringList{"0ms 1:SLOTRELEASEALL"}, TakeSweep(1));
  InputStatusManager::GetInstance()->ToggleInputHold();
  UpdateDisplayId(3);
  EXPECT_FALSE(isInputHoldWhenWindowDeactivate());
}

const struct {
  const char* name;
  int mode;
  bool fixed;    // fixed slots and the mouse
  bool taps;     // the tap pool
  bool macros;   // the macro pool
  bool records;  // what macros hold
} kModes[] = {
    {"input", kResetInput, true, false, false, false},
    {"full", kResetFull, true, true, false, true},
    {"all", kResetAll, true, true, true, true},
    {"macros alone", kResetMacro, false, false, true, true},
};

TEST_F(Reset, EachModeForgetsWhatIsItsOwn) {
  for (const auto& row : kModes) {
    MouseSlotManager::GetInstance()->position = FireSlotManager::GetInstance()->position =
        SpellSlotManager::GetInstance()->position = QPoint(5, 5);
    SwipeholdSlotManager::GetInstance(0)->SetDirectionKey(kDirectionUp, true);
    MultipointSlotManager::GetInstance()->PressAt(0.5, 0.5);
    MacroSlotManager::GetInstance()->Allocate({0.5, 0.5});
    MacroHeldInput::GetInstance()->keys.Add(30);
    InputStatusManager::GetInstance()->ResetGuestState(row.mode, 0);
    EXPECT_EQ(row.fixed, !MouseSlotManager::GetInstance()->HasTouch()) << row.name;
    EXPECT_EQ(row.fixed, !FireSlotManager::GetInstance()->HasTouch()) << row.name;
    EXPECT_EQ(row.fixed, !SpellSlotManager::GetInstance()->HasTouch()) << row.name;
    EXPECT_EQ(row.fixed, !SwipeholdSlotManager::GetInstance(0)->HasTouch()) << row.name;
    EXPECT_EQ(row.taps, !MultipointSlotManager::GetInstance()->HasTouch()) << row.name;
    EXPECT_EQ(row.macros, MacroSlotManager::GetInstance()->ActiveSlots().isEmpty()) << row.name;
    EXPECT_EQ(row.records, MacroHeldInput::GetInstance()->keys.IsEmpty()) << row.name;
  }
}

TEST_F(Reset, EveryModeButThatOfMacrosForgetsTheFixedSlots) {
  PositionSlotManager* const positions[] = {
      EyeSlotManager::GetInstance(),
      MouseSwipeholdSlotManager::GetInstance(),
      SpellSlotManager::GetInstance(),
      MouseSlotManager::GetInstance(),
      FireSlotManager::GetInstance(),
      JoystickLeftStickSlotManager::GetInstance(),
      JoystickRightStickSlotManager::GetInstance(),
  };
  for (const int mode : {kResetInput, kResetFull, kResetAll, kResetMacro}) {
    for (PositionSlotManager* slot : positions) slot->position = QPoint(5, 5);
    SwipeholdSlotManager::GetInstance(0)->SetDirectionKey(kDirectionUp, true);
    CurveSlotManager::GetInstance()->SetOffset(0.5, 0.5);
    InputStatusManager::GetInstance()->ResetGuestState(mode, 0);
    const bool is_left = mode == kResetMacro;
    for (const PositionSlotManager* slot : positions) {
      EXPECT_EQ(is_left, slot->HasTouch()) << "slot " << slot->GetSlotId() << ", mode " << mode;
    }
    EXPECT_EQ(is_left, SwipeholdSlotManager::GetInstance(0)->HasTouch()) << mode;
    EXPECT_EQ(is_left, CurveSlotManager::GetInstance()->HasTouch()) << mode;
  }
}

TEST_F(Reset, LeavesTheScrollFingerTheInnerWalkAndTouchInput) {
  MouseWheelSlotManager::GetInstance()->position = QPoint(5, 5);
  SwipeholdSlotManager::GetInstance(1)->SetDirectionKey(kDirectionUp, true);
  MultPointSlotManager::GetInstance()->Allocate({0.5, 0.5});
  InputStatusManager::GetInstance()->ResetGuestState(kResetAll, 0);
  EXPECT_TRUE(MouseWheelSlotManager::GetInstance()->HasTouch());
  EXPECT_TRUE(SwipeholdSlotManager::GetInstance(1)->HasTouch());
  EXPECT_FALSE(MultPointSlotManager::GetInstance()->ActiveSlots().isEmpty());
}

TEST_F(Reset, TheMacroModeSweepsItsSlotsAndLeavesKeys) {
  HoldKeys();
  InputStatusManager::GetInstance()->ToggleSwipeholdFactor(1.5);
  Forget();
  InputStatusManager::GetInstance()->ResetGuestState(kResetMacro, 3);
  EXPECT_EQ(Sweep(18, 25, 3), TakeWire());
  EXPECT_EQ(1.5, InputStatusManager::GetInstance()->GetSwipeholdFactor());
  InputStatusManager::GetInstance()->ResetGuestState(kResetInput, 3);
  EXPECT_EQ(1.0, InputStatusManager::GetInstance()->GetSwipeholdFactor());
}

TEST_F(Reset, TheRadiusSwitchGoesThereAndBack) {
  InputStatusManager* status = InputStatusManager::GetInstance();
  status->ToggleSwipeholdFactor(1.5);
  EXPECT_EQ(1.5, status->GetSwipeholdFactor());
  status->ToggleSwipeholdFactor(2.0);
  EXPECT_EQ(1.0, status->GetSwipeholdFactor());
}

TEST_F(Reset, AFullResetForgetsTheChordThatIsDown) {
  auto* chord = Add<tavikeymapmanager::ComposableConfigItem>("Click", "E", {0.5, 0.5});
  chord->first_key = Key("Q");
  Load();
  Play("down Q; down E; reset full");
  Forget();
  Play("up E");
  EXPECT_WIRE_NONE();
  Play("down Q; down E; reset");
  Forget();
  Play("up E");  // an input reset leaves it
  EXPECT_WIRE("0ms 1:SLOTRELEASE:11");
}

TEST_F(Reset, AFullResetForgetsButtonsAnInputResetDoesNot) {
  Play("mouse down left 100,100; reset; move 200,200");
  Wait(2);
  Play("move 200,200");
  EXPECT_EQ("2ms 1:SLOTPRESS:1:1:1:1:200:200", TakeWire().last().toStdString());
  Play("reset full");
  Wait(2);
  Forget();
  Play("move 300,300");
  EXPECT_WIRE_NONE();
}

}  // namespace
}  // namespace taviinputmanager
