// Simulators that get no item do nothing.
#include "core/input_status_manager.h"
#include "handlers/qt_keyboard_mouse_event_simulate_handler.h"
#include "handlers/qt_wheel_event_simulate_handler.h"
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
#include "simulators/view/right_stick_eye_event_simulator.h"
#include "simulators/view/staring_and_fire_event_simulator.h"
#include "simulators/walk/left_stick_walk_event_simulator.h"
#include "simulators/walk/right_walk_event_simulator.h"
#include "simulators/walk/swipehold_event_simulator.h"
#include "simulators/wheel/wheel_event_simulator.h"
#include "simulators/wheel/zoom_event_simulator.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigKey;

class NoItem : public Story {
 protected:
  NoItem() { Load(); }

  template <typename Simulator>
  static EventSimulator* Get() {
    return Simulator::GetInstance();
  }
};

TEST_F(NoItem, IsNoOnesSimulator) {
  EXPECT_EQ(nullptr, QtKeyboardMouseEventSimulateHandler::GetSimulator(nullptr));
  EXPECT_EQ(nullptr, QtWheelEventSimulateHandler::GetWheelSimulator(nullptr));
}

TEST_F(NoItem, PressesNothing) {
  ConfigKey key = Key("W");
  for (EventSimulator* simulator :
       {Get<BunchTapEventSimulator>(), Get<CurveEventSimulator>(), Get<EyeEventSimulator>(),
        Get<GravityEventSimulator>(), Get<LeftStickWalkEventSimulator>(), Get<MacroEventSimulator>(),
        Get<RightStickEyeEventSimulator>(), Get<RightWalkEventSimulator>(), Get<SpellEventSimulator>(),
        Get<StaringAndFireEventSimulator>(), Get<SwipeholdEventSimulator>(), Get<TapEventSimulator>(),
        Get<VJoystickBunchButtonEventSimulator>(), Get<VJoystickButtonEventSimulator>(),
        Get<VStickLeftShiftButtonEventSimulator>(), Get<VStickLeftStickSimulator>(), Get<VStickRightStickSimulator>(),
        Get<WheelEventSimulator>(), Get<ZoomEventSimulator>()}) {
    simulator->Press(nullptr, &key);
    // The release of a curve only uses the key, and releases the contact of a run that has ended.
    if (simulator != Get<CurveEventSimulator>()) simulator->Release(nullptr, &key);
    Wait(200);
    EXPECT_WIRE_NONE();
  }
}

TEST_F(NoItem, LeavesTheStatusOfAConfigThatIsNotThere) {
  InputStatusManager* status = InputStatusManager::GetInstance();
  status->ResetForKeymap(nullptr, "com.example.game", {}, false, 0, 3);
  EXPECT_EQ(InputStatus::Normal, status->GetStatus());
  EXPECT_EQ(3, status->GetDisplayId());
}

}  // namespace
}  // namespace taviinputmanager
