#include "simulators/wheel_event_simulator.h"

namespace taviinputmanager {

WheelEventSimulator* WheelEventSimulator::GetInstance() {
  static WheelEventSimulator instance;
  return &instance;
}

void WheelEventSimulator::Press(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

void WheelEventSimulator::Release(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

void WheelEventSimulator::Reset() {}

}  // namespace taviinputmanager
