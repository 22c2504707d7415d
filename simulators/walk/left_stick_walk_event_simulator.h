// Walking with a gamepad's left stick.
#ifndef SIMULATORS_WALK_LEFT_STICK_WALK_EVENT_SIMULATOR_H_
#define SIMULATORS_WALK_LEFT_STICK_WALK_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

class QPointF;

namespace tavikeymapmanager {
struct JoystickLeftWalkConfigItem;
}

namespace taviinputmanager {

// Works with the stick; a press or release of a key does nothing.
class LeftStickWalkEventSimulator : public EventSimulator {
 public:
  static LeftStickWalkEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // `stick` is from -1 to 1 on each axis, y downwards; null means at rest. Does nothing without an item. Blocks until
  // the contact has arrived at the new point.
  void OnStick(tavikeymapmanager::JoystickLeftWalkConfigItem* item, const QPointF& stick);
  // Releases the contact; one that was down stays up until the stick has returned to rest.
  void StopWalk();

 private:
  LeftStickWalkEventSimulator() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_WALK_LEFT_STICK_WALK_EVENT_SIMULATOR_H_
