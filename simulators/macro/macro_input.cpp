#include "simulators/macro/macro_input.h"

#include <set>

#include <QRandomGenerator>

#include "core/clock.h"
#include "core/display_geometry.h"
#include "core/input_manager.h"
#include "core/input_status_manager.h"
#include "core/numbers.h"
#include "core/pixels.h"
#include "keymap/keywords.h"
#include "simulators/macro/macro_command.h"
#include "simulators/macro/macro_points.h"
#include "slots/macro_held_input.h"

namespace taviinputmanager {

using tavikeymapmanager::MacroVerb;
namespace keywords = tavikeymapmanager::keywords;

namespace {

constexpr int kWheelUpCode = 224;
constexpr int kWheelDownCode = 225;
constexpr int kNotch = 120;         // eighths of a degree
constexpr qint64 kRealMouseId = 0;  // keys have no pointer, but use it too

MacroHeldInput& Held() { return *MacroHeldInput::GetInstance(); }

void Note(CodeSet* held, int code, bool press) {
  if (press) {
    held->Add(code);
  } else {
    held->Remove(code);
  }
}

// Window pixels.
QPoint Pointer() {
  const WindowGeometry window = DisplayGeometry::GetInstance()->GetWindowGeometry();
  return Difference(Clock::Pointer(), QPoint(window.x, window.y));
}

void SetKey(int code, bool press) {
  InputManager::GetInstance()->DispatchVirtualEvent(keywords::kDeviceKeyboard, kRealMouseId, code, press, QPointF());
  Note(&Held().keys, code, press);
}

void SetMouseButton(int button, bool press) {
  InputManager::GetInstance()->DispatchVirtualEvent(keywords::kDeviceMouse, kRealMouseId, button, press, Pointer());
  Note(&Held().mouse_buttons, button, press);
}

void SetJoystickButton(const QString& name, bool press) {
  InputManager::GetInstance()->DispatchVirtualJoystickButton(keywords::kDeviceJoystick, name, press);
  std::set<QString>& held = Held().joystick_buttons;
  if (press) {
    held.insert(name);
  } else {
    held.erase(name);
  }
}

void TurnWheel(int code, int delta, const QPointF& point) {
  InputManager::GetInstance()->DispatchVirtualWheel(keywords::kDeviceMouse, delta, code, point);
}

qint64 RandomId() {
  QRandomGenerator* random = QRandomGenerator::global();
  const quint64 high = random->generate();
  return static_cast<qint64>(high << 32 | random->generate());
}

}  // namespace

MacroInput::MacroInput() : vmouse_id_(RandomId()) {}

void MacroInput::Obey(const MacroCommand& command) {
  InputManager* manager = InputManager::GetInstance();
  InputStatusManager* status = InputStatusManager::GetInstance();
  const QString& name = command.argument;
  const int number = command.Integer();
  switch (command.verb) {
    case MacroVerb::kKeyboardPress: return SetKey(number, true);
    case MacroVerb::kKeyboardRelease: return SetKey(number, false);
    case MacroVerb::kKeyboardSwitch: return SetKey(number, !Held().keys.Contains(number));
    case MacroVerb::kMousePress: return SetMouseButton(number, true);
    case MacroVerb::kMouseRelease: return SetMouseButton(number, false);
    case MacroVerb::kMouseSwitch: return SetMouseButton(number, !Held().mouse_buttons.Contains(number));
    case MacroVerb::kMouseWheelUp: return TurnWheel(kWheelUpCode, MultiplyWrapped(number, kNotch), Pointer());
    case MacroVerb::kMouseWheelDown: return TurnWheel(kWheelDownCode, MultiplyWrapped(number, -kNotch), Pointer());
    case MacroVerb::kVmousePress: return SetVmouseButton(number, true);
    case MacroVerb::kVmouseRelease: return SetVmouseButton(number, false);
    case MacroVerb::kVmouseMove: return MoveVmouse(name);
    case MacroVerb::kVmouseWheelUp: return TurnWheel(kWheelUpCode, number, vmouse_point_);
    case MacroVerb::kVmouseWheelDown: return TurnWheel(kWheelDownCode, number, vmouse_point_);
    case MacroVerb::kJoystickPress: return SetJoystickButton(name, true);
    case MacroVerb::kJoystickRelease: return SetJoystickButton(name, false);
    case MacroVerb::kJoystickSwitch: return SetJoystickButton(name, Held().joystick_buttons.count(name) == 0);
    case MacroVerb::kTextInject: return manager->InjectText(name);
    case MacroVerb::kEnterStaring: return manager->SwitchStaring(true);
    case MacroVerb::kExitStaring: return manager->SwitchStaring(false);
    case MacroVerb::kHoldSwitch: status->ToggleInputHold(); return;
    case MacroVerb::kSwipeholdRadiusIncreasedSwitch: return status->ToggleSwipeholdFactor(command.Number());
    default: return;  // the worker's own
  }
}

void MacroInput::SetVmouseButton(int button, bool press) const {
  InputManager::GetInstance()->DispatchVirtualEvent(keywords::kDeviceMouse, vmouse_id_, button, press, vmouse_point_);
  Note(&Held().virtual_buttons, button, press);
}

void MacroInput::MoveVmouse(const QString& element) {
  const QPointF point = ReadMacroPoint(element);
  if (point.isNull()) return;  // not a point
  vmouse_point_ = DisplayGeometry::GetInstance()->RelativeToDisplay(point);
  for (const int button : {1, 2, 3}) {
    if (Held().virtual_buttons.Contains(button)) SetVmouseButton(button, true);  // moves the virtual pointer
  }
}

}  // namespace taviinputmanager
