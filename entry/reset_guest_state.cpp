// The part of the status manager that depends on every folder: a reset calls everything that may hold something down.
#include "core/input_status_manager.h"
#include "handlers/qt_keyboard_mouse_event_simulate_handler.h"
#include "simulators/cast/spell_event_simulator.h"
#include "simulators/curve/curve_event_simulator.h"
#include "simulators/gamepad/vjoystick_bunch_button_event_simulator.h"
#include "simulators/macro/macro_event_simulator.h"
#include "simulators/tap/bunch_tap_event_simulator.h"
#include "simulators/view/eye_event_simulator.h"
#include "simulators/view/gravity_event_simulator.h"
#include "simulators/view/staring_and_fire_event_simulator.h"
#include "simulators/walk/right_walk_event_simulator.h"
#include "simulators/walk/swipehold_event_simulator.h"
#include "simulators/wheel/wheel_event_simulator.h"
#include "simulators/wheel/zoom_event_simulator.h"
#include "slots/curve_slot_manager.h"
#include "slots/eye_slot_manager.h"
#include "slots/fire_slot_manager.h"
#include "slots/joystick_left_stick_slot_manager.h"
#include "slots/joystick_right_stick_slot_manager.h"
#include "slots/macro_held_input.h"
#include "slots/macro_slot_manager.h"
#include "slots/mouse_slot_manager.h"
#include "slots/mouse_swipehold_slot_manager.h"
#include "slots/multipoint_slot_manager.h"
#include "slots/spell_slot_manager.h"
#include "slots/swipehold_slot_manager.h"

namespace taviinputmanager {
namespace {

void ResetFixedSlots() {
  EyeSlotManager::GetInstance()->Reset();
  MouseSwipeholdSlotManager::GetInstance()->Reset();
  SpellSlotManager::GetInstance()->Reset();
  SwipeholdSlotManager::GetInstance(0)->Reset();
  MouseSlotManager::GetInstance()->Reset();
  FireSlotManager::GetInstance()->Reset();
  JoystickLeftStickSlotManager::GetInstance()->Reset();
  JoystickRightStickSlotManager::GetInstance()->Reset();
  CurveEventSimulator::GetInstance()->Reset();
  CurveSlotManager::GetInstance()->Reset();
}

// `everything`: also ends macros and rapid taps that continue by themselves.
void ResetPools(bool everything) {
  MultipointSlotManager::GetInstance()->Reset();
  if (everything) MacroSlotManager::GetInstance()->Reset();
  MacroHeldInput::GetInstance()->Clear();
  MacroEventSimulator::GetInstance()->StopWorkers(everything);
  QtKeyboardMouseEventSimulateHandler::GetInstance()->ResetKeyState();
  BunchTapEventSimulator::GetInstance()->Reset(everything);
  VJoystickBunchButtonEventSimulator::GetInstance()->Reset(everything);
}

void ResetSimulators() {
  SwipeholdEventSimulator::GetInstance()->Reset();
  SpellEventSimulator::GetInstance()->ForceStop();
  RightWalkEventSimulator::GetInstance()->StopWalk();
  EyeEventSimulator::GetInstance()->Stop();
  GravityEventSimulator::GetInstance()->Stop();
  StaringAndFireEventSimulator::GetInstance()->StopAutoReset();
  WheelEventSimulator::GetInstance()->Reset();
  ZoomEventSimulator::GetInstance()->Reset();
}

}  // namespace

// kResetMacro is the only mode that uses nothing but what may be used on the thread of a replay.
void InputStatusManager::ResetGuestState(int mode, int display) {
  if (display == 0) display = display_id_;
  if (mode == kResetMacro) {
    MacroSlotManager::GetInstance()->Reset();
    MacroHeldInput::RequestClear();
    ReleaseSlots(mode, display);
    return;
  }
  ForgetInput(mode);
  SweepGuest(mode, display);
}

void InputStatusManager::ForgetInput(int mode) {
  swipehold_factor_ = 1.0;
  ResetFixedSlots();
  if (mode == kResetFull || mode == kResetAll) ResetPools(mode == kResetAll);
  ResetSimulators();
}

void InputStatusManager::ToggleSwipeholdFactor(double value) {
  swipehold_factor_ = swipehold_factor_ == 1.0 ? value : 1.0;
  SwipeholdEventSimulator::GetInstance()->SetRadiusFactor(swipehold_factor_);
}

}  // namespace taviinputmanager
