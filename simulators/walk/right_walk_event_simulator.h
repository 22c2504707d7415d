// Walking towards a right click.
#ifndef SIMULATORS_WALK_RIGHT_WALK_EVENT_SIMULATOR_H_
#define SIMULATORS_WALK_RIGHT_WALK_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

class QMouseEvent;

namespace taviinputmanager {

// Works with mouse events, which have a pointer; a press or release of a key does nothing.
class RightWalkEventSimulator : public EventSimulator {
 public:
  static RightWalkEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // `event` is valid during the call; its position is in pixels of the display.
  void OnMousePress(tavikeymapmanager::ConfigItem* item, QMouseEvent* event);
  void OnMouseRelease(tavikeymapmanager::ConfigItem* item, QMouseEvent* event);
  // Does nothing without a walk.
  void OnMouseMove(QMouseEvent* event);
  // Releases the contact. A reset of all input does the same.
  void StopWalk();

 private:
  RightWalkEventSimulator() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_WALK_RIGHT_WALK_EVENT_SIMULATOR_H_
