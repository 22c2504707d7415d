#include <gtest/gtest.h>

#include "tests/host/window/window_fixture.h"

namespace tavi {
namespace {

class TextField : public WindowFixture {};

TEST_F(TextField, KeysAreTypedWhateverTheKeymapSays) {
  Load("{type: Click, key: A, point: [0.5, 0.5]}");
  WindowHost::GetInstance()->SetTextField(true);
  Key(QEvent::KeyPress, kA, "a");
  Key(QEvent::KeyPress, kA, "a", true);
  Key(QEvent::KeyRelease, kA, "a");
  EXPECT_EQ(Guest().text, QStringLiteral("aa"));
  EXPECT_TRUE(Slots().isEmpty());
}

// As input methods and other programs send them.
TEST_F(TextField, AKeyWithoutAPlaceOnTheKeyboardIsItsText) {
  Load("");
  WindowHost::GetInstance()->SetTextField(true);
  Key(QEvent::KeyPress, -8, "x");
  EXPECT_EQ(Guest().text, QStringLiteral("x"));
}

}  // namespace
}  // namespace tavi
