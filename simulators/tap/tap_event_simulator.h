// A contact that is down as long as its key.
#ifndef SIMULATORS_TAP_TAP_EVENT_SIMULATOR_H_
#define SIMULATORS_TAP_TAP_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

namespace taviinputmanager {

// Stateless: press and release find each other through the item's point in the pool. Two items on one point share a
// contact, and the first release releases it.
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
