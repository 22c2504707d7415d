// A key that scales the virtual gamepad's left stick while it is held.
#ifndef SIMULATORS_GAMEPAD_VSTICK_LEFT_SHIFT_BUTTON_EVENT_SIMULATOR_H_
#define SIMULATORS_GAMEPAD_VSTICK_LEFT_SHIFT_BUTTON_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

namespace taviinputmanager {

class VStickLeftShiftButtonEventSimulator : public EventSimulator {
  Q_OBJECT

 public:
  static VStickLeftShiftButtonEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;

 Q_SIGNALS:
  // `factor` is the item's, also for a release.
  void sigVStickLeftShiftButtonPressOrRelease(double factor, bool press);

 private:
  VStickLeftShiftButtonEventSimulator() = default;

  void Tell(const tavikeymapmanager::ConfigItem* item, bool press);
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_GAMEPAD_VSTICK_LEFT_SHIFT_BUTTON_EVENT_SIMULATOR_H_
