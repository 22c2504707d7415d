#include "simulators/view/gravity_event_simulator.h"

#include "keymap/gravity_config_item.h"
#include "simulators/view/gravity_sync_worker.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::GravityConfigItem;

GravityEventSimulator* GravityEventSimulator::GetInstance() {
  static GravityEventSimulator instance;
  return &instance;
}

void GravityEventSimulator::Press(ConfigItem* item, ConfigKey* key) {
  GravitySyncWorker::GetInstance()->Press(dynamic_cast<GravityConfigItem*>(item), key);
}

void GravityEventSimulator::Release(ConfigItem* item, ConfigKey* key) {
  GravitySyncWorker::GetInstance()->Release(dynamic_cast<GravityConfigItem*>(item), key);
}

void GravityEventSimulator::Stop() { GravitySyncWorker::GetInstance()->Stop(); }

}  // namespace taviinputmanager
