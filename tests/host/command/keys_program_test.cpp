// `tavi keys` as users start it.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include "keymapmanager/key_names.h"
#include "tests/support/keyboard_105.h"
#include "tests/support/program.h"

namespace tavi {
namespace {

class KeysProgram : public Program {
 protected:
  // The objects of --json by name.
  QMap<QString, QJsonObject> Keys(const QStringList& arguments) {
    QMap<QString, QJsonObject> keys;
    const QString output = Run(QStringList{"keys", "--json"} + arguments).output;
    for (const QJsonValue key : QJsonDocument::fromJson(output.toUtf8()).array()) {
      keys.insert(key["name"].toString(), key.toObject());
    }
    return keys;
  }
};

TEST_F(KeysProgram, ListsEveryNameThatAKeymapCanWrite) {
  const QMap<QString, QJsonObject> keys = Keys({});
  const QMap<QString, QJsonObject> buttons = Keys({"--joystick"});
  QStringList listed = keys.keys() + buttons.keys();
  QStringList known = tavikeymapmanager::AllKeyNames();
  listed.sort();
  known.sort();
  EXPECT_EQ(listed, known);
}

TEST_F(KeysProgram, ListsTheCodesOfAKeyboard) {
  const QMap<QString, QJsonObject> keys = Keys({});
  for (const KeyboardKey& key : kKeyboard105) {
    SCOPED_TRACE(key.name);
    const QJsonObject listed = keys.value(QLatin1String(key.name));
    EXPECT_EQ(listed["device"].toString(), QStringLiteral("keyboard"));
    EXPECT_EQ(listed["scan_code"].toInt(), key.scancode);
    EXPECT_EQ(listed["evdev_code"].toInt(), key.linux_code);
    EXPECT_EQ(listed["x11_code"].toInt(), key.linux_code + 8);
    EXPECT_FALSE(listed["qt"].toString().isEmpty());
  }
}

TEST_F(KeysProgram, AliasesAreSpellingsOfTheSameKey) {
  int count = 0;
  const QMap<QString, QJsonObject> keys = Keys({});
  for (const QJsonObject& key : keys) {
    for (const QJsonValue alias : key["aliases"].toArray()) {
      const auto found = tavikeymapmanager::KeyFromName(alias.toString());
      ASSERT_TRUE(found) << alias.toString().toStdString();
      EXPECT_EQ(found->scancode, key["scan_code"].toInt());
      ++count;
    }
  }
  EXPECT_GE(count, 20);
}

TEST_F(KeysProgram, NamesWhatQtCallsAKey) {
  const QMap<QString, QJsonObject> keys = Keys({});
  const struct {
    const char* key;
    const char* qt;
  } rows[] = {
      {"A", "Key_A"},
      {"7", "Key_7"},
      {"F24", "Key_F24"},
      {"Page Up", "Key_PageUp"},
      {"Enter", "Key_Return"},
      {"Numpad Enter", "Key_Enter"},
      {"Numpad 7", "Key_7"},
      {"Numpad Plus", "Key_Plus"},
      {"Right Alt", "Key_Alt"},
      {"Mouse Side 1", "BackButton"},
      {"Ro", ""},
      {"Wheel Up", ""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(keys.value(row.key)["qt"].toString(), QLatin1String(row.qt)) << row.key;
  }
}

// Scan 42 is 0x2A, and 285 is 0x11D: 0x1D with the extended bit.
TEST_F(KeysProgram, PrintsATable) {
  const Outcome outcome = Run({"keys", "left ctrl"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, QStringLiteral("NAME       ALIAS         SCAN  VK    EVDEV  X11  QT\n"
                                           "Left Ctrl  Left Control  29    0xa2  29     37   Key_Control\n"));
  EXPECT_EQ(Run({"keys", "Mouse Right"}).output,
            QStringLiteral("NAME         ALIAS  SCAN  VK  EVDEV  X11  QT\n"
                           "Mouse Right  -      2     -   -      -    RightButton\n"));
}

TEST_F(KeysProgram, AFilterIsPartOfANameOrAlias) {
  EXPECT_EQ(Keys({"shift"}).keys(), (QStringList{"Left Shift", "Right Shift"}));
  EXPECT_EQ(Keys({"ALT GR"}).keys(), QStringList{"Right Alt"});
  EXPECT_EQ(Keys({"quoteleft"}).keys(), QStringList{"Grave"});
}

TEST_F(KeysProgram, ListsWhatHostsCallGamepadButtons) {
  const QMap<QString, QJsonObject> buttons = Keys({"--joystick"});
  EXPECT_EQ(buttons.value("Pad LB")["host_name"].toString(), QStringLiteral("LB"));
  EXPECT_EQ(buttons.value("Pad Up")["host_name"].toString(), QString(QChar(0x2191)));
  EXPECT_EQ(Run({"keys", "--joystick", "Pad LB"}).output, QStringLiteral("NAME    HOST\n"
                                                                         "Pad LB  LB\n"));
}

TEST_F(KeysProgram, TellsWhenNoKeyFits) {
  const Outcome outcome = Run({"keys", "hyper"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output, QString());
  EXPECT_EQ(outcome.errors, QStringLiteral("tavi keys: no key has \"hyper\" in its name\n"));
  const Outcome json = Run({"keys", "--json", "hyper"});
  EXPECT_EQ(json.status, 1);
  EXPECT_EQ(json.output, QStringLiteral("[\n]\n"));
}

TEST_F(KeysProgram, TakesOneFilter) {
  const Outcome outcome = Run({"keys", "Left", "Shift"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_TRUE(outcome.errors.startsWith("tavi keys: more than one filter; write a name of several words in quotes\n"));
}

}  // namespace
}  // namespace tavi
