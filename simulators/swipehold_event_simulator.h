// Walking by four keys.
#ifndef SIMULATORS_SWIPEHOLD_EVENT_SIMULATOR_H_
#define SIMULATORS_SWIPEHOLD_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

namespace taviinputmanager {

class SwipeholdEventSimulator : public EventSimulator {
 public:
  static SwipeholdEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // Part of a reset of all input.
  void Reset();
  // The walk's radius becomes `factor` times that of its item.
  void SetRadiusFactor(double factor);

 private:
  SwipeholdEventSimulator() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_SWIPEHOLD_EVENT_SIMULATOR_H_
