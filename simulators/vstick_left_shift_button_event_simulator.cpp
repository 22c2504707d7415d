#include "simulators/vstick_left_shift_button_event_simulator.h"

namespace taviinputmanager {

VStickLeftShiftButtonEventSimulator* VStickLeftShiftButtonEventSimulator::GetInstance() {
  static VStickLeftShiftButtonEventSimulator instance;
  return &instance;
}

void VStickLeftShiftButtonEventSimulator::Press(tavikeymapmanager::ConfigItem* /*item*/,
                                                tavikeymapmanager::ConfigKey* /*key*/) {}

void VStickLeftShiftButtonEventSimulator::Release(tavikeymapmanager::ConfigItem* /*item*/,
                                                  tavikeymapmanager::ConfigKey* /*key*/) {}

}  // namespace taviinputmanager
