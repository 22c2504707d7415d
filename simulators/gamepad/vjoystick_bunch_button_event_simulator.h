// Rapid presses of a button of the virtual gamepad.
#ifndef SIMULATORS_GAMEPAD_VJOYSTICK_BUNCH_BUTTON_EVENT_SIMULATOR_H_
#define SIMULATORS_GAMEPAD_VJOYSTICK_BUNCH_BUTTON_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

namespace taviinputmanager {

// Works like rapid taps: in mode "Continue" while the key is held, in any other mode a fixed number of times after its
// release. An item that is not enabled is an ordinary button, whatever its mode.
//
// The gamepad is not connected to this simulator: presses are timed and signalled, but reach no button. A receiver must
// accept a second release, because the end of a run emits one even if the button is up.
class VJoystickBunchButtonEventSimulator : public EventSimulator {
  Q_OBJECT

 public:
  static VJoystickBunchButtonEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // Ends the runs of held keys; with `release_one_off` the one-off runs too. Otherwise a run whose key is released
  // under another keymap would never end.
  void Reset(bool release_one_off);

 Q_SIGNALS:
  // `text` is the button's name.
  void sigVJoystickButtonPressOrRelease(QString& text, bool press);
  void StopBunchTap(const QString& device, const QString& text, int scancode);
  void StopOneOffBunchTap();

 private Q_SLOTS:
  void OnBunchTapPressed(const QString& text);
  void OnBunchTapReleased(const QString& text);
  void OnBunchTapFinished(const QString& text);

 private:
  friend class BunchTapRun;

  VJoystickBunchButtonEventSimulator() = default;

  void Tell(QString text, bool press);
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_GAMEPAD_VJOYSTICK_BUNCH_BUTTON_EVENT_SIMULATOR_H_
