#include "core/key_code_converter.h"

#include <gtest/gtest.h>
#include <set>

namespace taviinputmanager {
namespace {

const struct {
  int scan;
  int guest;
} kKeys[] = {
    {69, 119},  {284, 96},  {285, 97},  {309, 98},  {312, 100}, {325, 69},  {327, 102}, {328, 103}, {329, 104},
    {331, 105}, {333, 106}, {335, 107}, {336, 108}, {337, 109}, {338, 110}, {339, 111}, {349, 139}, {2147483647, 1},
};

TEST(KeyCodeConverter, TranslatesTheKeysOfItsTable) {
  for (const auto& key : kKeys) EXPECT_EQ(key.guest, KeyCodeConverter::GetInstance()->KeyToGuestCode(key.scan));
}

TEST(KeyCodeConverter, PassesEveryOtherKey) {
  std::set<int> own;
  for (const auto& key : kKeys) own.insert(key.scan);
  for (int scan = -2; scan < 600; ++scan) {
    if (own.count(scan)) continue;
    EXPECT_EQ(scan, KeyCodeConverter::GetInstance()->KeyToGuestCode(scan));
  }
}

TEST(KeyCodeConverter, TranslatesMouseButtons) {
  const KeyCodeConverter* converter = KeyCodeConverter::GetInstance();
  const struct {
    int button;
    int guest;
  } buttons[] = {{1, 272}, {2, 273}, {4, 274}, {8, 278}, {16, 277}, {32, 279}, {0, -1}, {3, -1}, {64, -1}, {-1, -1}};
  for (const auto& row : buttons) EXPECT_EQ(row.guest, converter->MouseButtonToGuestCode(row.button)) << row.button;
}

TEST(KeyCodeConverter, KnowsControlKeys) {
  const std::set<int> control = {14, 15, 28, 69, 96, 102, 103, 104, 105, 106, 107, 108, 109, 110, 111, 119, 139, 158};
  for (int code = -1; code < 300; ++code) {
    EXPECT_EQ(control.count(code) > 0, KeyCodeConverter::GetInstance()->IsControlKey(code)) << code;
  }
}

}  // namespace
}  // namespace taviinputmanager
