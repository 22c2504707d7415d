// Sends gamepad events to the guest's gamepad.
#ifndef HANDLERS_JOYSTICK_EVENT_TRANSPARENT_HANDLER_H_
#define HANDLERS_JOYSTICK_EVENT_TRANSPARENT_HANDLER_H_

#include "handlers/gamepad_buttons.h"
#include "handlers/joystick_event_handler.h"

class QPointF;

namespace taviinputmanager {

struct InputManagerCallbacks;

// Sends what a gamepad's keymap does not handle, and events of the virtual gamepad of the keyboard's keymap, under a
// device of its own. Consumes every event.
//
// Keeps no record of pressed buttons: each press and release goes to the current display, and no reset affects it.
class JoystickEventTransparentHandler : public JoystickEventHandler {
  Q_OBJECT

 public:
  static JoystickEventTransparentHandler* GetInstance();

  void SetCallbacks(InputManagerCallbacks* callbacks) { callbacks_ = callbacks; }
  // Connects or disconnects the keymap's virtual gamepad. Connecting it, even repeatedly, sends the positions of its
  // sticks.
  void SetVirtualJoystick(bool enable);

  bool OnAxis(JoystickAxisEvent* event) override;
  bool OnButtonPress(JoystickButtonEvent* event, int simulate_mode) override;
  bool OnButtonRelease(JoystickButtonEvent* event, int simulate_mode) override;

  // The guest's code of the button named `name` on the gamepad `device`; kNoButtonCode if there is none.
  int LookupCode(int device, const QString& name, int simulate_mode) const;

 public Q_SLOTS:
  // Sticks of the virtual gamepad, from -1 to 1 at the edge.
  void OnLeftStickPointChanged(QPointF& point);
  void OnRightStickPointChanged(QPointF& point);
  void OnVJoystickButtonPressOrRelease(QString& text, bool press);
  // While pressed, the left stick is multiplied by `factor`. It is sent again at once.
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

  // Indexed by whether simulate_mode is 1, then by layout. The two sets have the same entries.
  ButtonMap button_maps_[2][kButtonLayoutCount];
  InputManagerCallbacks* callbacks_ = nullptr;  // owned by the host
  double left_stick_factor_ = 1.0;
};

}  // namespace taviinputmanager

#endif  // HANDLERS_JOYSTICK_EVENT_TRANSPARENT_HANDLER_H_
