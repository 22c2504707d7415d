#include "keymap/scan_codes.h"

#include <gtest/gtest.h>

#include <QSet>

#include "keymapmanager/key_names.h"
#include "tests/support/keyboard_105.h"

namespace tavikeymapmanager {
namespace {

TEST(ScanCodes, EveryKeyOfAKeyboardHasItsScanCode) {
  for (const tavi::KeyboardKey& key : tavi::kKeyboard105)
    EXPECT_EQ(ScanCodeOfLinuxKey(key.linux_code), key.scancode) << key.name;
}

TEST(ScanCodes, EveryScanCodeLeadsBackToItsKey) {
  for (const tavi::KeyboardKey& key : tavi::kKeyboard105)
    EXPECT_EQ(LinuxKeyOfScanCode(key.scancode), key.linux_code) << key.name;
}

TEST(ScanCodes, KeymapsCallTheKeysByTheSameNames) {
  for (const tavi::KeyboardKey& key : tavi::kKeyboard105) {
    const auto named = KeyFromName(QLatin1String(key.name));
    ASSERT_TRUE(named.has_value()) << key.name;
    EXPECT_EQ(named->scancode, key.scancode) << key.name;
  }
}

TEST(ScanCodes, AreConstantExpressions) {
  static_assert(ScanCodeOfLinuxKey(97) == 285, "right Ctrl");
  static_assert(LinuxKeyOfScanCode(285) == 97, "right Ctrl");
  static_assert(ScanCodeOfLinuxKey(17) == 17, "W");
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

}  // namespace
}  // namespace tavikeymapmanager
