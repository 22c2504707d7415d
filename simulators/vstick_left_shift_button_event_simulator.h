// A key that scales the virtual left stick.
#ifndef SIMULATORS_VSTICK_LEFT_SHIFT_BUTTON_EVENT_SIMULATOR_H_
#define SIMULATORS_VSTICK_LEFT_SHIFT_BUTTON_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

namespace taviinputmanager {

class VStickLeftShiftButtonEventSimulator : public EventSimulator {
 public:
  static VStickLeftShiftButtonEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;

 private:
  VStickLeftShiftButtonEventSimulator() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_VSTICK_LEFT_SHIFT_BUTTON_EVENT_SIMULATOR_H_
