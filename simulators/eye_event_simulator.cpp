#include "simulators/eye_event_simulator.h"

namespace taviinputmanager {

EyeEventSimulator* EyeEventSimulator::GetInstance() {
  static EyeEventSimulator instance;
  return &instance;
}

void EyeEventSimulator::Press(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

void EyeEventSimulator::Release(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

void EyeEventSimulator::Stop() {}

}  // namespace taviinputmanager
