#include "simulators/view/eye_event_simulator.h"

#include "keymap/eye_config_item.h"
#include "simulators/view/eye_async_worker.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::EyeConfigItem;

EyeEventSimulator* EyeEventSimulator::GetInstance() {
  static EyeEventSimulator instance;
  return &instance;
}

void EyeEventSimulator::Press(ConfigItem* item, ConfigKey* key) {
  EyeAsyncWorker::GetInstance()->Press(dynamic_cast<EyeConfigItem*>(item), key);
}

void EyeEventSimulator::Release(ConfigItem* item, ConfigKey* key) {
  EyeAsyncWorker::GetInstance()->Release(dynamic_cast<EyeConfigItem*>(item), key);
}

void EyeEventSimulator::Stop() { EyeAsyncWorker::GetInstance()->Stop(); }

}  // namespace taviinputmanager
