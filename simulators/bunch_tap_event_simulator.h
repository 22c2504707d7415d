// Rapid taps on one point.
#ifndef SIMULATORS_BUNCH_TAP_EVENT_SIMULATOR_H_
#define SIMULATORS_BUNCH_TAP_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

namespace taviinputmanager {

class BunchTapEventSimulator : public EventSimulator {
 public:
  static BunchTapEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // Ends the runs of held keys; with `release_one_off` the one-off runs too.
  void Reset(bool release_one_off);

 private:
  BunchTapEventSimulator() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_BUNCH_TAP_EVENT_SIMULATOR_H_
