#include "keymapmanager/key_names.h"

#include "tests/keymapmanager/keymap_text.h"

namespace tavikeymapmanager {
namespace {

TEST(KeyNames, EveryNameIsReadBackAsItself) {
  for (const QString& name : AllKeyNames()) {
    const auto key = KeyFromName(name);
    ASSERT_TRUE(key) << name.toStdString();
    EXPECT_TRUE(IsKeySet(*key)) << name.toStdString();
    EXPECT_EQ(name.toStdString(), NameOfKey(*key).toStdString());
  }
}

TEST(KeyNames, EveryNameIsThatOfTheKeyMadeFromItsEvent) {
  for (const QString& name : AllKeyNames()) {
    const ConfigKey key = *KeyFromName(name);
    if (key.device == keywords::kDeviceJoystick) continue;  // made from its text
    const ConfigKey made = CreateConfigKey(key.device, key.virtual_key, key.scancode);
    EXPECT_EQ(name.toStdString(), made.text.toStdString());
    EXPECT_TRUE(IsSameKey(key, made)) << name.toStdString();
  }
}

TEST(KeyNames, NoTwoKeysAreTheSame) {
  const QStringList names = AllKeyNames();
  for (int i = 0; i < names.size(); ++i) {
    for (int j = i + 1; j < names.size(); ++j) {
      EXPECT_FALSE(IsSameKey(*KeyFromName(names[i]), *KeyFromName(names[j])))
          << names[i].toStdString() << " and " << names[j].toStdString();
    }
  }
}

TEST(KeyNames, TellWhatElseAKeyIsCalled) {
  EXPECT_EQ(OtherNamesOfKey(*KeyFromName("Escape")), QStringList{"Esc"});
  EXPECT_EQ(OtherNamesOfKey(*KeyFromName("Right Alt")), QStringList{"Alt Gr"});
  for (const char* name : {"W", "Mouse Left", "Wheel Up", "Pad A", "Scan 200"}) {
    EXPECT_EQ(OtherNamesOfKey(*KeyFromName(name)), QStringList()) << name;
  }
}

struct KeyboardRow {
  const char* name;
  int scancode;
  int virtual_key;
};

// Windows scan codes of set 1, the extended bit as 256, and virtual keys.
const KeyboardRow kKeyboardRows[] = {
    {"W", 17, 'W'},
    {"1", 2, '1'},
    {"0", 11, '0'},
    {"Space", 57, 0x20},
    {"Escape", 1, 0x1B},
    {"Enter", 28, 0x0D},
    {"Numpad Enter", 284, 0x0D},  // 0x1C with the extended bit
    {"Left Shift", 42, 0xA0},
    {"Right Shift", 54, 0xA1},
    {"Left Ctrl", 29, 0xA2},
    {"Right Ctrl", 285, 0xA3},  // 0x1D with the extended bit
    {"Left Alt", 56, 0xA4},
    {"Right Alt", 312, 0xA5},
    {"F5", 63, 0x74},
    {"F12", 88, 0x7B},
    {"F24", 118, 0x87},
    {"Up", 328, 0x26},
    {"Numpad 8", 72, 0x68},  // the same position without the extended bit
    {"Pause", 69, 0x13},
    {"Num Lock", 325, 0x90},
    {"Numpad Divide", 309, 0x6F},
    {"Menu", 349, 0x5D},
};

TEST(KeyNames, KeyboardKeysHaveTheirCodes) {
  for (const KeyboardRow& row : kKeyboardRows) {
    const ConfigKey key = KeyOf(row.name);
    EXPECT_EQ("keyboard", key.device.toStdString()) << row.name;
    EXPECT_EQ(row.name, key.text.toStdString());
    EXPECT_EQ(row.scancode, key.scancode) << row.name;
    EXPECT_EQ(row.virtual_key, key.virtual_key) << row.name;
  }
}

struct MouseRow {
  const char* name;
  int code;
};

const MouseRow kMouseRows[] = {
    {"Mouse Left", Qt::LeftButton},
    {"Mouse Right", Qt::RightButton},
    {"Mouse Middle", Qt::MiddleButton},
    {"Mouse Side 1", Qt::BackButton},
    {"Mouse Side 2", Qt::ForwardButton},
    {"Mouse Side 3", 32},
    {"Mouse Side 24", Qt::ExtraButton24},
    {"Wheel Up", 548},
    {"Wheel Down", 549},
};

TEST(KeyNames, MouseKeysHaveTheirButtonInBothCodes) {
  for (const MouseRow& row : kMouseRows) {
    const ConfigKey key = KeyOf(row.name);
    EXPECT_EQ("mouse", key.device.toStdString()) << row.name;
    EXPECT_EQ(row.code, key.scancode) << row.name;
    EXPECT_EQ(row.code, key.virtual_key) << row.name;
  }
}

struct PadRow {
  const char* name;
  const char* text;  // the host's
};

const PadRow kPadRows[] = {
    {"Pad A", "A"},
    {"Pad LB", "LB"},
    {"Pad Left_Stick", "Left_Stick"},
    {"Pad A+B", "A+B"},
    {"Pad A + B", "A+B"},
    {"Pad Up", "\u2191"},
    {"Pad 12", "12"},
    {"Pad LB+Left", "LB+\u2190"},
    {"Pad Guide", "Guide"},
};

TEST(KeyNames, GamepadKeysAreKnownByTheHostsName) {
  for (const PadRow& row : kPadRows) {
    const ConfigKey key = KeyOf(row.name);
    EXPECT_EQ("joystick", key.device.toStdString()) << row.name;
    EXPECT_EQ(row.text, key.text.toStdString()) << row.name;
    EXPECT_EQ(kUnsetCode, key.scancode) << row.name;
    EXPECT_EQ(kUnsetCode, key.virtual_key) << row.name;
  }
}

TEST(KeyNames, TheLetterAloneIsTheKeyboards) {
  EXPECT_EQ("keyboard", KeyOf("A").device.toStdString());
  EXPECT_EQ("joystick", KeyOf("Pad A").device.toStdString());
  EXPECT_EQ("Pad A", NameOf(JoystickKey(QStringLiteral("A"))));
  EXPECT_EQ("Pad Up+B", NameOf(JoystickKey(QStringLiteral("\u2191+B"))));
  EXPECT_EQ("Pad Paddle3", NameOf(JoystickKey(QStringLiteral("Paddle3"))));  // a button that only its host knows
}

TEST(KeyNames, OtherSpellingsAreTheSameKey) {
  const struct {
    const char* spelling;
    const char* name;
  } rows[] = {{"Esc", "Escape"},
              {"Return", "Enter"},
              {"Left Control", "Left Ctrl"},
              {"Del", "Delete"},
              {"Ins", "Insert"},
              {"Numpad *", "Numpad Multiply"},
              {"-", "Minus"},
              {"`", "Grave"},
              {"\\", "Backslash"},
              {"Alt Gr", "Right Alt"},
              {"Left Windows", "Left Win"}};
  for (const auto& row : rows) EXPECT_EQ(row.name, NameOf(KeyOf(row.spelling))) << row.spelling;
}

TEST(KeyNames, AnyScanCodeHasAName) {
  EXPECT_EQ(200, KeyOf("Scan 200").scancode);
  EXPECT_EQ("Scan 200", KeyOf("Scan 200").text.toStdString());
  EXPECT_TRUE(IsKeySet(KeyOf("Scan 200")));
  EXPECT_EQ("W", KeyOf("Scan 17").text.toStdString());  // a key that has a better one
  for (int scancode = 1; scancode < 512; ++scancode) {
    const ConfigKey key = CreateConfigKey(keywords::kDeviceKeyboard, 0, scancode);
    ASSERT_EQ(scancode, KeyOf(key.text.toUtf8()).scancode) << key.text.toStdString();
  }
}

TEST(KeyNames, NamesOfNothingAreRefused) {
  for (const char* name : {"",         "w",         "left shift", "Shift",        "Scan",          "Scan ", "Scan 0",
                           "Scan 512", "Scan 017",  "Scan -1",    "Scan 1x",      "Pad",           "Pad ",  "Pad A+",
                           "Pad +A",   "Pad A+B+X", "Pad A B",    "Mouse Side 0", "Mouse Side 25", "Q + E", " W",
                           "W "}) {
    EXPECT_FALSE(KeyFromName(QString::fromUtf8(name))) << "'" << name << "'";
  }
}

TEST(KeyNames, KeysWithoutANameGiveNone) {
  EXPECT_EQ("", NameOf(ConfigKey()));
  EXPECT_EQ("", NameOf(CreateConfigKey(keywords::kDeviceKeyboard, 0, 512)));
  EXPECT_EQ("", NameOf(CreateConfigKey(keywords::kDeviceMouse, 3, 3)));
  EXPECT_EQ("", NameOf(JoystickKey(QString())));
  EXPECT_EQ("", NameOf(JoystickKey(QStringLiteral("two words"))));
}

TEST(KeyNames, AMisspeltNameHasANearestOne) {
  const struct {
    const char* word;
    const char* nearest;
  } rows[] = {{"Spcae", "Space"},
              {"left shift", "Left Shift"},
              {"Numpad Entr", "Numpad Enter"},
              {"Mose Left", "Mouse Left"},
              {"w", "W"},
              {"Whel Up", "Wheel Up"},
              {"Pad Left_Stik", "Pad Left_Stick"},
              {"Hyperspace Drive", ""},
              {"", ""},
              {"?", ""}};
  for (const auto& row : rows) {
    EXPECT_EQ(row.nearest, NearestKeyName(QString::fromUtf8(row.word)).toStdString()) << row.word;
  }
}

}  // namespace
}  // namespace tavikeymapmanager
