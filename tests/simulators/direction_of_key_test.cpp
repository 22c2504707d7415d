#include "simulators/direction_of_key.h"

#include <gtest/gtest.h>

#include "keymap/tavikeymapmanager.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::EyeConfigItem;
using tavikeymapmanager::GravityConfigItem;
using tavikeymapmanager::SwipeholdConfigItem;

ConfigKey KeyboardKey(int scancode, const QString& text = {}) {
  ConfigKey key;
  key.device = "keyboard";
  key.scancode = scancode;
  key.text = text;
  return key;
}

ConfigKey PadKey(const QString& text) {
  ConfigKey key;
  key.device = "joystick";
  key.text = text;
  return key;
}

template <typename Item>
Item Walk() {
  Item item;
  item.key_up = KeyboardKey(17);
  item.key_left = KeyboardKey(30);
  item.key_down = KeyboardKey(31);
  item.key_right = KeyboardKey(32);
  return item;
}

template <typename Item>
void ExpectFourDirections() {
  const Item item = Walk<Item>();
  EXPECT_EQ(kDirectionUp, DirectionOfKey(item, KeyboardKey(17)));
  EXPECT_EQ(kDirectionDown, DirectionOfKey(item, KeyboardKey(31)));
  EXPECT_EQ(kDirectionLeft, DirectionOfKey(item, KeyboardKey(30)));
  EXPECT_EQ(kDirectionRight, DirectionOfKey(item, KeyboardKey(32)));
}

TEST(DirectionOfKey, ServesEveryItemWithFourKeys) {
  ExpectFourDirections<EyeConfigItem>();
  ExpectFourDirections<GravityConfigItem>();
  ExpectFourDirections<SwipeholdConfigItem>();
}

TEST(DirectionOfKey, AnyOtherKeyIsRight) {
  EXPECT_EQ(kDirectionRight, DirectionOfKey(Walk<EyeConfigItem>(), KeyboardKey(99)));
}

TEST(DirectionOfKey, UpComesBeforeDownBeforeLeftBeforeRight) {
  EyeConfigItem item = Walk<EyeConfigItem>();
  item.key_right = item.key_left = item.key_down = item.key_up;
  EXPECT_EQ(kDirectionUp, DirectionOfKey(item, item.key_right));
  item.key_up = KeyboardKey(99);
  EXPECT_EQ(kDirectionDown, DirectionOfKey(item, item.key_right));
  item.key_down = KeyboardKey(99);
  EXPECT_EQ(kDirectionLeft, DirectionOfKey(item, item.key_right));
}

TEST(DirectionOfKey, JoystickKeysAreToldApartByNameAndOthersByCode) {
  EyeConfigItem item = Walk<EyeConfigItem>();
  item.key_up = PadKey("A");
  item.key_down = PadKey("B");
  EXPECT_EQ(kDirectionDown, DirectionOfKey(item, PadKey("B")));
  EXPECT_EQ(kDirectionLeft, DirectionOfKey(item, KeyboardKey(30, "any name")));
  ConfigKey mouse = KeyboardKey(30);
  mouse.device = "mouse";
  EXPECT_EQ(kDirectionRight, DirectionOfKey(item, mouse));
}

}  // namespace
}  // namespace taviinputmanager
