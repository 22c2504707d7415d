// The events of a gamepad for the library, as text: "press A", "release ↑", "left 0.5,-1".
#ifndef TESTS_HOST_GAMEPAD_PAD_FIXTURE_H_
#define TESTS_HOST_GAMEPAD_PAD_FIXTURE_H_

#include <utility>

#include <QStringList>

#include "host/gamepad/pad_input.h"
#include "keymap/joystick_event.h"
#include "taviinputmanager/joystick_event.h"

namespace tavi {

// Numbers with at most two decimals; preceded by the device if it is not `device`.
inline QString PadEventText(QEvent* event, int device) {
  using tavikeymapmanager::JoystickEvent;
  const auto of_device = [&](int id) { return id == device ? QString() : QStringLiteral("%1: ").arg(id); };
  if (event->type() == JoystickEvent::AxisTriggle) {
    const auto* axis = static_cast<taviinputmanager::JoystickAxisEvent*>(event);
    return of_device(axis->device) + QStringLiteral("%1 %2,%3")
                                         .arg(axis->stick == 0 ? QStringLiteral("left") : QStringLiteral("right"))
                                         .arg(axis->x, 0, 'g', 2)
                                         .arg(axis->y, 0, 'g', 2);
  }
  const auto* button = static_cast<taviinputmanager::JoystickButtonEvent*>(event);
  EXPECT_EQ(button->code, 0);
  const bool is_press = event->type() == JoystickEvent::ButtonPress;
  return of_device(button->device) + (is_press ? QStringLiteral("press ") : QStringLiteral("release ")) + button->text;
}

// A sink that records.
class PadRecord {
 public:
  explicit PadRecord(int device) : device_(device) {}

  PadInput::Sink Sink() {
    return [this](QEvent* event) { texts_ += PadEventText(event, device_); };
  }
  // Since the last call.
  QStringList Take() { return std::exchange(texts_, QStringList()); }

 private:
  const int device_;
  QStringList texts_;
};

}  // namespace tavi

#endif  // TESTS_HOST_GAMEPAD_PAD_FIXTURE_H_
