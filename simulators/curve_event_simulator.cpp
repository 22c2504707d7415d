#include "simulators/curve_event_simulator.h"

namespace taviinputmanager {

CurveEventSimulator* CurveEventSimulator::GetInstance() {
  static CurveEventSimulator instance;
  return &instance;
}

void CurveEventSimulator::Press(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

void CurveEventSimulator::Release(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

void CurveEventSimulator::Wheel(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

void CurveEventSimulator::Reset() {}

}  // namespace taviinputmanager
