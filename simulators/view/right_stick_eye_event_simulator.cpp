#include "simulators/view/right_stick_eye_event_simulator.h"

#include "simulators/view/right_stick_eye_sync_worker.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::JoystickRightEyeConfigItem;

RightStickEyeEventSimulator* RightStickEyeEventSimulator::GetInstance() {
  static RightStickEyeEventSimulator instance;
  return &instance;
}

void RightStickEyeEventSimulator::Press(ConfigItem* /*item*/, ConfigKey* /*key*/) {}

void RightStickEyeEventSimulator::Release(ConfigItem* /*item*/, ConfigKey* /*key*/) {}

void RightStickEyeEventSimulator::OnStick(JoystickRightEyeConfigItem* item, const QPointF& stick) {
  RightStickEyeSyncWorker::GetInstance()->OnStick(item, stick);
}

}  // namespace taviinputmanager
