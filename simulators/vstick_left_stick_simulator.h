// Four keys that are a gamepad's left stick.
#ifndef SIMULATORS_VSTICK_LEFT_STICK_SIMULATOR_H_
#define SIMULATORS_VSTICK_LEFT_STICK_SIMULATOR_H_

#include "simulators/event_simulator.h"

namespace taviinputmanager {

class VStickLeftStickSimulator : public EventSimulator {
 public:
  static VStickLeftStickSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;

 private:
  VStickLeftStickSimulator() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_VSTICK_LEFT_STICK_SIMULATOR_H_
