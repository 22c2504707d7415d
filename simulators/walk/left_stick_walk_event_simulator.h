// Walking by a gamepad's left stick.
#ifndef SIMULATORS_WALK_LEFT_STICK_WALK_EVENT_SIMULATOR_H_
#define SIMULATORS_WALK_LEFT_STICK_WALK_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

class QPointF;

namespace tavikeymapmanager {
struct JoystickLeftWalkConfigItem;
}

namespace taviinputmanager {

// Works by the stick; a press or release as of a key does nothing.
class LeftStickWalkEventSimulator : public EventSimulator {
 public:
  static LeftStickWalkEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // `stick` is from -1 to 1 on each axis, y downwards; null means at rest. Nothing without an item. Blocks for as long
  // as the finger takes to the new point.
  void OnStick(tavikeymapmanager::JoystickLeftWalkConfigItem* item, const QPointF& stick);
  // Lifts the finger; one that was down stays up until the stick has come to rest.
  void StopWalk();

 private:
  LeftStickWalkEventSimulator() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_WALK_LEFT_STICK_WALK_EVENT_SIMULATOR_H_
