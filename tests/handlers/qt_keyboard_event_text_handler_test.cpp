#include "handlers/qt_keyboard_event_text_handler.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>

#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

class TextField : public Story {
 protected:
  TextField() {
    Load();
    Play("textfield on");
  }
  static void Press(int scan, const QString& text, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QKeyEvent event(QEvent::KeyPress, 0, modifiers, static_cast<quint32>(scan), 0, 0, text);
    OnQtInputEvent(&event);
  }
};

TEST_F(TextField, TakesTextAtThePressAlone) {
  Play("down A; wait 20; up A");
  EXPECT_WIRE("0ms text TEXT:a");
}

TEST_F(TextField, RepeatsWithTheHost) {
  Play("down A; repeat A; repeat Esc; up A");
  EXPECT_WIRE("0ms text TEXT:a", "0ms text TEXT:a", "0ms 1:KBDPR:158:1", "0ms 1:KBDRL:158:0");
}

TEST_F(TextField, EscapeIsBackWhateverTheKeymapSays) {
  Settings().escape_to_guest = true;
  Load();
  Play("escape back off; down Esc; up Esc");
  EXPECT_WIRE("0ms 1:KBDPR:158:1", "0ms 1:KBDRL:158:0");
}

TEST_F(TextField, EnterAndBackspaceAreControls) {
  Press(28, "\r");
  Press(14, "\b");
  EXPECT_WIRE("0ms text TEXT_CONTROL:ENTER", "0ms text TEXT_CONTROL:BACKSPACE");
}

// Navigation and control keys, with their guest codes.
TEST_F(TextField, OtherControlKeysAreClicks) {
  const struct {
    const char* key;
    int code;
  } rows[] = {{"Tab", 15},     {"Numpad Enter", 96}, {"Home", 102},    {"Up", 103},   {"Page Up", 104},
              {"Left", 105},   {"Right", 106},       {"End", 107},     {"Down", 108}, {"Page Down", 109},
              {"Insert", 110}, {"Delete", 111},      {"Num Lock", 69}, {"Pause", 119}};
  for (const auto& row : rows) {
    Play(QStringLiteral("down ") + row.key);
    EXPECT_EQ((QStringList{QStringLiteral("0ms 1:KBDPR:%1:1").arg(row.code),
                           QStringLiteral("0ms 1:KBDRL:%1:0").arg(row.code)}),
              TakeWire())
        << row.key;
  }
  Press(349, "");   // the menu key
  Press(158, "b");  // the guest's own back key
  EXPECT_WIRE("0ms 1:KBDPR:139:1", "0ms 1:KBDRL:139:0", "0ms 1:KBDPR:158:1", "0ms 1:KBDRL:158:0");
}

TEST_F(TextField, AClickLeavesNothingHeld) {
  Play("down Up; textfield off; reset");
  EXPECT_FALSE(TakeWire().last().contains("KBDRL"));
}

TEST_F(TextField, ControlAndVPastesOnce) {
  QGuiApplication::clipboard()->setText("abc");
  Play("down Left Ctrl; down V; up V; up Left Ctrl");
  EXPECT_WIRE("0ms text TEXT:", "0ms text TEXT:abc");
}

TEST_F(TextField, AnEmptyClipboardPastesNothingInTheField) {
  QGuiApplication::clipboard()->clear();
  Press(47, "\x16", Qt::ControlModifier);
  EXPECT_WIRE("0ms text TEXT:");
}

TEST_F(TextField, ControlWithAnotherKeyIsItsCharacter) {
  Press(46, "\x03", Qt::ControlModifier);
  EXPECT_WIRE("0ms text TEXT:\x03");
}

TEST_F(TextField, AKeyWithoutTextSendsAnEmptyOne) {
  Play("down Left Shift; up Left Shift");
  EXPECT_WIRE("0ms text TEXT:");
}

TEST_F(TextField, TextIsNotEscaped) {
  Press(30, "a:b\nc");
  EXPECT_WIRE("0ms text TEXT:a:b\nc");
}

}  // namespace
}  // namespace taviinputmanager
