// The gamepad events that a host builds and hands to OnJoystickEvent. Header only: a host makes them on its stack.
//
// Their types are the static members of tavikeymapmanager::JoystickEvent.
#ifndef TAVIINPUTMANAGER_JOYSTICK_EVENT_H_
#define TAVIINPUTMANAGER_JOYSTICK_EVENT_H_

#include <QEvent>
#include <QString>

namespace taviinputmanager {

// A button of a gamepad went down or up: type ButtonPress or ButtonRelease.
class JoystickButtonEvent : public QEvent {
 public:
  // `event_type` is JoystickEvent::ButtonPress or ButtonRelease; the others fill the fields.
  JoystickButtonEvent(QEvent::Type event_type, const QString& button, int button_code, int device_id)
      : QEvent(event_type), text(button), code(button_code), device(device_id) {}

  QString text;  // the button's name, or its digit; an arrow character for the hat
  int code;      // the host's own code; the library does not read it
  int device;    // the host's id of the gamepad
};

// A stick of a gamepad moved: type AxisTriggle.
class JoystickAxisEvent : public QEvent {
 public:
  // `event_type` is JoystickEvent::AxisTriggle; the others fill the fields.
  JoystickAxisEvent(QEvent::Type event_type, double stick_x, double stick_y, int stick_index, int device_id)
      : QEvent(event_type), x(stick_x), y(stick_y), stick(stick_index), device(device_id) {}

  double x;    // -1 (left) to 1 (right)
  double y;    // -1 (up) to 1 (down)
  int stick;   // 0 left, 1 right
  int device;  // the host's id of the gamepad
};

}  // namespace taviinputmanager

#endif  // TAVIINPUTMANAGER_JOYSTICK_EVENT_H_
