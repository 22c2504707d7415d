#include "host/session/input_port.h"

#include <QMetaMethod>
#include <QTouchEvent>

#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

namespace {

bool IsTouch(const QEvent& event) {
  return event.type() == QEvent::TouchBegin || event.type() == QEvent::TouchUpdate || event.type() == QEvent::TouchEnd;
}

}  // namespace

InputPort* InputPort::GetInstance() {
  static InputPort instance;
  return &instance;
}

void InputPort::connectNotify(const QMetaMethod& signal) {
  if (signal == QMetaMethod::fromSignal(&InputPort::Began)) is_heard_ = true;
}

void InputPort::Send(QEvent* event) {
  if (event->type() == QEvent::TouchBegin) is_touched_ = true;
  if (IsTouch(*event) && !is_touched_) return;
  if (event->type() == QEvent::TouchEnd) is_touched_ = false;
  if (is_heard_) Q_EMIT Began(DescribeEvent(*event));
  taviinputmanager::OnQtInputEvent(event);
  Q_EMIT Ended();
}

void InputPort::SendJoystick(QEvent* event) {
  if (is_heard_) Q_EMIT Began(DescribeJoystickEvent(*event));
  taviinputmanager::OnJoystickEvent(event);
  Q_EMIT Ended();
}

void InputPort::SendRelative(int dx, int dy) {
  if (is_heard_) Q_EMIT Began(DescribeMovement(dx, dy));
  taviinputmanager::OnWindowsWmRelativeInputEvent(dx, dy);
  Q_EMIT Ended();
}

void InputPort::LetGo() {
  LetGoBy([] { taviinputmanager::OnResetInputStatus(true, 0); });
}

void InputPort::LetGoBy(const std::function<void()>& change) {
  Q_EMIT Began(DescribeLettingGo());
  LiftTouches();
  change();
  Q_EMIT Ended();
}

void InputPort::LiftTouches() {
  if (!is_touched_) return;
  is_touched_ = false;
  QTouchEvent end(QEvent::TouchEnd);
  taviinputmanager::OnQtInputEvent(&end);
}

}  // namespace tavi
