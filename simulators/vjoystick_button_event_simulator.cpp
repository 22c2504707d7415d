#include "simulators/vjoystick_button_event_simulator.h"

namespace taviinputmanager {

VJoystickButtonEventSimulator* VJoystickButtonEventSimulator::GetInstance() {
  static VJoystickButtonEventSimulator instance;
  return &instance;
}

void VJoystickButtonEventSimulator::Press(tavikeymapmanager::ConfigItem* /*item*/,
                                          tavikeymapmanager::ConfigKey* /*key*/) {}

void VJoystickButtonEventSimulator::Release(tavikeymapmanager::ConfigItem* /*item*/,
                                            tavikeymapmanager::ConfigKey* /*key*/) {}

}  // namespace taviinputmanager
