#include "simulators/macro/macro_event_simulator.h"

#include <utility>

#include "keymap/macro_config_item.h"
#include "keymap/operation_recorder_config_item.h"
#include "simulators/macro/macro_calls.h"
#include "simulators/macro/macro_key_text.h"
#include "simulators/macro/macro_sequential_tap_async_worker.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::MacroConfigItem;
using tavikeymapmanager::OperationRecorderConfigItem;

MacroEventSimulator* MacroEventSimulator::GetInstance() {
  static MacroEventSimulator instance;
  return &instance;
}

MacroEventSimulator::~MacroEventSimulator() { qDeleteAll(workers_); }

MacroSequentialTapAsyncWorker* MacroEventSimulator::GetWorker(const MacroConfigItem* item) {
  if (!item) return nullptr;
  MacroSequentialTapAsyncWorker*& worker = workers_[MacroKeyText(item->key)];
  if (!worker) worker = new MacroSequentialTapAsyncWorker;
  const bool is_operation = dynamic_cast<const OperationRecorderConfigItem*>(item) != nullptr;
  return is_operation && worker->IsRunning() ? nullptr : worker;
}

void MacroEventSimulator::Press(ConfigItem* item, ConfigKey* key) {
  MacroCalls::GetInstance()->RunWaiting();
  auto* macro = dynamic_cast<MacroConfigItem*>(item);
  MacroSequentialTapAsyncWorker* worker = GetWorker(macro);
  if (worker && !worker->IsRunning()) worker->Press(macro, key);
}

void MacroEventSimulator::Release(ConfigItem* item, ConfigKey* key) {
  MacroCalls::GetInstance()->RunWaiting();
  auto* macro = dynamic_cast<MacroConfigItem*>(item);
  if (MacroSequentialTapAsyncWorker* worker = GetWorker(macro)) worker->Release(macro, key);
}

void MacroEventSimulator::StopWorkers(bool all) {
  // Removed first: a worker's last signals may lead back here.
  QMap<QString, MacroSequentialTapAsyncWorker*> kept;
  QMap<QString, MacroSequentialTapAsyncWorker*> ended;
  for (auto at = workers_.cbegin(); at != workers_.cend(); ++at) {
    (all || at.value()->HasUntilRelease() ? ended : kept).insert(at.key(), at.value());
  }
  workers_ = std::move(kept);
  for (MacroSequentialTapAsyncWorker* worker : std::as_const(ended)) worker->Discard();
}

}  // namespace taviinputmanager
