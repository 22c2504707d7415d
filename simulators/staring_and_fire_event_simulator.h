// View control, fire and observe.
#ifndef SIMULATORS_STARING_AND_FIRE_EVENT_SIMULATOR_H_
#define SIMULATORS_STARING_AND_FIRE_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

namespace taviinputmanager {

class StaringAndFireEventSimulator : public EventSimulator {
 public:
  static StaringAndFireEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // Stops the timer that lifts the view finger.
  void StopAutoReset();

 private:
  StaringAndFireEventSimulator() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_STARING_AND_FIRE_EVENT_SIMULATOR_H_
