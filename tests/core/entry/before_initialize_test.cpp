#include <gtest/gtest.h>

#include <QKeyEvent>

#include "taviinputmanager/taviinputmanager.h"

namespace taviinputmanager {
namespace {

int lines = 0;

TEST(BeforeInitialize, EverythingIsIgnored) {
  SetInputEventSendFunc(reinterpret_cast<void*>(+[](const char*, int) { ++lines; }));
  QKeyEvent key(QEvent::KeyPress, Qt::Key_W, Qt::NoModifier, 17, 87, 0);
  OnQtInputEvent(&key);
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
