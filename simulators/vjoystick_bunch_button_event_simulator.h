// Rapid presses of a virtual gamepad button.
#ifndef SIMULATORS_VJOYSTICK_BUNCH_BUTTON_EVENT_SIMULATOR_H_
#define SIMULATORS_VJOYSTICK_BUNCH_BUTTON_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

namespace taviinputmanager {

class VJoystickBunchButtonEventSimulator : public EventSimulator {
 public:
  static VJoystickBunchButtonEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;

 private:
  VJoystickBunchButtonEventSimulator() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_VJOYSTICK_BUNCH_BUTTON_EVENT_SIMULATOR_H_
