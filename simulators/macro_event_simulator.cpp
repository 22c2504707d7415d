#include "simulators/macro_event_simulator.h"

namespace taviinputmanager {

MacroEventSimulator* MacroEventSimulator::GetInstance() {
  static MacroEventSimulator instance;
  return &instance;
}

void MacroEventSimulator::Press(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

void MacroEventSimulator::Release(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

void MacroEventSimulator::StopWorkers(bool /*all*/) {}

}  // namespace taviinputmanager
