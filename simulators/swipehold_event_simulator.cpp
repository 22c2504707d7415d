#include "simulators/swipehold_event_simulator.h"

namespace taviinputmanager {

SwipeholdEventSimulator* SwipeholdEventSimulator::GetInstance() {
  static SwipeholdEventSimulator instance;
  return &instance;
}

void SwipeholdEventSimulator::Press(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

void SwipeholdEventSimulator::Release(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

void SwipeholdEventSimulator::Reset() {}

void SwipeholdEventSimulator::SetRadiusFactor(double /*factor*/) {}

}  // namespace taviinputmanager
