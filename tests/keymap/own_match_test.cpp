// The matching of the items themselves, without an index.
#include <gtest/gtest.h>

#include "keymap/tavikeymapmanager.h"

namespace tavikeymapmanager {
namespace {

ConfigKey KeyboardKey(int scancode) { return {keywords::kDeviceKeyboard, QString(), scancode, scancode}; }

template <typename Item>
class FourKeys : public testing::Test {};
using FourKeyItems = testing::Types<SwipeholdConfigItem, EyeConfigItem, GravityConfigItem>;
TYPED_TEST_SUITE(FourKeys, FourKeyItems);

TYPED_TEST(FourKeys, AnyOfThemAnswersAndTheItemsKeyDoesNot) {
  TypeParam item;
  item.key = KeyboardKey(1);
  item.key_up = KeyboardKey(2);
  item.key_right = KeyboardKey(3);
  item.key_down = KeyboardKey(4);
  item.key_left = KeyboardKey(5);
  const ConfigItem& base = item;
  for (int scancode = 2; scancode <= 5; ++scancode) EXPECT_TRUE(base.IsKeyMatch(KeyboardKey(scancode))) << scancode;
  EXPECT_FALSE(base.IsKeyMatch(KeyboardKey(1)));
  EXPECT_FALSE(base.IsKeyMatch(KeyboardKey(6)));
  EXPECT_FALSE(base.IsKeyMatch({keywords::kDeviceMouse, QString(), 2, 2}));
}

TEST(ALabel, AnswersToNothing) {
  TipConfigItem tip;
  tip.first_key = KeyboardKey(1);
  tip.key = KeyboardKey(2);
  EXPECT_FALSE(tip.IsKeyMatch(KeyboardKey(2)));
  EXPECT_FALSE(tip.IsChordMatch(KeyboardKey(1), KeyboardKey(2)));
}

TEST(AChord, AnswersInItsOrderOnly) {
  ComposableConfigItem click;
  click.first_key = KeyboardKey(1);
  click.key = KeyboardKey(2);
  EXPECT_TRUE(click.IsChordMatch(KeyboardKey(1), KeyboardKey(2)));
  EXPECT_FALSE(click.IsChordMatch(KeyboardKey(2), KeyboardKey(1)));
  EXPECT_TRUE(click.IsKeyMatch(KeyboardKey(2)));
  EXPECT_FALSE(click.IsKeyMatch(KeyboardKey(1)));
}

}  // namespace
}  // namespace tavikeymapmanager
