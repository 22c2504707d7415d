#include "handlers/simulator_table.h"

#include "keymap/spell_cancel_config_item.h"
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

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::IsSameText;
using tavikeymapmanager::SpellCancelConfigItem;
namespace keywords = tavikeymapmanager::keywords;

namespace {

template <typename Simulator>
EventSimulator* Get(const ConfigItem* /*item*/) {
  return Simulator::GetInstance();
}

// The key cancels by itself only if the item says so; otherwise only a fire button that is held reacts to it.
EventSimulator* GetForSpellCancel(const ConfigItem* item) {
  const auto* cancel = dynamic_cast<const SpellCancelConfigItem*>(item);
  return cancel && cancel->cancel_immediately ? SpellEventSimulator::GetInstance() : nullptr;
}

// The device that an event comes from.
enum Source : unsigned { kKeyboardMouse = 1, kJoystick = 2, kWheel = 4 };

struct Row {
  const QString& type;
  EventSimulator* (*get)(const ConfigItem*);
  unsigned sources;  // the devices whose keys support this type
};

const Row kRows[] = {
    {keywords::kTypeClick, Get<TapEventSimulator>, kKeyboardMouse | kJoystick | kWheel},
    {keywords::kTypeBunchClick, Get<BunchTapEventSimulator>, kKeyboardMouse | kJoystick | kWheel},
    {keywords::kTypeSwipehold, Get<SwipeholdEventSimulator>, kKeyboardMouse},
    {keywords::kTypeCurve, Get<CurveEventSimulator>, kKeyboardMouse | kJoystick | kWheel},
    {keywords::kTypeRightWalk, Get<RightWalkEventSimulator>, kKeyboardMouse},
    {keywords::kTypeSpell, Get<SpellEventSimulator>, kKeyboardMouse | kJoystick},
    {keywords::kTypeStaring, Get<StaringAndFireEventSimulator>, kKeyboardMouse | kWheel},
    {keywords::kTypeEye, Get<EyeEventSimulator>, kKeyboardMouse},
    {keywords::kTypeGravity, Get<GravityEventSimulator>, kKeyboardMouse},
    {keywords::kTypeSpellCancel, GetForSpellCancel, kKeyboardMouse | kJoystick},
    {keywords::kTypeMacro, Get<MacroEventSimulator>, kKeyboardMouse | kJoystick | kWheel},
    {keywords::kTypeWheel, Get<WheelEventSimulator>, kKeyboardMouse},
    {keywords::kTypeZoom, Get<ZoomEventSimulator>, kKeyboardMouse | kWheel},
    {keywords::kTypeObserve, Get<StaringAndFireEventSimulator>, kKeyboardMouse},
    {keywords::kTypeOperationRecorder, Get<MacroEventSimulator>, kKeyboardMouse | kJoystick | kWheel},
    {keywords::kTypeVirtualLeftStick, Get<VStickLeftStickSimulator>, kKeyboardMouse},
    {keywords::kTypeVirtualRightStick, Get<VStickRightStickSimulator>, kKeyboardMouse},
    {keywords::kTypeVirtualJoystickButton, Get<VJoystickButtonEventSimulator>, kKeyboardMouse},
    {keywords::kTypeVirtualLeftStickShiftButton, Get<VStickLeftShiftButtonEventSimulator>, kKeyboardMouse},
    {keywords::kTypeVirtualJoystickBunchButton, Get<VJoystickBunchButtonEventSimulator>, kKeyboardMouse},
};

EventSimulator* Find(const ConfigItem* item, Source source) {
  if (!item) return nullptr;
  for (const Row& row : kRows) {
    if (IsSameText(row.type, item->type)) return (row.sources & source) != 0 ? row.get(item) : nullptr;
  }
  return nullptr;
}

}  // namespace

EventSimulator* SimulatorOf(const ConfigItem* item) { return Find(item, kKeyboardMouse); }

EventSimulator* JoystickSimulatorOf(const ConfigItem* item) { return Find(item, kJoystick); }

EventSimulator* WheelSimulatorOf(const ConfigItem* item) { return Find(item, kWheel); }

}  // namespace taviinputmanager
