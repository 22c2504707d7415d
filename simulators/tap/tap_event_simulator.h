// A finger that is down for as long as its key is.
#ifndef SIMULATORS_TAP_TAP_EVENT_SIMULATOR_H_
#define SIMULATORS_TAP_TAP_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

namespace taviinputmanager {

// Remembers nothing: press and release find each other through the item's point in the pool. Two items on one point
// share a finger, and the first release lifts it.
class TapEventSimulator : public EventSimulator {
 public:
  static TapEventSimulator* GetInstance() {
    static TapEventSimulator instance;
    return &instance;
  }

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;

 private:
  TapEventSimulator() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_TAP_TAP_EVENT_SIMULATOR_H_
