// Gamepad events as the guest's gamepad.
#ifndef HANDLERS_JOYSTICK_EVENT_TRANSPARENT_HANDLER_H_
#define HANDLERS_JOYSTICK_EVENT_TRANSPARENT_HANDLER_H_

#include "handlers/gamepad_buttons.h"
#include "handlers/joystick_event_handler.h"

class QPointF;

namespace taviinputmanager {

struct InputManagerCallbacks;

// Passes on what a gamepad's keymap leaves over, and what the virtual gamepad of the keyboard's keymap says, by events
// of a device of its own. Takes every event.
//
// Knows of no button that is down: each press and release goes to the display of its moment, and no reset visits here.
class JoystickEventTransparentHandler : public JoystickEventHandler {
  Q_OBJECT

 public:
  static JoystickEventTransparentHandler* GetInstance();

  void SetCallbacks(InputManagerCallbacks* callbacks) { callbacks_ = callbacks; }
  // Connects or disconnects the keymap's virtual gamepad. Connecting, also once more, sends where its sticks are.
  void SetVirtualJoystick(bool enable);

  bool OnAxis(JoystickAxisEvent* event) override;
  bool OnButtonPress(JoystickButtonEvent* event, int simulate_mode) override;
  bool OnButtonRelease(JoystickButtonEvent* event, int simulate_mode) override;

  // The guest's code of the button that the host calls `name` on the gamepad `device`; kNoButtonCode for none.
  int LookupCode(int device, const QString& name, int simulate_mode) const;

 public Q_SLOTS:
  // Sticks of the virtual gamepad, from -1 to 1 where they have arrived.
  void OnLeftStickPointChanged(QPointF& point);
  void OnRightStickPointChanged(QPointF& point);
  void OnVJoystickButtonPressOrRelease(QString& text, bool press);
  // While pressed, the left stick counts `factor` times. It is sent anew at once.
  void OnVStickLeftShiftButtonPressOrRelease(double factor, bool press);

 private:
  JoystickEventTransparentHandler();
  ~JoystickEventTransparentHandler() override;

  void ConnectVirtualJoystick();
  void DisconnectVirtualJoystick();
  void QueryLeftStick();
  void MoveStick(const QPointF& point, int stick);
  ButtonLayout LayoutOf(int device) const;
  void SendButton(const JoystickButtonEvent& event, int simulate_mode, bool press);
  void SendHat(const QString& text, bool press);
  void SendTouchpad(bool press);

  // By whether simulate_mode is 1, then by layout. The two sets have the same entries.
  ButtonMap button_maps_[2][kButtonLayoutCount];
  InputManagerCallbacks* callbacks_ = nullptr;  // the host's
  double left_stick_factor_ = 1.0;
};

}  // namespace taviinputmanager

#endif  // HANDLERS_JOYSTICK_EVENT_TRANSPARENT_HANDLER_H_
