#include "simulators/vstick_left_stick_simulator.h"

namespace taviinputmanager {

VStickLeftStickSimulator* VStickLeftStickSimulator::GetInstance() {
  static VStickLeftStickSimulator instance;
  return &instance;
}

void VStickLeftStickSimulator::Press(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

void VStickLeftStickSimulator::Release(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {
}

}  // namespace taviinputmanager
