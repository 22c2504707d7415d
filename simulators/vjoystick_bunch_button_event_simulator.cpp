#include "simulators/vjoystick_bunch_button_event_simulator.h"

namespace taviinputmanager {

VJoystickBunchButtonEventSimulator* VJoystickBunchButtonEventSimulator::GetInstance() {
  static VJoystickBunchButtonEventSimulator instance;
  return &instance;
}

void VJoystickBunchButtonEventSimulator::Press(tavikeymapmanager::ConfigItem* /*item*/,
                                               tavikeymapmanager::ConfigKey* /*key*/) {}

void VJoystickBunchButtonEventSimulator::Release(tavikeymapmanager::ConfigItem* /*item*/,
                                                 tavikeymapmanager::ConfigKey* /*key*/) {}

}  // namespace taviinputmanager
