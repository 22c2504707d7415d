#include "handlers/qt_keyboard_mouse_event_simulate_handler.h"

#include <QMouseEvent>

#include "core/input_manager.h"
#include "core/input_status_manager.h"
#include "core/virtual_keyboard_event.h"
#include "core/virtual_mouse_event.h"
#include "handlers/simulator_table.h"
#include "keymap/tavikeymapmanager.h"
#include "simulators/cast/spell_event_simulator.h"
#include "simulators/curve/curve_event_simulator.h"
#include "simulators/gamepad/vjoystick_bunch_button_event_simulator.h"
#include "simulators/gamepad/vjoystick_button_event_simulator.h"
#include "simulators/gamepad/vstick_left_shift_button_event_simulator.h"
#include "simulators/gamepad/vstick_left_stick_simulator.h"
#include "simulators/gamepad/vstick_right_stick_simulator.h"
#include "simulators/macro/macro_event_simulator.h"
#include "simulators/tap/bunch_tap_event_simulator.h"
#include "simulators/tap/tap_event_simulator.h"
#include "simulators/view/eye_event_simulator.h"
#include "simulators/view/gravity_event_simulator.h"
#include "simulators/view/staring_and_fire_event_simulator.h"
#include "simulators/walk/right_walk_event_simulator.h"
#include "simulators/walk/swipehold_event_simulator.h"
#include "simulators/wheel/wheel_event_simulator.h"
#include "simulators/wheel/zoom_event_simulator.h"
#include "slots/macro_slot_manager.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ComposableConfigItem;
using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::FireConfigItem;
using tavikeymapmanager::SpellCancelConfigItem;
using tavikeymapmanager::TipConfigItem;

class SimulateHandler : public Story {
 protected:
  ComposableConfigItem* AddChord(const QString& first, const QString& second, const QPointF& point) {
    auto* item = Add<ComposableConfigItem>("Click", second, point);
    item->first_key = Key(first);
    return item;
  }
  static void SetStatus(InputStatus status) { InputStatusManager::GetInstance()->SetStatus(status, "K"); }
  static void Virtual(const char* device, qint64 id, int code, bool press, const QPointF& point = {}) {
    InputManager::GetInstance()->DispatchVirtualEvent(device, id, code, press, point);
  }
};

TEST_F(SimulateHandler, AButtonIsMappedForItsPressAndItsRelease) {
  Add<ConfigItem>("Click", "Mouse Left", {0.5, 0.5});
  Load();
  const struct {
    QEvent::Type type;
    bool is_mapped;
  } rows[] = {{QEvent::MouseButtonPress, true},
              {QEvent::MouseButtonRelease, true},
              {QEvent::MouseButtonDblClick, false},
              {QEvent::MouseMove, false}};
  for (const auto& row : rows) {
    QMouseEvent event(row.type, QPointF(10, 10), QPointF(10, 10), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    EXPECT_EQ(row.is_mapped, QtKeyboardMouseEventSimulateHandler::GetInstance()->IsMouseButtonMapped(&event))
        << row.type;
  }
}

TEST_F(SimulateHandler, EveryTypeHasItsSimulator) {
  const struct {
    const char* type;
    EventSimulator* simulator;
  } rows[] = {
      {"Click", TapEventSimulator::GetInstance()},
      {"BunchClick", BunchTapEventSimulator::GetInstance()},
      {"Swipehold", SwipeholdEventSimulator::GetInstance()},
      {"Curve", CurveEventSimulator::GetInstance()},
      {"RightWalk", RightWalkEventSimulator::GetInstance()},
      {"Spell", SpellEventSimulator::GetInstance()},
      {"Staring", StaringAndFireEventSimulator::GetInstance()},
      {"Eye", EyeEventSimulator::GetInstance()},
      {"Gravity", GravityEventSimulator::GetInstance()},
      {"Macro", MacroEventSimulator::GetInstance()},
      {"Wheel", WheelEventSimulator::GetInstance()},
      {"Zoom", ZoomEventSimulator::GetInstance()},
      {"Observe", StaringAndFireEventSimulator::GetInstance()},
      {"OperationRecorder", MacroEventSimulator::GetInstance()},
      {"VirtualLeftStick", VStickLeftStickSimulator::GetInstance()},
      {"VirtualRightStick", VStickRightStickSimulator::GetInstance()},
      {"VirtualJoystickButton", VJoystickButtonEventSimulator::GetInstance()},
      {"VirtualLeftStickShiftButton", VStickLeftShiftButtonEventSimulator::GetInstance()},
      {"VirtualJoystickBunchButton", VJoystickBunchButtonEventSimulator::GetInstance()},
      {"Fire", nullptr},
      {"Tip", nullptr},
      {"LeftStickWalk", nullptr},
      {"RightStickEye", nullptr},
      {"Unknown", nullptr},
      {"click", nullptr},  // words are compared exactly
      {"", nullptr},
  };
  for (const auto& row : rows) {
    ConfigItem item;
    item.type = row.type;
    EXPECT_EQ(row.simulator, QtKeyboardMouseEventSimulateHandler::GetSimulator(&item)) << row.type;
  }
}

TEST_F(SimulateHandler, ACancelKeyHasOneOnlyWhenItIsImmediate) {
  SpellCancelConfigItem item;
  item.type = "SpellCancel";
  EXPECT_EQ(nullptr, QtKeyboardMouseEventSimulateHandler::GetSimulator(&item));
  item.cancel_immediately = true;
  EXPECT_EQ(SpellEventSimulator::GetInstance(), QtKeyboardMouseEventSimulateHandler::GetSimulator(&item));
  ConfigItem imposter;
  imposter.type = "SpellCancel";
  EXPECT_EQ(nullptr, QtKeyboardMouseEventSimulateHandler::GetSimulator(&imposter));
}

TEST_F(SimulateHandler, TheFirstItemOfAKeyWins) {
  Add<ConfigItem>("Click", "W", {0.25, 0.5});
  Add<ConfigItem>("Click", "W", {0.75, 0.5});
  Load();
  Play("down W");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360");
}

TEST_F(SimulateHandler, AMatchIsToldBeforeItsEffect) {
  Add<ConfigItem>("Click", "W", {0.25, 0.5});
  Load();
  Play("down W");
  QStringList told;
  Play("up W; down W");
  for (const auto& entry : Host().TakeTimeline()) told.append(tavi::FormatEntry(entry));
  EXPECT_EQ((QStringList{"0ms ! mapped 1", "0ms 1:SLOTPRESS:11:11:1:1:320:360", "0ms ! mapped 1",
                         "0ms 1:SLOTRELEASE:11", "0ms ! mapped 1", "0ms 1:SLOTPRESS:11:11:1:1:320:360"}),
            told);
}

TEST_F(SimulateHandler, AMatchIsToldOnlyWhereTheHostAsks) {
  Host().table.OnMappedDeviceUsed = nullptr;
  Add<ConfigItem>("Click", "W", {0.25, 0.5});
  Load();
  Play("down W");
  EXPECT_CALLS_NONE();
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360");
}

TEST_F(SimulateHandler, AnItemOfUnknownTypeCountsAsUnmapped) {
  Settings().keyboard_transparent = true;
  Add<ConfigItem>("Teleport", "W", {0.25, 0.5});
  Load();
  Play("down W; up W");
  EXPECT_WIRE("0ms 1:KBDPR:17:1", "0ms 1:KBDRL:17:0");
}

TEST_F(SimulateHandler, AnItemThatDoesNothingHidesThoseBehindIt) {
  Settings().keyboard_transparent = true;
  Add<FireConfigItem>("Fire", "W", {0.25, 0.5});
  Add<ConfigItem>("Click", "W", {0.75, 0.5});
  Load();
  Play("down W; up W");
  EXPECT_WIRE("0ms 1:KBDPR:17:1", "0ms 1:KBDRL:17:0");
}

TEST_F(SimulateHandler, AReleaseWithoutPressReachesTheItem) {
  Add<ConfigItem>("Click", "W", {0.25, 0.5});
  Load();
  Play("down W; up W; up W");
  EXPECT_EQ(3, TakeWire().size());
}

// ---- Chords ----

TEST_F(SimulateHandler, AChordIsReleasedByItsSecondKeyEvenWhenTheFirstIsUp) {
  AddChord("Q", "E", {0.5, 0.5});
  Load();
  Play("down Q; down E; up Q; wait 5; up E");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360", "5ms 1:SLOTRELEASE:11");
}

TEST_F(SimulateHandler, AChordNeedsItsFirstKeyHeld) {
  AddChord("Q", "E", {0.5, 0.5});
  Load();
  Play("down E; up E; down Q; up Q; down E; up E");
  EXPECT_WIRE_NONE();
  Play("down E; down Q");  // the wrong way round
  EXPECT_WIRE_NONE();
}

TEST_F(SimulateHandler, TheReleaseOfItsFirstKeyDisarmsAChordThatIsDown) {
  AddChord("Q", "E", {0.5, 0.5});
  Load();
  Play("down Q; down E; up Q; up E");
  Forget();
  Play("down E; up E");
  EXPECT_WIRE_NONE();
}

TEST_F(SimulateHandler, TheFirstOfTwoChordsWins) {
  AddChord("Q", "E", {0.25, 0.5});
  AddChord("Q", "E", {0.75, 0.5});
  Load();
  Play("down Q; down E");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360");
}

TEST_F(SimulateHandler, AMappedKeyBetweenLeavesTheChordArmed) {
  AddChord("Q", "E", {0.5, 0.5});
  Add<ConfigItem>("Click", "W", {0.25, 0.5});
  Load();
  Play("down Q; down W; down E");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360", "0ms 1:SLOTPRESS:12:12:1:1:640:360");
}

TEST_F(SimulateHandler, AnUnmappedKeyBetweenDisarmsIt) {
  AddChord("Q", "E", {0.5, 0.5});
  Load();
  Play("down Q; down R; down E");
  EXPECT_WIRE_NONE();
}

TEST_F(SimulateHandler, TheReleaseOfAnotherKeyLeavesTheArmedOne) {
  AddChord("Q", "E", {0.5, 0.5});
  Load();
  Play("down R; down Q; up R; down E");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360");
}

TEST_F(SimulateHandler, AChordGoesBeforeTheSingleKey) {
  Add<ConfigItem>("Click", "E", {0.25, 0.5});
  AddChord("Q", "E", {0.5, 0.5});
  Load();
  Play("down E; up E");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360", "0ms 1:SLOTRELEASE:11");
  Play("down Q; down E; up E; up Q");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360", "0ms 1:SLOTRELEASE:11");
}

TEST_F(SimulateHandler, AChordIsFoundWithoutTellingTheHost) {
  AddChord("Q", "E", {0.5, 0.5});
  Load();
  Play("down Q; down E; up E");
  for (const QString& call : TakeCalls()) EXPECT_FALSE(call.contains("mapped")) << call.toStdString();
}

TEST_F(SimulateHandler, AChordThatDoesNothingCountsAsUnmapped) {
  Settings().keyboard_transparent = true;
  AddChord("Q", "E", {0.5, 0.5})->type = "Teleport";
  Load();
  Play("down Q; down E; up E");
  EXPECT_WIRE("0ms 1:KBDPR:16:1", "0ms 1:KBDPR:18:1", "0ms 1:KBDRL:18:0");
}

TEST_F(SimulateHandler, ATipAnswersToNothing) {
  auto* tip = Add<TipConfigItem>("Click", "E", {0.5, 0.5});
  tip->first_key = Key("Q");
  Add<TipConfigItem>("Click", "W", {0.5, 0.5});
  Load();
  Play("down W; down Q; down E");
  EXPECT_WIRE_NONE();
}

// An item with its own matching, as a keymap library may define: the handler skips tips by class all the same.
struct GreedyTip : TipConfigItem {
  bool IsKeyMatch(const tavikeymapmanager::ConfigKey&) const override { return true; }
  bool IsChordMatch(const tavikeymapmanager::ConfigKey&, const tavikeymapmanager::ConfigKey&) const override {
    return true;
  }
};

TEST_F(SimulateHandler, ATipIsKnownByItsClass) {
  Add<GreedyTip>("Click", "E", {0.5, 0.5});
  Load();
  Play("down W; down E");
  EXPECT_WIRE_NONE();
}

// ---- Escape ----

TEST_F(SimulateHandler, EscapeActsAsBack) {
  Load();
  Play("down Esc; wait 30; up Esc");
  EXPECT_WIRE("0ms 1:KBDPR:158:1", "30ms 1:KBDRL:158:0");
}

TEST_F(SimulateHandler, AHeldBackIsReleasedByAReset) {
  Load();
  Play("down Esc; reset");
  EXPECT_EQ("0ms 1:KBDRL:158:0", TakeWire().last().toStdString());
  Play("up Esc; reset");  // released normally: nothing is left
  EXPECT_EQ("0ms 1:SLOTRELEASE:10", TakeWire().last().toStdString());
}

TEST_F(SimulateHandler, EscapeIsUsedUpEvenWhereItDoesNothing) {
  Settings().keyboard_transparent = true;
  Load();
  Play("escape back off; down Esc; up Esc");
  EXPECT_WIRE_NONE();
}

TEST_F(SimulateHandler, EscapeGoesToTheGuestWhereTheKeymapSaysSo) {
  Settings().escape_to_guest = true;
  Load();
  Play("down Esc; up Esc");
  EXPECT_WIRE_NONE();
  Settings().escape_to_guest = true;
  Settings().keyboard_transparent = true;
  Load();
  Play("down Esc; up Esc");
  EXPECT_WIRE("0ms 1:KBDPR:1:1", "0ms 1:KBDRL:1:0");
}

TEST_F(SimulateHandler, AMappedEscapeIsAKeyLikeAnyOther) {
  Add<ConfigItem>("Click", "Esc", {0.5, 0.5});
  Load();
  Play("down Esc; up Esc");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360", "0ms 1:SLOTRELEASE:11");
}

TEST_F(SimulateHandler, AMacrosEscapeNeedsNobodysLeaveAndIsReleasedOnceMore) {
  Load();
  Play("escape back off");
  Virtual("keyboard", 0, 1, true);
  Virtual("keyboard", 0, 1, false);
  EXPECT_WIRE("0ms 1:KBDPR:158:1", "0ms 1:KBDRL:158:0");
  Play("reset");
  EXPECT_EQ("0ms 1:KBDRL:158:0", TakeWire().last().toStdString());
  Settings().escape_to_guest = true;
  Load();
  Virtual("keyboard", 0, 1, true);
  Virtual("keyboard", 0, 1, false);
  EXPECT_WIRE("0ms 1:KBDPR:1:1", "0ms 1:KBDRL:1:0");
  Play("reset");
  EXPECT_EQ("0ms 1:KBDRL:1:0", TakeWire().last().toStdString());
}

TEST_F(SimulateHandler, TellsWhetherEscapeIsTaken) {
  AddChord("Esc", "E", {0.5, 0.5});
  Load();
  Forget();
  // An unmapped key is armed: neither Escape and then W, nor W and then Escape match an item.
  Play("down W");
  EXPECT_CALLS("0ms escape_occupied 0");
  Play("up W");
  EXPECT_CALLS("0ms escape_occupied 0");
  Play("down E");  // armed E: the chord of Escape and E matches
  EXPECT_CALLS("0ms escape_occupied 1");
  Play("up E");
  EXPECT_CALLS("0ms escape_occupied 0");
}

TEST_F(SimulateHandler, AnArmedKeyWhoseChordEndsInEscapeTakesIt) {
  AddChord("E", "Esc", {0.5, 0.5});
  Load();
  Play("down E");
  EXPECT_CALLS("0ms escape_occupied 1");
}

TEST_F(SimulateHandler, AMappedEscapeIsTaken) {
  Add<ConfigItem>("Click", "Esc", {0.5, 0.5});
  Load();
  UpdateDisplayId(1);
  EXPECT_CALLS("0ms status 0", "0ms escape_occupied 1", "0ms gravity 0 0 0");
}

TEST_F(SimulateHandler, AKeymapThatIsSetAgainIsReadAnew) {
  Load();
  tavikeymapmanager::KeymapConfig config;
  auto* click = new ConfigItem;
  click->type = "Click";
  click->key = Key("W");
  config.items = {click};
  auto* handler = QtKeyboardMouseEventSimulateHandler::GetInstance();
  Forget();
  handler->SetConfig(&config);
  EXPECT_CALLS("0ms escape_occupied 0");
  click->key = Key("Esc");
  handler->SetConfig(&config);
  EXPECT_CALLS("0ms escape_occupied 1");
  handler->ForgetConfig();
}

TEST_F(SimulateHandler, AnEscapeThatPassesIsTaken) {
  Settings().escape_to_guest = true;
  Settings().keyboard_transparent = true;
  Load();
  UpdateDisplayId(1);
  EXPECT_CALLS("0ms status 0", "0ms escape_occupied 1", "0ms gravity 0 0 0");
  Settings().escape_to_guest = true;
  Load();
  UpdateDisplayId(1);
  EXPECT_CALLS("0ms status 0", "0ms escape_occupied 0", "0ms gravity 0 0 0");
}

TEST_F(SimulateHandler, AnEscapeUsedUpArmsNothing) {
  Load();
  Play("down Esc; up Esc");
  EXPECT_CALLS_NONE();
}

TEST_F(SimulateHandler, AHostNeedNotListenToThat) {
  Host().table.OnEscapeKeyOccupied = nullptr;
  Load();
  Play("down W; up W");
  EXPECT_CALLS_NONE();
}

// ---- The left button ----

TEST_F(SimulateHandler, TheLeftButtonIsAFinger) {
  Load();
  Play("wait 5; mouse down left 100,200; move 110,210; wait 10; mouse up left 120,220");
  EXPECT_WIRE("5ms 1:SLOTPRESS:1:1:1:1:100:200", "5ms 1:SLOTPRESS:1:1:1:1:110:210", "15ms 1:SLOTRELEASE:1");
}

TEST_F(SimulateHandler, AFingerInTheCornerOfTheViewIsUp) {
  Load();
  Play("wait 5; mouse down left 5,5; move 0,0; wait 5; move 0,7");
  EXPECT_WIRE("5ms 1:SLOTPRESS:1:1:1:1:5:5", "5ms 1:SLOTRELEASE:1", "10ms 1:SLOTPRESS:1:1:1:1:0:7");
}

TEST_F(SimulateHandler, AFreePointerSaysNothing) {
  Load();
  Play("wait 5; move 10,10; wait 5; move 20,20");
  EXPECT_WIRE_NONE();
}

TEST_F(SimulateHandler, AMappedLeftButtonIsStillAPlainFinger) {
  Add<ConfigItem>("Click", "Mouse Left", {0.5, 0.5});
  Load();
  Play("mouse down left 100,200; mouse up left 100,200");
  EXPECT_WIRE("0ms 1:SLOTPRESS:1:1:1:1:100:200", "0ms 1:SLOTRELEASE:1");
}

TEST_F(SimulateHandler, WhileStaringALeftPressIsRememberedAndMakesNoTouch) {
  Load();
  SetStatus(InputStatus::Staring);
  Play("wait 5; mouse down left 100,200");
  EXPECT_WIRE_NONE();
  Play("move 110,210");  // a move with a held button
  EXPECT_WIRE("5ms 1:SLOTPRESS:1:1:1:1:110:210");
  Play("mouse up left 110,210");
  EXPECT_WIRE_NONE();
}

TEST_F(SimulateHandler, AFireItemIsAPlainFingerWhileNotStaring) {
  Add<FireConfigItem>("Fire", "Mouse Left", {0.5, 0.5});
  Load();
  Play("mouse down left 100,200; mouse up left 100,200");
  EXPECT_WIRE("0ms 1:SLOTPRESS:1:1:1:1:100:200", "0ms 1:SLOTRELEASE:1");
}

// ---- Other buttons ----

TEST_F(SimulateHandler, AnUnmappedRightButtonSaysNothing) {
  Load();
  Play("wait 5; mouse down right 10,10; move 20,20; mouse up right 20,20");
  EXPECT_WIRE_NONE();
}

TEST_F(SimulateHandler, AMappedButtonWorksAsAKey) {
  Add<ConfigItem>("Click", "Mouse Middle", {0.5, 0.5});
  Load();
  Play("mouse down middle 10,10; wait 9; mouse up middle 10,10");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360", "9ms 1:SLOTRELEASE:11");
}

// ---- Virtual pointers ----

TEST_F(SimulateHandler, AVirtualPointerHasAFingerOfTheMacroPool) {
  Load();
  Virtual("mouse", 77, 1, true, {100, 200});
  Virtual("mouse", 88, 1, true, {300, 200});
  Virtual("mouse", 77, 1, false, {100, 200});
  EXPECT_WIRE("0ms 1:SLOTPRESS:18:18:1:1:100:200", "0ms 1:SLOTPRESS:19:19:1:1:300:200", "0ms 1:SLOTRELEASE:18");
  EXPECT_EQ(QSet<int>{19}, MacroSlotManager::GetInstance()->ActiveSlots());
}

TEST_F(SimulateHandler, APressAgainMovesIt) {
  Load();
  Virtual("mouse", 77, 1, true, {100, 200});
  Virtual("mouse", 77, 1, true, {110, 200});
  EXPECT_WIRE("0ms 1:SLOTPRESS:18:18:1:1:100:200", "0ms 1:SLOTPRESS:18:18:1:1:110:200");
}

TEST_F(SimulateHandler, AVirtualReleaseWithoutPressDrawsASlotAndGivesItBack) {
  Load();
  Virtual("mouse", 77, 1, false, {100, 200});
  EXPECT_WIRE("0ms 1:SLOTRELEASE:18");
  EXPECT_TRUE(MacroSlotManager::GetInstance()->ActiveSlots().isEmpty());
}

TEST_F(SimulateHandler, AVirtualPressWithAFullPoolIsGivenUp) {
  Load();
  for (int slot = 18; slot <= 25; ++slot) MacroSlotManager::GetInstance()->Reserve(slot);
  Virtual("mouse", 77, 1, true, {100, 200});
  Virtual("mouse", 77, 1, false, {100, 200});
  EXPECT_WIRE_NONE();
  MacroSlotManager::GetInstance()->Free(20);
  Virtual("mouse", 77, 1, true, {100, 200});
  EXPECT_WIRE("0ms 1:SLOTPRESS:20:20:1:1:100:200");
}

TEST_F(SimulateHandler, AResetLeavesTheButtonsOfVirtualPointers) {
  Load();
  Virtual("mouse", 77, 1, true, {100, 200});
  QtKeyboardMouseEventSimulateHandler::GetInstance()->ResetKeyState();
  Wait(5);
  VirtualMouseEvent move(QEvent::MouseMove, {110, 200}, Qt::NoButton, Qt::LeftButton, 77);
  OnQtInputEvent(&move);
  EXPECT_WIRE("0ms 1:SLOTPRESS:18:18:1:1:100:200", "5ms 1:SLOTPRESS:18:18:1:1:110:200");
}

// ---- Events of every form ----

TEST_F(SimulateHandler, AVirtualButtonMayCarryModifiers) {
  Load();
  VirtualMouseEvent press(QEvent::MouseButtonPress, {100, 200}, Qt::LeftButton, Qt::LeftButton, Qt::ShiftModifier, 77);
  OnQtInputEvent(&press);
  Wait(5);
  VirtualMouseEvent move(QEvent::MouseMove, {110, 200}, Qt::NoButton, Qt::LeftButton, 77);
  OnQtInputEvent(&move);
  EXPECT_WIRE("0ms 1:SLOTPRESS:18:18:1:1:100:200", "5ms 1:SLOTPRESS:18:18:1:1:110:200");
  EXPECT_EQ(Qt::ShiftModifier, press.modifiers());
}

TEST_F(SimulateHandler, AVirtualEventInTheFormOfARealOneIsOfPointerZero) {
  VirtualMouseEvent button(QEvent::MouseButtonPress, {100, 200}, Qt::LeftButton, Qt::LeftButton, Qt::ShiftModifier);
  EXPECT_EQ(0, button.slot_index);
  EXPECT_EQ(Qt::ShiftModifier, button.modifiers());
  VirtualKeyboardEvent key(QEvent::KeyPress, Qt::Key_W, Qt::ShiftModifier);
  EXPECT_EQ(0, key.slot_index);
  EXPECT_EQ(Qt::ShiftModifier, key.modifiers());
}

TEST_F(SimulateHandler, AVirtualKeyMayHaveTheFormWithNativeCodes) {
  Load();
  Play("escape back off");  // the guest's back for a macro only
  VirtualKeyboardEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, 1, 27, 0, "", false, 1, 77);
  EXPECT_TRUE(QtKeyboardMouseEventSimulateHandler::GetInstance()->OnKeyPress(&escape));
  EXPECT_WIRE("0ms 1:KBDPR:158:1");
  EXPECT_EQ(77, escape.slot_index);
}

}  // namespace
}  // namespace taviinputmanager
