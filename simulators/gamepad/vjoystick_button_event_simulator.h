// A key that acts as a button of the virtual gamepad.
#ifndef SIMULATORS_GAMEPAD_VJOYSTICK_BUTTON_EVENT_SIMULATOR_H_
#define SIMULATORS_GAMEPAD_VJOYSTICK_BUTTON_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

namespace taviinputmanager {

class VJoystickButtonEventSimulator : public EventSimulator {
  Q_OBJECT

 public:
  static VJoystickButtonEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;

 Q_SIGNALS:
  // `text` is the button's name.
  void sigVJoystickButtonPressOrRelease(QString& text, bool press);

 private:
  VJoystickButtonEventSimulator() = default;

  void Tell(const tavikeymapmanager::ConfigItem* item, bool press);
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_GAMEPAD_VJOYSTICK_BUTTON_EVENT_SIMULATOR_H_
