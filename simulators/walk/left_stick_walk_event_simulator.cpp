#include "simulators/walk/left_stick_walk_event_simulator.h"

#include "simulators/walk/left_stick_walk_sync_worker.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::JoystickLeftWalkConfigItem;

LeftStickWalkEventSimulator* LeftStickWalkEventSimulator::GetInstance() {
  static LeftStickWalkEventSimulator instance;
  return &instance;
}

void LeftStickWalkEventSimulator::Press(ConfigItem* /*item*/, ConfigKey* /*key*/) {}

void LeftStickWalkEventSimulator::Release(ConfigItem* /*item*/, ConfigKey* /*key*/) {}

void LeftStickWalkEventSimulator::OnStick(JoystickLeftWalkConfigItem* item, const QPointF& stick) {
  LeftStickWalkSyncWorker::GetInstance()->OnStick(item, stick);
}

void LeftStickWalkEventSimulator::StopWalk() { LeftStickWalkSyncWorker::GetInstance()->StopWalk(); }

}  // namespace taviinputmanager
