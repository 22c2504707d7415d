// A gamepad's right stick that turns the view.
#ifndef SIMULATORS_VIEW_RIGHT_STICK_EYE_EVENT_SIMULATOR_H_
#define SIMULATORS_VIEW_RIGHT_STICK_EYE_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

class QPointF;

namespace tavikeymapmanager {
struct JoystickRightEyeConfigItem;
}

namespace taviinputmanager {

// Works with the stick; a press or release of a key does nothing.
class RightStickEyeEventSimulator : public EventSimulator {
 public:
  static RightStickEyeEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // `stick` is from -1 to 1 on each axis, y downwards; null means at rest. Does nothing without an item.
  void OnStick(tavikeymapmanager::JoystickRightEyeConfigItem* item, const QPointF& stick);

 private:
  RightStickEyeEventSimulator() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_VIEW_RIGHT_STICK_EYE_EVENT_SIMULATOR_H_
