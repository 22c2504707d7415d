// Macros: keys that run lists of commands.
#ifndef SIMULATORS_MACRO_MACRO_EVENT_SIMULATOR_H_
#define SIMULATORS_MACRO_MACRO_EVENT_SIMULATOR_H_

#include <QMap>
#include <QString>

#include "simulators/event_simulator.h"

namespace tavikeymapmanager {
struct MacroConfigItem;
}

namespace taviinputmanager {

class MacroSequentialTapAsyncWorker;

// Each macro key has a worker of its own, so that several macros run side by side. A worker is made at the first use of
// its key and stays until a reset ends it.
class MacroEventSimulator : public EventSimulator {
 public:
  static MacroEventSimulator* GetInstance();

  // Nothing for an item that is no MacroConfigItem. A press of a macro that runs is dropped.
  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // Never dropped, but for an OperationRecorderConfigItem whose macro runs.
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // The worker of the item's key, made at its first use; the simulator owns it, and a reset may end it. Null for an
  // OperationRecorderConfigItem whose macro runs, and without an item.
  MacroSequentialTapAsyncWorker* GetWorker(const tavikeymapmanager::MacroConfigItem* item);
  // Ends the macros that have a loop until release, wherever they are in it; with `all` every macro. Sends what lifts
  // their fingers.
  void StopWorkers(bool all);

 private:
  MacroEventSimulator() = default;
  ~MacroEventSimulator() override;

  QMap<QString, MacroSequentialTapAsyncWorker*> workers_;  // by MacroKeyText; owned
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_MACRO_MACRO_EVENT_SIMULATOR_H_
