#include "tests/keymapmanager/keymap_text.h"

namespace tavikeymapmanager {
namespace {

// The key of a click, as it was read.
std::string ClickKey(const QByteArray& key) {
  const LoadResult result = ReadItems("- {type: Click, point: [0.5, 0.5], key: " + key + "}\n");
  if (result.config->items.size() != 1) return Said(result);
  return NameOf(result.config->items.first()->key);
}

TEST(KeysInFiles, AKeyIsWrittenByItsName) {
  EXPECT_EQ("W", ClickKey("W"));
  EXPECT_EQ("Left Shift", ClickKey("Left Shift"));
  EXPECT_EQ("F5", ClickKey("F5"));
  EXPECT_EQ("Numpad Enter", ClickKey("Numpad Enter"));
  EXPECT_EQ("Escape", ClickKey("Esc"));
  EXPECT_EQ("Grave", ClickKey("\"`\""));
  EXPECT_EQ("Y", ClickKey("Y"));  // not a boolean in YAML 1.2
}

TEST(KeysInFiles, EveryNameCanBeWritten) {
  for (const QString& name : AllKeyNames()) {
    const bool is_stick = name.endsWith(QStringLiteral("_Stick"));
    const bool is_left = name == QStringLiteral("Mouse Left");  // cannot start a click, but is a valid key
    if (is_stick || is_left) continue;
    EXPECT_EQ(name.toStdString(), ClickKey(name.toUtf8()));
  }
}

TEST(KeysInFiles, ADigitNeedsNoQuotes) {
  EXPECT_EQ("7", ClickKey("7"));
  EXPECT_EQ("7", ClickKey("'7'"));
}

TEST(KeysInFiles, AnyOtherKeyIsWrittenByItsCode) {
  EXPECT_EQ("W", ClickKey("{scan: 17}"));
  EXPECT_EQ("Scan 200", ClickKey("{scan: 200}"));
  EXPECT_EQ("Scan 511", ClickKey("Scan 511"));
}

TEST(KeysInFiles, AGamepadsKeyHasItsMarkInFront) {
  EXPECT_EQ("A", ClickKey("A"));
  EXPECT_EQ("Pad A", ClickKey("Pad A"));
  EXPECT_EQ("Pad A+B", ClickKey("Pad A+B"));
  EXPECT_EQ("Pad A+B", ClickKey("Pad A + B"));
}

TEST(KeysInFiles, AGamepadsKeyMayHaveAnyNameOfTheHosts) {
  const LoadResult result = ReadItems("- {type: Click, point: [0.5, 0.5], key: {pad: Guide button}}\n");
  EXPECT_EQ("", Said(result));
  ASSERT_EQ(1, result.config->items.size());
  EXPECT_EQ("Guide button", result.config->items[0]->key.text.toStdString());
}

TEST(KeysInFiles, AnUnusualNameOfAGamepadIsMentioned) {
  EXPECT_EQ(
      "3:11 warning: 'LBB' is not a usual gamepad button; did you mean 'LB'?; {pad: LBB} is accepted without a warning",
      Said(ReadItems("- {  key: Pad LBB, type: Click, point: [0.5, 0.5]}\n")));
}

TEST(KeysInFiles, AClickWithoutAChordIsAPlainItem) {
  const LoadResult result = ReadItems("- {type: Click, key: W, point: [0.5, 0.5]}\n");
  ASSERT_EQ(1, result.config->items.size());
  EXPECT_EQ(nullptr, dynamic_cast<ComposableConfigItem*>(result.config->items[0]));
}

TEST(KeysInFiles, AChordIsTwoKeys) {
  const auto item = OneItem("type: Click, key: Q + E, point: [0.5, 0.5]").As<ComposableConfigItem>();
  EXPECT_EQ("Click", item.type.toStdString());
  EXPECT_EQ("Q", NameOf(item.first_key));
  EXPECT_EQ("E", NameOf(item.key));
  EXPECT_TRUE(item.IsChordMatch(KeyOf("Q"), KeyOf("E")));
}

TEST(KeysInFiles, AnyItemOfOneKeyMayHaveAChord) {
  const auto item = OneItem("type: Macro, key: Left Ctrl + F9, press_commands: []").As<MacroConfigItem>();
  EXPECT_EQ("Left Ctrl", NameOf(item.first_key));
  EXPECT_EQ("F9", NameOf(item.key));
}

TEST(KeysInFiles, AStickNeedsNoKey) {
  const auto& walk =
      OneItem("type: LeftStickWalk, point: [0.5, 0.5], walk_radius: 0.1").As<JoystickLeftWalkConfigItem>();
  EXPECT_EQ("Left_Stick", walk.key.text.toStdString());
  EXPECT_EQ("joystick", walk.key.device.toStdString());
  const auto eye = OneItem("type: RightStickEye, point: [0.5, 0.5]").As<JoystickRightEyeConfigItem>();
  EXPECT_EQ("Right_Stick", eye.key.text.toStdString());
}

TEST(KeysInFiles, ADirectionThatIsNotWrittenMatchesNothing) {
  const auto item = OneItem("type: Swipehold, point: [0.5, 0.5], key_left: A").As<SwipeholdConfigItem>();
  EXPECT_FALSE(IsKeySet(item.key_up));
  EXPECT_TRUE(item.IsKeyMatch(KeyOf("A")));
  EXPECT_FALSE(item.IsKeyMatch(KeyOf("W")));
  EXPECT_FALSE(item.IsKeyMatch(ConfigKey{QStringLiteral("keyboard"), {}, kUnsetCode, kUnsetCode, 0, 0}));
}

}  // namespace
}  // namespace tavikeymapmanager
