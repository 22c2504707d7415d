// A key that is a gamepad button.
#ifndef SIMULATORS_VJOYSTICK_BUTTON_EVENT_SIMULATOR_H_
#define SIMULATORS_VJOYSTICK_BUTTON_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

namespace taviinputmanager {

class VJoystickButtonEventSimulator : public EventSimulator {
 public:
  static VJoystickButtonEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;

 private:
  VJoystickButtonEventSimulator() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_VJOYSTICK_BUTTON_EVENT_SIMULATOR_H_
