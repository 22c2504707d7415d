#include "simulators/bunch_tap_event_simulator.h"

namespace taviinputmanager {

BunchTapEventSimulator* BunchTapEventSimulator::GetInstance() {
  static BunchTapEventSimulator instance;
  return &instance;
}

void BunchTapEventSimulator::Press(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

void BunchTapEventSimulator::Release(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

void BunchTapEventSimulator::Reset(bool /*release_one_off*/) {}

}  // namespace taviinputmanager
