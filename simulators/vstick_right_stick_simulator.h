// Four keys that are a gamepad's right stick.
#ifndef SIMULATORS_VSTICK_RIGHT_STICK_SIMULATOR_H_
#define SIMULATORS_VSTICK_RIGHT_STICK_SIMULATOR_H_

#include "simulators/event_simulator.h"

namespace taviinputmanager {

class VStickRightStickSimulator : public EventSimulator {
 public:
  static VStickRightStickSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;

 private:
  VStickRightStickSimulator() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_VSTICK_RIGHT_STICK_SIMULATOR_H_
