#include "simulators/right_walk_event_simulator.h"

namespace taviinputmanager {

RightWalkEventSimulator* RightWalkEventSimulator::GetInstance() {
  static RightWalkEventSimulator instance;
  return &instance;
}

void RightWalkEventSimulator::Press(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

void RightWalkEventSimulator::Release(tavikeymapmanager::ConfigItem* /*item*/, tavikeymapmanager::ConfigKey* /*key*/) {}

void RightWalkEventSimulator::OnMousePress(tavikeymapmanager::ConfigItem* /*item*/, QMouseEvent* /*event*/) {}

void RightWalkEventSimulator::OnMouseRelease(tavikeymapmanager::ConfigItem* /*item*/, QMouseEvent* /*event*/) {}

void RightWalkEventSimulator::OnMouseMove(QMouseEvent* /*event*/) {}

void RightWalkEventSimulator::StopWalk() {}

}  // namespace taviinputmanager
