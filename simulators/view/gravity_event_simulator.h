// Four keys that tilt the gravity sensor.
#ifndef SIMULATORS_VIEW_GRAVITY_EVENT_SIMULATOR_H_
#define SIMULATORS_VIEW_GRAVITY_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

namespace taviinputmanager {

class GravityEventSimulator : public EventSimulator {
 public:
  static GravityEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // Part of a reset of all input.
  void Stop();

 private:
  GravityEventSimulator() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_VIEW_GRAVITY_EVENT_SIMULATOR_H_
