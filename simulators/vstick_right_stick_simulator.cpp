#include "simulators/vstick_right_stick_simulator.h"

namespace taviinputmanager {

VStickRightStickSimulator* VStickRightStickSimulator::GetInstance() {
  static VStickRightStickSimulator instance;
  return &instance;
}

void VStickRightStickSimulator::Press(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

void VStickRightStickSimulator::Release(tavikeymapmanager::ConfigItem* /*item*/,
                                        tavikeymapmanager::ConfigKey* /*key*/) {}

}  // namespace taviinputmanager
