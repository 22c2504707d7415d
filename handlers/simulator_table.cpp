#include "handlers/simulator_table.h"

#include <algorithm>
#include <iterator>

#include "keymap/spell_cancel_config_item.h"
#include "simulators/bunch_tap_event_simulator.h"
#include "simulators/curve_event_simulator.h"
#include "simulators/eye_event_simulator.h"
#include "simulators/gravity_event_simulator.h"
#include "simulators/macro_event_simulator.h"
#include "simulators/right_walk_event_simulator.h"
#include "simulators/spell_event_simulator.h"
#include "simulators/staring_and_fire_event_simulator.h"
#include "simulators/swipehold_event_simulator.h"
#include "simulators/tap_event_simulator.h"
#include "simulators/vjoystick_bunch_button_event_simulator.h"
#include "simulators/vjoystick_button_event_simulator.h"
#include "simulators/vstick_left_shift_button_event_simulator.h"
#include "simulators/vstick_left_stick_simulator.h"
#include "simulators/vstick_right_stick_simulator.h"
#include "simulators/wheel_event_simulator.h"
#include "simulators/zoom_event_simulator.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::SpellCancelConfigItem;
namespace keywords = tavikeymapmanager::keywords;

namespace {

template <typename Simulator>
EventSimulator* Get(const ConfigItem* /*item*/) {
  return Simulator::GetInstance();
}

// The key cancels by itself only where the item says so; else only a fire button in use listens to it.
EventSimulator* GetForSpellCancel(const ConfigItem* item) {
  const auto* cancel = dynamic_cast<const SpellCancelConfigItem*>(item);
  return cancel && cancel->cancel_immediately ? SpellEventSimulator::GetInstance() : nullptr;
}

struct Row {
  const QString& type;
  EventSimulator* (*get)(const ConfigItem*);
};

const Row kRows[] = {
    {keywords::kTypeClick, Get<TapEventSimulator>},
    {keywords::kTypeBunchClick, Get<BunchTapEventSimulator>},
    {keywords::kTypeSwipehold, Get<SwipeholdEventSimulator>},
    {keywords::kTypeCurve, Get<CurveEventSimulator>},
    {keywords::kTypeRightWalk, Get<RightWalkEventSimulator>},
    {keywords::kTypeSpell, Get<SpellEventSimulator>},
    {keywords::kTypeStaring, Get<StaringAndFireEventSimulator>},
    {keywords::kTypeEye, Get<EyeEventSimulator>},
    {keywords::kTypeGravity, Get<GravityEventSimulator>},
    {keywords::kTypeSpellCancel, GetForSpellCancel},
    {keywords::kTypeMacro, Get<MacroEventSimulator>},
    {keywords::kTypeWheel, Get<WheelEventSimulator>},
    {keywords::kTypeZoom, Get<ZoomEventSimulator>},
    {keywords::kTypeObserve, Get<StaringAndFireEventSimulator>},
    {keywords::kTypeOperationRecorder, Get<MacroEventSimulator>},
    {keywords::kTypeVirtualLeftStick, Get<VStickLeftStickSimulator>},
    {keywords::kTypeVirtualRightStick, Get<VStickRightStickSimulator>},
    {keywords::kTypeVirtualJoystickButton, Get<VJoystickButtonEventSimulator>},
    {keywords::kTypeVirtualLeftStickShiftButton, Get<VStickLeftShiftButtonEventSimulator>},
    {keywords::kTypeVirtualJoystickBunchButton, Get<VJoystickBunchButtonEventSimulator>},
};

}  // namespace

EventSimulator* SimulatorOf(const ConfigItem* item) {
  const auto row =
      std::find_if(std::begin(kRows), std::end(kRows), [item](const Row& r) { return r.type == item->type; });
  return row == std::end(kRows) ? nullptr : row->get(item);
}

}  // namespace taviinputmanager
