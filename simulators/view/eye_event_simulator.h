// Four keys that turn the view.
#ifndef SIMULATORS_VIEW_EYE_EVENT_SIMULATOR_H_
#define SIMULATORS_VIEW_EYE_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

namespace taviinputmanager {

class EyeEventSimulator : public EventSimulator {
 public:
  static EyeEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // Part of a reset of all input.
  void Stop();

 private:
  EyeEventSimulator() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_VIEW_EYE_EVENT_SIMULATOR_H_
