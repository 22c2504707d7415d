// Macros.
#ifndef SIMULATORS_MACRO_EVENT_SIMULATOR_H_
#define SIMULATORS_MACRO_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

namespace taviinputmanager {

class MacroEventSimulator : public EventSimulator {
 public:
  static MacroEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // Ends the macros that wait for a release; with `all` every macro.
  void StopWorkers(bool all);

 private:
  MacroEventSimulator() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_MACRO_EVENT_SIMULATOR_H_
