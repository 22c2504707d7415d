#include "simulators/staring_and_fire_event_simulator.h"

namespace taviinputmanager {

StaringAndFireEventSimulator* StaringAndFireEventSimulator::GetInstance() {
  static StaringAndFireEventSimulator instance;
  return &instance;
}

void StaringAndFireEventSimulator::Press(tavikeymapmanager::ConfigItem* /*item*/,
                                         tavikeymapmanager::ConfigKey* /*key*/) {}

void StaringAndFireEventSimulator::Release(tavikeymapmanager::ConfigItem* /*item*/,
                                           tavikeymapmanager::ConfigKey* /*key*/) {}

void StaringAndFireEventSimulator::StopAutoReset() {}

}  // namespace taviinputmanager
