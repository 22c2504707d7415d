#include "keymap/keymap_functions.h"

#include <memory>

#include <QFile>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QWheelEvent>

#include "test_folders.h"
#include "tests/keymapmanager/keymap_text.h"

namespace tavikeymapmanager {
namespace {

using Config = std::unique_ptr<KeymapConfig>;

Config Load(const QString& path) { return Config(LoadKeymapConfigAndInfo(path)); }

void ExpectDefaults(const KeymapConfig& config) {
  EXPECT_TRUE(config.items.isEmpty());
  ASSERT_NE(nullptr, config.settings);
  ASSERT_NE(nullptr, config.wheel_settings);
  EXPECT_EQ("Mouse_No_Transparent", config.settings->mouse_mode.toStdString());
  EXPECT_FALSE(config.settings->escape_to_guest);
  EXPECT_FALSE(config.settings->wheel_transparent);
  EXPECT_EQ(0, config.settings->relative_interval_ms);
  EXPECT_EQ(1.0, config.settings->relative_factor);
  EXPECT_EQ(1.0, config.wheel_settings->wheel_delta);
  EXPECT_EQ(0, config.wheel_settings->wheel_use_delta);
  EXPECT_EQ(0, config.wheel_settings->simulate_mode);
  EXPECT_FALSE(config.wheel_settings->virtual_joystick);
}

TEST(Load, AnEmptyPathIsNoKeymap) {
  for (const Config& config : {Load({}), Config(LoadJoystickConfigAndInfo({}))}) {
    ExpectDefaults(*config);
    EXPECT_FALSE(config->settings->keyboard_transparent);
    EXPECT_FALSE(config->settings->joystick_transparent);
  }
  EXPECT_TRUE(ReadKeymapFile({}).diagnostics.isEmpty());
}

TEST(Load, TheSystemKeymapPassesKeysThrough) {
  const QString name = QStringLiteral("system-9252A9CA-0C32-4FFD-8BF6-82653751D068");
  for (const Config& config : {Load(name), Config(LoadJoystickConfigAndInfo(name))}) {
    ExpectDefaults(*config);
    EXPECT_TRUE(config->settings->keyboard_transparent);
    EXPECT_TRUE(config->settings->joystick_transparent);
  }
  EXPECT_TRUE(ReadKeymapFile(name).diagnostics.isEmpty());
}

TEST(Load, WhatCannotBeReadGivesDefaultsAndADiagnostic) {
  for (const char* path :
       {"/no/such/file.yaml", TAVI_SOURCE_DIR, TAVI_SOURCE_DIR "/tests/data/keymaps/bad/a_list.yaml"}) {
    const Config config = Load(QString::fromUtf8(path));
    ASSERT_NE(nullptr, config) << path;
    ExpectDefaults(*config);
    EXPECT_TRUE(ReadKeymapFile(QString::fromUtf8(path)).HasErrors()) << path;
  }
}

TEST(Load, AnExampleGivesItsItems) {
  const QString path = QStringLiteral(TAVI_SOURCE_DIR "/examples/keymaps/shooter.yaml");
  const Config config = Load(path);
  ASSERT_GE(config->items.size(), 3);
  EXPECT_NE(nullptr, dynamic_cast<SwipeholdConfigItem*>(config->items[0]));
  EXPECT_NE(nullptr, dynamic_cast<StaringConfigItem*>(config->items[1]));
  EXPECT_NE(nullptr, dynamic_cast<FireConfigItem*>(config->items[2]));
  EXPECT_EQ(config->items.size(), Config(LoadJoystickConfigAndInfo(path))->items.size());
}

TEST(Load, EveryLoadMakesItemsOfItsOwn) {
  const QString path = QStringLiteral(TAVI_SOURCE_DIR "/examples/keymaps/racing.yaml");
  const Config one = Load(path);
  const Config other = Load(path);
  EXPECT_NE(one->items[0], other->items[0]);
  EXPECT_NE(one->settings, other->settings);
}

TEST(Load, AFileMayBeOneMebibyteLong) {
  QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("long.yaml")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  const QByteArray start = "format: 1\n";
  file.write(start + QByteArray(1024 * 1024 - start.size() - 1, '#') + "\n");
  file.flush();
  EXPECT_EQ("", Said(ReadKeymapFile(file.fileName())));
  file.write("\n");
  file.flush();
  EXPECT_EQ("1:1 error: longer than 1048576 bytes", Said(ReadKeymapFile(file.fileName())));
}

TEST(CreateConfigKey, NamesAKeyByItsScanCode) {
  EXPECT_EQ("W", CreateConfigKey(QStringLiteral("keyboard"), 0x57, 17).text.toStdString());
  EXPECT_EQ("Mouse Left", CreateConfigKey(QStringLiteral("mouse"), 1, 1).text.toStdString());
  EXPECT_EQ("Scan 200", CreateConfigKey(QStringLiteral("keyboard"), 0x57, 200).text.toStdString());
}

TEST(CreateConfigKey, KeepsItsArguments) {
  const ConfigKey key = CreateConfigKey(QStringLiteral("keyboard"), 5, 17);
  EXPECT_EQ("keyboard", key.device.toStdString());
  EXPECT_EQ(5, key.virtual_key);
  EXPECT_EQ(17, key.scancode);
}

// The wheel handler creates its keys like this: the virtual key is unknown.
TEST(CreateConfigKey, AWheelDirectionIsKnownByItsCodeAlone) {
  const ConfigKey up = CreateConfigKey(QStringLiteral("mouse"), -1, 548);
  EXPECT_EQ("Wheel Up", up.text.toStdString());
  EXPECT_TRUE(IsSameKey(KeyOf("Wheel Up"), up));
  EXPECT_EQ("Wheel Down", CreateConfigKey(QStringLiteral("mouse"), -1, 549).text.toStdString());
  EXPECT_EQ("Wheel Up", CreateConfigKey(QStringLiteral("wheel"), kUnsetCode, 548).text.toStdString());
}

TEST(CreateConfigKey, WithoutAScanCodeTheVirtualKeyNamesIt) {
  EXPECT_EQ("W", CreateConfigKey(QStringLiteral("keyboard"), 0x57, kUnsetCode).text.toStdString());
  EXPECT_EQ("Enter", CreateConfigKey(QStringLiteral("keyboard"), 0x0D, kUnsetCode).text.toStdString());
}

TEST(CreateConfigKey, WithoutCodesItCanOnlyMatchByDeviceAndText) {
  ConfigKey key = CreateConfigKey(QStringLiteral("joystick"), kUnsetCode, kUnsetCode);
  EXPECT_TRUE(key.text.isEmpty());
  EXPECT_FALSE(IsKeySet(key));
  key.text = QStringLiteral("A");
  EXPECT_TRUE(IsSameKey(key, KeyOf("Pad A")));
  EXPECT_FALSE(IsKeySet(CreateConfigKey(QStringLiteral("keyboard"), kUnsetCode, kUnsetCode)));
}

TEST(CreateConfigKey, TextsAreSharedConstants) {
  for (const int scancode : {17, 200}) {
    const ConfigKey one = CreateConfigKey(keywords::kDeviceKeyboard, 0, scancode);
    const ConfigKey other = CreateConfigKey(keywords::kDeviceKeyboard, 0, scancode);
    EXPECT_EQ(one.text.constData(), other.text.constData());
  }
}

TEST(SetTextForConfigKey, FillsTheNameFromTheCodes) {
  ConfigKey key = KeyOf("W");
  key.text = QStringLiteral("something else");
  SetTextForConfigKey(&key);
  EXPECT_EQ("W", key.text.toStdString());
}

TEST(SetTextForConfigKey, LeavesAGamepadsKeyItsName) {
  ConfigKey key = KeyOf("Pad LB");
  SetTextForConfigKey(&key);
  EXPECT_EQ("LB", key.text.toStdString());
}

TEST(SetTextForConfigKey, IgnoresNull) { SetTextForConfigKey(nullptr); }

class IsConfigKeyMatch : public testing::Test {
 protected:
  // Whether the keymap matches `configured` alone, or followed by `pressed`.
  bool Match(const QByteArray& items, const char* configured, const char* pressed = "") {
    const LoadResult result = ReadItems(items);
    EXPECT_FALSE(result.HasErrors()) << Said(result);
    ConfigKey first = KeyOf(configured);
    ConfigKey second = KeyOf(pressed);
    return isConfigKeyMatch(result.config.get(), &first, &second);
  }
};

TEST_F(IsConfigKeyMatch, AnItemAnswersToItsKeyAlone) {
  const QByteArray items = "- {type: Click, key: Escape, point: [0.5, 0.5]}\n";
  EXPECT_TRUE(Match(items, "Escape"));
  EXPECT_TRUE(Match(items, "Escape", "W"));
  EXPECT_FALSE(Match(items, "W", "Escape"));
}

TEST_F(IsConfigKeyMatch, AChordItemAnswersToBothKeysInOrder) {
  const QByteArray items = "- {type: Click, key: Q + Escape, point: [0.5, 0.5]}\n";
  EXPECT_TRUE(Match(items, "Q", "Escape"));
  EXPECT_FALSE(Match(items, "Escape", "Q"));
  EXPECT_FALSE(Match(items, "Escape"));
  EXPECT_FALSE(Match(items, "Q"));
}

TEST_F(IsConfigKeyMatch, AWalkAnswersToAnyOfItsKeys) {
  const QByteArray items = "- {type: Swipehold, point: [0.5, 0.5], key_up: W, key_left: A}\n";
  EXPECT_TRUE(Match(items, "W"));
  EXPECT_TRUE(Match(items, "A"));
  EXPECT_FALSE(Match(items, "S"));
}

TEST_F(IsConfigKeyMatch, ALabelAnswersToNothing) {
  EXPECT_FALSE(Match("- {type: Tip, key: Escape, point: [0.5, 0.5]}\n", "Escape"));
}

TEST_F(IsConfigKeyMatch, KeysAreThoseOfTheMoment) {
  KeymapConfig config;
  auto* click = new ComposableConfigItem;
  config.items = {click};
  click->key = KeyOf("W");
  ConfigKey w = KeyOf("W");
  ConfigKey escape = KeyOf("Escape");
  EXPECT_TRUE(isConfigKeyMatch(&config, &w, &escape));
  click->first_key = w;
  click->key = escape;  // from now on a chord
  EXPECT_TRUE(isConfigKeyMatch(&config, &w, &escape));
  EXPECT_FALSE(isConfigKeyMatch(&config, &w, &w));
  click->first_key = ConfigKey();
  EXPECT_TRUE(isConfigKeyMatch(&config, &escape, &w));
}

TEST_F(IsConfigKeyMatch, NullAndUnsetMatchNothing) {
  const LoadResult result = ReadItems("- {type: Click, key: Escape, point: [0.5, 0.5]}\n");
  ConfigKey key = KeyOf("Escape");
  ConfigKey unset;
  EXPECT_FALSE(isConfigKeyMatch(nullptr, &key, &key));
  EXPECT_FALSE(isConfigKeyMatch(result.config.get(), nullptr, &key));
  EXPECT_FALSE(isConfigKeyMatch(result.config.get(), &key, nullptr));
  EXPECT_FALSE(isConfigKeyMatch(result.config.get(), &unset, &key));
}

TEST(GetMacroConfigKeyCode, IsTheScanCodeOfAKeyAndTheButtonOfAMouse) {
  QKeyEvent key(QEvent::KeyRelease, Qt::Key_W, Qt::NoModifier, 17, 0x57, 0);
  EXPECT_EQ(17, getMacroConfigKeyCode(&key));
  QMouseEvent button(QEvent::MouseButtonPress, QPointF(1, 2), QPointF(1, 2), Qt::RightButton, Qt::RightButton,
                     Qt::NoModifier);
  EXPECT_EQ(2, getMacroConfigKeyCode(&button));
}

TEST(GetMacroConfigKeyCode, AnythingElseHasNone) {
  QEvent other(QEvent::FocusIn);
  EXPECT_EQ(-1, getMacroConfigKeyCode(&other));
  QMouseEvent move(QEvent::MouseMove, QPointF(1, 2), QPointF(1, 2), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
  EXPECT_EQ(-1, getMacroConfigKeyCode(&move));
  EXPECT_EQ(-1, getMacroConfigKeyCode(nullptr));
}

TEST(IsConfigHasSpeicalTypeKey, LooksForTheType) {
  const LoadResult result = ReadItems("- {type: Staring, key: Grave, point: [0.5, 0.5]}\n");
  EXPECT_TRUE(isConfigHasSpeicalTypeKey(result.config.get(), QStringLiteral("Staring")));
  EXPECT_FALSE(isConfigHasSpeicalTypeKey(result.config.get(), QStringLiteral("Fire")));
  EXPECT_FALSE(isConfigHasSpeicalTypeKey(result.config.get(), QStringLiteral("staring")));
  EXPECT_FALSE(isConfigHasSpeicalTypeKey(nullptr, QStringLiteral("Staring")));
}

TEST(JoystickEvent, HasThreeTypesOfItsOwn) {
  EXPECT_NE(JoystickEvent::ButtonPress, JoystickEvent::ButtonRelease);
  EXPECT_NE(JoystickEvent::ButtonPress, JoystickEvent::AxisTriggle);
  EXPECT_NE(JoystickEvent::ButtonRelease, JoystickEvent::AxisTriggle);
  for (const QEvent::Type type :
       {JoystickEvent::ButtonPress, JoystickEvent::ButtonRelease, JoystickEvent::AxisTriggle}) {
    EXPECT_GE(type, QEvent::User);
    EXPECT_LE(type, QEvent::MaxUser);
    EXPECT_NE(type, QEvent::registerEventType());
  }
}

}  // namespace
}  // namespace tavikeymapmanager
