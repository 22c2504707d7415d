#include "simulators/walk/right_walk_event_simulator.h"

#include "keymap/mouse_right_walk_config_item.h"
#include "simulators/walk/right_walk_sync_worker.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::MouseRightWalkConfigItem;

RightWalkEventSimulator* RightWalkEventSimulator::GetInstance() {
  static RightWalkEventSimulator instance;
  return &instance;
}

void RightWalkEventSimulator::Press(ConfigItem* /*item*/, ConfigKey* /*key*/) {}

void RightWalkEventSimulator::Release(ConfigItem* /*item*/, ConfigKey* /*key*/) {}

void RightWalkEventSimulator::OnMousePress(ConfigItem* item, QMouseEvent* event) {
  RightWalkSyncWorker::GetInstance()->Press(dynamic_cast<MouseRightWalkConfigItem*>(item), event);
}

void RightWalkEventSimulator::OnMouseRelease(ConfigItem* item, QMouseEvent* event) {
  RightWalkSyncWorker::GetInstance()->Release(dynamic_cast<MouseRightWalkConfigItem*>(item), event);
}

void RightWalkEventSimulator::OnMouseMove(QMouseEvent* event) {
  RightWalkSyncWorker::GetInstance()->OnMouseMove(event);
}

void RightWalkEventSimulator::StopWalk() { RightWalkSyncWorker::GetInstance()->StopWalk(); }

}  // namespace taviinputmanager
