#include "host/session/input_port.h"

#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

InputPort* InputPort::GetInstance() {
  static InputPort instance;
  return &instance;
}

void InputPort::Send(QEvent* event) {
  Q_EMIT Began(DescribeEvent(*event));
  taviinputmanager::OnQtInputEvent(event);
  Q_EMIT Ended();
}

void InputPort::SendJoystick(QEvent* event) {
  Q_EMIT Began(DescribeJoystickEvent(*event));
  taviinputmanager::OnJoystickEvent(event);
  Q_EMIT Ended();
}

void InputPort::SendRelative(int dx, int dy) {
  Q_EMIT Began(DescribeMovement(dx, dy));
  taviinputmanager::OnWindowsWmRelativeInputEvent(dx, dy);
  Q_EMIT Ended();
}

void InputPort::LetGo() {
  LetGoBy([] { taviinputmanager::OnResetInputStatus(true, 0); });
}

void InputPort::LetGoBy(const std::function<void()>& change) {
  Q_EMIT Began(DescribeLettingGo());
  change();
  Q_EMIT Ended();
}

}  // namespace tavi
