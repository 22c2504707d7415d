// Walking towards a right click. Its keys work by the mouse operations.
#ifndef SIMULATORS_RIGHT_WALK_EVENT_SIMULATOR_H_
#define SIMULATORS_RIGHT_WALK_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

class QMouseEvent;

namespace taviinputmanager {

class RightWalkEventSimulator : public EventSimulator {
 public:
  static RightWalkEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void OnMousePress(tavikeymapmanager::ConfigItem* item, QMouseEvent* event);
  void OnMouseRelease(tavikeymapmanager::ConfigItem* item, QMouseEvent* event);
  void OnMouseMove(QMouseEvent* event);
  // Lifts the finger.
  void StopWalk();

 private:
  RightWalkEventSimulator() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_RIGHT_WALK_EVENT_SIMULATOR_H_
