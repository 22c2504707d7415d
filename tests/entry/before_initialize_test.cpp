#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QMouseEvent>

#include "qt/touch_events.h"
#include "taviinputmanager/taviinputmanager.h"

namespace taviinputmanager {
namespace {

int lines = 0;

TEST(BeforeInitialize, EverythingIsIgnored) {
  SetInputEventSendFunc(reinterpret_cast<void*>(+[](const char*, int) { ++lines; }));
  QKeyEvent key(QEvent::KeyPress, Qt::Key_W, Qt::NoModifier, 17, 87, 0);
  OnQtInputEvent(&key);
  // With any keymap, even an empty one, both of these would be contacts.
  QMouseEvent press(QEvent::MouseButtonPress, {5, 5}, {5, 5}, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  OnQtInputEvent(&press);
  const qt::TouchPoint point = qt::MakeTouchPoint(1, Qt::TouchPointPressed, {5, 5});
  QTouchEvent touch = qt::MakeTouchEvent(QEvent::TouchBegin, Qt::NoModifier, {point});
  OnQtInputEvent(&touch);
  OnQtInputEvent(nullptr);
  OnJoystickEvent(&key);
  OnWindowsWmRelativeInputEvent(5, 5);
  OnResetInputStatus(true, 1);
  UpdateMousePosition(5, 5);
  EXPECT_EQ(0, lines);
  EXPECT_EQ(InputStatus::Normal, GetInputStatus());
  EXPECT_FALSE(isInputHoldWhenWindowDeactivate());
}

}  // namespace
}  // namespace taviinputmanager
