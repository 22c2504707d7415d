#include "host/scan_codes.h"

#include <gtest/gtest.h>

#include <QSet>

#include "host/guest_key_names.h"
#include "keymapmanager/key_names.h"
#include "tests/host/keyboard_105.h"

namespace tavi {
namespace {

TEST(ScanCodes, EveryKeyOfAKeyboardHasItsScanCode) {
  for (const KeyboardKey& key : kKeyboard105) EXPECT_EQ(ScanCodeOfLinuxKey(key.linux_code), key.scancode) << key.name;
}

TEST(ScanCodes, EveryScanCodeLeadsBackToItsKey) {
  for (const KeyboardKey& key : kKeyboard105) EXPECT_EQ(LinuxKeyOfScanCode(key.scancode), key.linux_code) << key.name;
}

TEST(ScanCodes, KeymapsCallTheKeysByTheSameNames) {
  for (const KeyboardKey& key : kKeyboard105) {
    const auto named = tavikeymapmanager::KeyFromName(QLatin1String(key.name));
    ASSERT_TRUE(named.has_value()) << key.name;
    EXPECT_EQ(named->scancode, key.scancode) << key.name;
  }
}

TEST(ScanCodes, NoTwoKeysShareAScanCode) {
  QSet<int> seen;
  for (int code = 1; code < 256; ++code) {
    const int scancode = ScanCodeOfLinuxKey(code);
    if (scancode == 0) continue;
    EXPECT_FALSE(seen.contains(scancode)) << code;
    EXPECT_EQ(LinuxKeyOfScanCode(scancode), code);
    seen.insert(scancode);
  }
}

TEST(ScanCodes, OtherCodesHaveNone) {
  for (const int code : {-8, 0, 84, 85, 101, 112, 272, 100000}) EXPECT_EQ(ScanCodeOfLinuxKey(code), 0) << code;
  for (const int code : {-1, 0, 84, 511, 2147483647}) EXPECT_EQ(LinuxKeyOfScanCode(code), 0) << code;
}

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
