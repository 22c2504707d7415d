// A key that slides one finger as a wheel would.
#ifndef SIMULATORS_WHEEL_EVENT_SIMULATOR_H_
#define SIMULATORS_WHEEL_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

namespace taviinputmanager {

class WheelEventSimulator : public EventSimulator {
 public:
  static WheelEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // Part of a reset of all input.
  void Reset();

 private:
  WheelEventSimulator() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_WHEEL_EVENT_SIMULATOR_H_
