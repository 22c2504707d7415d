// A key that pinches.
#ifndef SIMULATORS_ZOOM_EVENT_SIMULATOR_H_
#define SIMULATORS_ZOOM_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

namespace taviinputmanager {

class ZoomEventSimulator : public EventSimulator {
 public:
  static ZoomEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // Part of a reset of all input.
  void Reset();

 private:
  ZoomEventSimulator() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_ZOOM_EVENT_SIMULATOR_H_
