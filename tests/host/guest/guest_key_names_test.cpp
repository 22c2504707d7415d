#include "host/guest/guest_key_names.h"

#include <gtest/gtest.h>

#include "tests/support/keyboard_105.h"

namespace tavi {
namespace {

TEST(GuestKeyNames, KeysAreCalledAsInKeymaps) {
  for (const KeyboardKey& key : kKeyboard105) EXPECT_EQ(NameOfGuestKey(key.guest_code), QLatin1String(key.name));
}

TEST(GuestKeyNames, ButtonsAndTheBackKeyHaveNamesOfTheirOwn) {
  EXPECT_EQ(NameOfGuestKey(272), QStringLiteral("Mouse Left"));
  EXPECT_EQ(NameOfGuestKey(273), QStringLiteral("Mouse Right"));
  EXPECT_EQ(NameOfGuestKey(274), QStringLiteral("Mouse Middle"));
  EXPECT_EQ(NameOfGuestKey(158), QStringLiteral("Back"));
  EXPECT_EQ(NameOfGuestKey(1000), QStringLiteral("Key 1000"));
}

}  // namespace
}  // namespace tavi
