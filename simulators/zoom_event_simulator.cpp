#include "simulators/zoom_event_simulator.h"

namespace taviinputmanager {

ZoomEventSimulator* ZoomEventSimulator::GetInstance() {
  static ZoomEventSimulator instance;
  return &instance;
}

void ZoomEventSimulator::Press(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

void ZoomEventSimulator::Release(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

void ZoomEventSimulator::Reset() {}

}  // namespace taviinputmanager
