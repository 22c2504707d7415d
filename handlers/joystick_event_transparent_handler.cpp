#include "handlers/joystick_event_transparent_handler.h"

#include <QPointF>

#include "core/display_geometry.h"
#include "core/guest_command.h"
#include "core/input_status_manager.h"
#include "core/numbers.h"
#include "keymap/joystick_event.h"
#include "simulators/gamepad/vjoystick_button_event_simulator.h"
#include "simulators/gamepad/vstick_left_shift_button_event_simulator.h"
#include "simulators/gamepad/vstick_left_stick_simulator.h"
#include "simulators/gamepad/vstick_right_stick_simulator.h"
#include "taviinputmanager/callbacks.h"
#include "taviinputmanager/joystick_event.h"

namespace taviinputmanager {

using tavikeymapmanager::JoystickEvent;

namespace {

constexpr int kVirtualDevice = 100801;
constexpr double kStickUnit = 1000000;   // range of the guest's stick axes
constexpr int kTriggersAreButtons = 1;   // simulate_mode
constexpr double kTouchpadPoint = 0.5;   // relative to the display, on both axes
constexpr int kUnknownTouchpoint = 100;  // without a display

// The hat's directions, which hosts report as text. Up and left are negative.
struct HatRow {
  ushort arrow;
  LineBuffer (*line)(int);
  int value;
};

constexpr HatRow kHats[] = {
    {0x2191, guest_command::HatY, -1},  // up
    {0x2193, guest_command::HatY, 1},   // down
    {0x2190, guest_command::HatX, -1},  // left
    {0x2192, guest_command::HatX, 1},   // right
};

bool AreTriggersButtons(int simulate_mode) { return simulate_mode == kTriggersAreButtons; }

}  // namespace

JoystickEventTransparentHandler* JoystickEventTransparentHandler::GetInstance() {
  static JoystickEventTransparentHandler instance;
  return &instance;
}

JoystickEventTransparentHandler::JoystickEventTransparentHandler() {
  for (auto& set : button_maps_) {
    for (int i = 0; i < kButtonLayoutCount; ++i) set[i] = MakeButtonMap(static_cast<ButtonLayout>(i));
  }
}

JoystickEventTransparentHandler::~JoystickEventTransparentHandler() = default;

// ---- The guest's gamepad ----

ButtonLayout JoystickEventTransparentHandler::LayoutOf(int device) const {
  if (!callbacks_ || !callbacks_->GetJoystickType) return ButtonLayout::kA;
  switch (callbacks_->GetJoystickType(device)) {
    case 2:
    case 3: return ButtonLayout::kB;
    case 4: return ButtonLayout::kC;
    default: return ButtonLayout::kA;
  }
}

int JoystickEventTransparentHandler::LookupCode(int device, const QString& name, int simulate_mode) const {
  const auto& maps = button_maps_[AreTriggersButtons(simulate_mode) ? 1 : 0];
  return maps[static_cast<int>(LayoutOf(device))].value(name, kNoButtonCode);
}

bool JoystickEventTransparentHandler::OnButtonPress(JoystickButtonEvent* event, int simulate_mode) {
  SendButton(*event, simulate_mode, true);
  return true;
}

bool JoystickEventTransparentHandler::OnButtonRelease(JoystickButtonEvent* event, int simulate_mode) {
  SendButton(*event, simulate_mode, false);
  return true;
}

void JoystickEventTransparentHandler::SendButton(const JoystickButtonEvent& event, int simulate_mode, bool press) {
  const int code = LookupCode(event.device, event.text, simulate_mode);
  const int value = press ? 1 : 0;
  if (code == kNoButtonCode) return SendHat(event.text, press);
  if (code == kTouchpadCode) return SendTouchpad(press);
  if (!AreTriggersButtons(simulate_mode)) {
    if (code == kLeftTriggerCode) return SendEvent(guest_command::LeftTriggerAxis(value));
    if (code == kRightTriggerCode) return SendEvent(guest_command::RightTriggerAxis(value));
  }
  SendEvent(guest_command::GamepadButton(code, value));
}

void JoystickEventTransparentHandler::SendHat(const QString& text, bool press) {
  if (text.size() != 1) return;  // a name that the layout does not have
  for (const HatRow& hat : kHats) {
    if (text.at(0) == QChar(hat.arrow)) return SendEvent(hat.line(press ? hat.value : 0));
  }
}

void JoystickEventTransparentHandler::SendTouchpad(bool press) {
  if (!press) return SendEvent(guest_command::TouchpadRelease());
  int x = kUnknownTouchpoint;
  int y = kUnknownTouchpoint;
  DisplayGeometry::GetInstance()->RelativeToTouch(x, y, kTouchpadPoint, kTouchpadPoint);
  SendEvent(guest_command::TouchpadLightTouch(x, y));
  SendEvent(guest_command::TouchpadPress());
}

bool JoystickEventTransparentHandler::OnAxis(JoystickAxisEvent* event) {
  const auto line = event->stick == kLeftStick ? guest_command::LeftStickAxis : guest_command::RightStickAxis;
  SendEvent(line(Truncate(event->x * kStickUnit), Truncate(event->y * kStickUnit)));
  return true;
}

// ---- The virtual gamepad ----

void JoystickEventTransparentHandler::SetVirtualJoystick(bool enable) {
  if (!enable) return DisconnectVirtualJoystick();
  ConnectVirtualJoystick();
  // A stick that is held already counts.
  QueryLeftStick();
  VStickRightStickSimulator::GetInstance()->QueryVirtualPoint(
      [this](QPointF point) { OnRightStickPointChanged(point); });
}

void JoystickEventTransparentHandler::ConnectVirtualJoystick() {
  using Handler = JoystickEventTransparentHandler;
  using LeftStick = VStickLeftStickSimulator;
  using RightStick = VStickRightStickSimulator;
  using Button = VJoystickButtonEventSimulator;
  using Shift = VStickLeftShiftButtonEventSimulator;
  connect(LeftStick::GetInstance(), &LeftStick::sigSwipeholdTargetPointChanged, this, &Handler::OnLeftStickPointChanged,
          Qt::UniqueConnection);
  connect(RightStick::GetInstance(), &RightStick::sigSwipeholdTargetPointChanged, this,
          &Handler::OnRightStickPointChanged, Qt::UniqueConnection);
  connect(Button::GetInstance(), &Button::sigVJoystickButtonPressOrRelease, this,
          &Handler::OnVJoystickButtonPressOrRelease, Qt::UniqueConnection);
  connect(Shift::GetInstance(), &Shift::sigVStickLeftShiftButtonPressOrRelease, this,
          &Handler::OnVStickLeftShiftButtonPressOrRelease, Qt::UniqueConnection);
}

void JoystickEventTransparentHandler::DisconnectVirtualJoystick() {
  for (QObject* part : std::initializer_list<QObject*>{
           VStickLeftStickSimulator::GetInstance(), VStickRightStickSimulator::GetInstance(),
           VJoystickButtonEventSimulator::GetInstance(), VStickLeftShiftButtonEventSimulator::GetInstance()}) {
    disconnect(part, nullptr, this, nullptr);
  }
}

void JoystickEventTransparentHandler::QueryLeftStick() {
  VStickLeftStickSimulator::GetInstance()->QueryVirtualPoint([this](QPointF point) { OnLeftStickPointChanged(point); });
}

void JoystickEventTransparentHandler::OnLeftStickPointChanged(QPointF& point) {
  MoveStick(point * left_stick_factor_, kLeftStick);
}

void JoystickEventTransparentHandler::OnRightStickPointChanged(QPointF& point) { MoveStick(point, kRightStick); }

void JoystickEventTransparentHandler::MoveStick(const QPointF& point, int stick) {
  JoystickAxisEvent event(JoystickEvent::AxisTriggle, point.x(), point.y(), stick, kVirtualDevice);
  OnAxis(&event);
}

void JoystickEventTransparentHandler::OnVJoystickButtonPressOrRelease(QString& text, bool press) {
  JoystickButtonEvent event(press ? JoystickEvent::ButtonPress : JoystickEvent::ButtonRelease, text, 0, kVirtualDevice);
  HandleButtonEvent(&event, InputStatusManager::GetInstance()->GetMode());
}

void JoystickEventTransparentHandler::OnVStickLeftShiftButtonPressOrRelease(double factor, bool press) {
  left_stick_factor_ = press ? factor : 1.0;
  QueryLeftStick();
}

}  // namespace taviinputmanager
