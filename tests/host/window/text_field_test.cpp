#include <gtest/gtest.h>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>

#include "tests/host/window/window_fixture.h"
#include "tests/support/system/native_key.h"

namespace tavi {
namespace {

constexpr int kC = 46;
constexpr int kV = 47;
constexpr int kLeftCtrl = 29;
constexpr int kBackspace = 14;
constexpr int kEnter = 28;
constexpr int kLeftArrow = 105;

class TextField : public WindowFixture {
 protected:
  void KeyWithCtrl(QEvent::Type type, int linux_code, const QString& text) {
    QKeyEvent event = NativeKeyEvent(type, 0, Qt::ControlModifier, linux_code, text);
    Send(&event);
  }
  void Compose(const QString& preedit, const QString& commit) {
    QInputMethodEvent event(preedit, {});
    event.setCommitString(commit);
    Send(&event);
  }
};

TEST_F(TextField, KeysAreTypedWhateverTheKeymapSays) {
  Load("{type: Click, key: A, point: [0.5, 0.5]}");
  LiveHost::GetInstance()->SetTextField(true);
  Key(QEvent::KeyPress, kA, "a");
  Key(QEvent::KeyPress, kA, "a", true);
  Key(QEvent::KeyRelease, kA, "a");
  EXPECT_EQ(Guest().text, QStringLiteral("aa"));
  EXPECT_TRUE(Slots().isEmpty());
}

// As input methods and other programs send them.
TEST_F(TextField, AKeyWithoutAPlaceOnTheKeyboardIsItsText) {
  Load("");
  LiveHost::GetInstance()->SetTextField(true);
  Key(QEvent::KeyPress, -8, "x");
  EXPECT_EQ(Guest().text, QStringLiteral("x"));
}

// The text of Ctrl+V is a control character, which must not be typed.
TEST_F(TextField, CtrlVPastesTheClipboard) {
  Load("");
  LiveHost::GetInstance()->SetTextField(true);
  QGuiApplication::clipboard()->setText(QStringLiteral("na\u00EFve \U0001F600:\n2"));
  Key(QEvent::KeyPress, kLeftCtrl);
  KeyWithCtrl(QEvent::KeyPress, kV, QStringLiteral("\x16"));
  KeyWithCtrl(QEvent::KeyRelease, kV, QStringLiteral("\x16"));
  Key(QEvent::KeyRelease, kLeftCtrl);
  EXPECT_EQ(Guest().text, QStringLiteral("na\u00EFve \U0001F600:\n2"));
}

TEST_F(TextField, OtherControlCharactersAreTyped) {
  Load("");
  LiveHost::GetInstance()->SetTextField(true);
  KeyWithCtrl(QEvent::KeyPress, kC, QStringLiteral("\x03"));
  EXPECT_EQ(Guest().text, QStringLiteral("\x03"));
}

// X11 reports a key repeat as a release and a press with the same timestamp.
TEST_F(TextField, AHeldBackspaceTakesOneCharacterAtEachRepeat) {
  Load("");
  LiveHost::GetInstance()->SetTextField(true);
  Compose(QString(), QStringLiteral("abcdef"));
  Key(QEvent::KeyPress, kBackspace);
  EXPECT_EQ(Guest().text, QStringLiteral("abcde"));
  for (int i = 0; i < 3; ++i) {
    Key(QEvent::KeyRelease, kBackspace, {}, true);
    Key(QEvent::KeyPress, kBackspace, {}, true);
  }
  Key(QEvent::KeyRelease, kBackspace);
  EXPECT_EQ(Guest().text, QStringLiteral("ab"));
}

TEST_F(TextField, EnterIsALineAndArrowsAreKeys) {
  Load("");
  LiveHost::GetInstance()->SetTextField(true);
  QStringList lines;
  const QObject until_here;
  QObject::connect(LiveHost::GetInstance(), &LiveHost::EntryAdded, &until_here,
                   [&](const TimelineEntry& entry) { lines += entry.text; });
  Key(QEvent::KeyPress, kEnter, QStringLiteral("\r"));
  Key(QEvent::KeyPress, kLeftArrow);
  EXPECT_EQ(Guest().text, QStringLiteral("\n"));
  EXPECT_TRUE(lines.contains(QStringLiteral("1:KBDPR:105:1")));
  EXPECT_TRUE(lines.contains(QStringLiteral("1:KBDRL:105:0")));
}

// The guest gets a word when it is committed; until then the window shows it.
TEST_F(TextField, WhatIsComposedIsShownAndNotYetTyped) {
  Load("");
  LiveHost::GetInstance()->SetTextField(true);
  QStringList shown;
  QObject::connect(View(), &GuestView::Composing, [&](const QString& text) { shown += text; });
  Compose(QStringLiteral("ni"), QString());
  Compose(QStringLiteral("nihao"), QString());
  EXPECT_EQ(Guest().text, QString());
  const QImage composing = Window()->grab().toImage();
  Compose(QString(), QStringLiteral("\u4F60\u597D"));
  EXPECT_EQ(shown, (QStringList{"ni", "nihao", ""}));
  EXPECT_EQ(Guest().text, QStringLiteral("\u4F60\u597D"));
  EXPECT_NE(Window()->grab().toImage(), composing);
}

TEST_F(TextField, TheSwitchInTheToolBarFocusesIt) {
  Load("{type: Click, key: A, point: [0.5, 0.5]}");
  QAction* text_field = nullptr;
  for (QAction* action : Window()->findChildren<QAction*>()) {
    if (action->text() == QLatin1String("Text field")) text_field = action;
  }
  ASSERT_NE(text_field, nullptr);
  text_field->trigger();
  EXPECT_TRUE(View()->testAttribute(Qt::WA_InputMethodEnabled));
  Key(QEvent::KeyPress, kA, QStringLiteral("a"));
  EXPECT_EQ(Guest().text, QStringLiteral("a"));
  text_field->trigger();
  EXPECT_FALSE(View()->testAttribute(Qt::WA_InputMethodEnabled));
  Key(QEvent::KeyPress, kA, QStringLiteral("a"));
  EXPECT_EQ(Guest().text, QStringLiteral("a"));
  EXPECT_EQ(Slots().size(), 1);
}

// What was held as a touch must not stay down during text input.
TEST_F(TextField, KeysHeldBeforeAreLetGoWithTheFirstLetter) {
  Load("", "settings: {keyboard_transparent: true}");
  Press(kW);
  EXPECT_EQ(Guest().held_keys, QSet<int>{kW});
  LiveHost::GetInstance()->SetTextField(true);
  Key(QEvent::KeyPress, kA, QStringLiteral("a"));
  EXPECT_TRUE(Guest().held_keys.isEmpty());
}

}  // namespace
}  // namespace tavi
