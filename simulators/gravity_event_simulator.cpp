#include "simulators/gravity_event_simulator.h"

namespace taviinputmanager {

GravityEventSimulator* GravityEventSimulator::GetInstance() {
  static GravityEventSimulator instance;
  return &instance;
}

void GravityEventSimulator::Press(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

void GravityEventSimulator::Release(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

void GravityEventSimulator::Stop() {}

}  // namespace taviinputmanager
