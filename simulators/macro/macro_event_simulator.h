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

// Each macro key has a worker of its own, so that several macros can run at once. A worker is created at the first use
// of its key and exists until a reset ends it.
class MacroEventSimulator : public EventSimulator {
 public:
  static MacroEventSimulator* GetInstance();

  // Nothing for an item that is not a MacroConfigItem. A press of a running macro is dropped.
  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // Never dropped, except for an OperationRecorderConfigItem whose macro is running.
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // The worker of the item's key, created at its first use; the simulator owns it, and a reset may end it. Null for an
  // OperationRecorderConfigItem whose macro is running, and without an item.
  MacroSequentialTapAsyncWorker* GetWorker(const tavikeymapmanager::MacroConfigItem* item);
  // Ends the macros that have a loop until release, at any point; with `all` every macro. Sends the releases of their
  // contacts.
  void StopWorkers(bool all);

 private:
  MacroEventSimulator() = default;
  ~MacroEventSimulator() override;

  QMap<QString, MacroSequentialTapAsyncWorker*> workers_;  // by MacroKeyText; owned
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_MACRO_MACRO_EVENT_SIMULATOR_H_
