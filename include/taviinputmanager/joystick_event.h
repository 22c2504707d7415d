// The gamepad events that a host passes to OnJoystickEvent. Header-only: a host can construct them on the stack.
//
// Their event types are the static members of tavikeymapmanager::JoystickEvent.
#ifndef TAVIINPUTMANAGER_JOYSTICK_EVENT_H_
#define TAVIINPUTMANAGER_JOYSTICK_EVENT_H_

#include <QEvent>
#include <QString>

namespace taviinputmanager {

// A gamepad button was pressed or released.
class JoystickButtonEvent : public QEvent {
 public:
  // `event_type` is JoystickEvent::ButtonPress or ButtonRelease. The other arguments initialise the fields.
  JoystickButtonEvent(QEvent::Type event_type, const QString& button, int button_code, int device_id)
      : QEvent(event_type), text(button), code(button_code), device(device_id) {}

  QString text;  // the button's name, or its digit; an arrow character for the hat
  int code;      // the host's own code, which the library does not read
  int device;    // the host's id of the gamepad
};

// A gamepad stick moved.
class JoystickAxisEvent : public QEvent {
 public:
  // `event_type` is JoystickEvent::AxisTriggle. The other arguments initialise the fields.
  JoystickAxisEvent(QEvent::Type event_type, double stick_x, double stick_y, int stick_index, int device_id)
      : QEvent(event_type), x(stick_x), y(stick_y), stick(stick_index), device(device_id) {}

  double x;    // -1 (left) to 1 (right)
  double y;    // -1 (up) to 1 (down)
  int stick;   // 0 left, 1 right
  int device;  // the host's id of the gamepad
};

}  // namespace taviinputmanager

#endif  // TAVIINPUTMANAGER_JOYSTICK_EVENT_H_
