// The keys that the window reserves: the one that pauses the mapping and the one that releases everything.
#include "host/session/mapping.h"

#include <algorithm>

#include <QAction>
#include <QFile>
#include <QLabel>
#include <QStatusBar>
#include <QWheelEvent>

#include "host/session/key_combination.h"
#include "host/session/keymap_watch.h"
#include "host/session/replayer.h"
#include "host/window/records/record_bar.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/host/window/window_fixture.h"
#include "tests/support/system/native_key.h"

namespace tavi {
namespace {

constexpr int kBackspace = 14;
constexpr int kE = 18;
constexpr int kGrave = 41;
constexpr int kF12 = 88;

class MappingTest : public WindowFixture {
 protected:
  void KeyWith(QEvent::Type type, int linux_code, Qt::KeyboardModifiers modifiers, ulong timestamp = 0) {
    QKeyEvent event = NativeKeyEvent(type, 0, modifiers, linux_code);
    event.setTimestamp(timestamp);
    Send(&event);
  }
  void ClickPanicKey() {
    KeyWith(QEvent::KeyPress, kBackspace, Qt::ControlModifier | Qt::AltModifier);
    KeyWith(QEvent::KeyRelease, kBackspace, Qt::ControlModifier | Qt::AltModifier);
    clock_->Settle();
  }
  void ClickPauseKey() {
    Press(kF12);
    Release(kF12);
  }
  QAction* Switch() const {
    for (QAction* action : Window()->findChildren<QAction*>()) {
      if (action->text() == QLatin1String("Mapping")) return action;
    }
    return nullptr;
  }
};

// ---- Names of keys

TEST(KeyCombinationTest, ModifiersAndAKey) {
  KeyCombination key;
  EXPECT_EQ(ParseKeyCombination("Ctrl + Shift+F5", &key), QString());
  EXPECT_EQ(key.scancode, 63);
  EXPECT_EQ(key.modifiers, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(key.name, QString("Ctrl+Shift+F5"));
  EXPECT_EQ(ParseKeyCombination("Pause", &key), QString());
  EXPECT_EQ(key.modifiers, Qt::NoModifier);
}

TEST(KeyCombinationTest, WhatIsWrongIsTold) {
  const struct {
    const char* name;
    const char* text;
    const char* told;
  } rows[] = {
      {"misspelt key", "Pasue", "did you mean \"Pause\""},
      {"unknown modifier", "Hyper+F5", "\"Hyper\" is not a modifier"},
      {"a button of the mouse", "Mouse Left", "\"Mouse Left\" is not a key of the keyboard"},
      {"no key", "Ctrl+", "\"\" is not a key of the keyboard"},
      {"nothing", "", "\"\" is not a key of the keyboard"},
  };
  for (const auto& row : rows) {
    KeyCombination key;
    EXPECT_TRUE(ParseKeyCombination(row.text, &key).contains(row.told))
        << row.name << ": " << ParseKeyCombination(row.text, &key).toStdString();
    EXPECT_EQ(key.scancode, 0) << row.name;
  }
}

// ---- The pause

TEST_F(MappingTest, WhilePausedAKeyIsAKey) {
  Load("{type: Click, key: Space, point: [0.25, 0.75]}");
  ClickPauseKey();
  EXPECT_TRUE(Window()->Keymaps()->IsPaused());
  Press(kSpace);
  EXPECT_TRUE(Slots().isEmpty());
  EXPECT_EQ(Guest().held_keys, QSet<int>{kSpace});
  Release(kSpace);

  ClickPauseKey();
  Press(kSpace);
  EXPECT_EQ(Slots(), QList<int>{11});
  EXPECT_TRUE(Guest().held_keys.isEmpty());
}

TEST_F(MappingTest, TheKeyItselfReachesNobody) {
  Load("{type: Click, key: F12, point: [0.25, 0.75]}", "settings: {keyboard_transparent: true}");
  Press(kF12);
  EXPECT_TRUE(Slots().isEmpty());
  EXPECT_TRUE(Guest().held_keys.isEmpty());
  Release(kF12);
  EXPECT_TRUE(Guest().held_keys.isEmpty());
}

TEST_F(MappingTest, AKeymapThatUsesTheKeyIsTold) {
  Load("{type: Click, key: F12, point: [0.25, 0.75]}");
  EXPECT_TRUE(Window()->statusBar()->currentMessage().startsWith("F12 is a key of this keymap"));
  Window()->statusBar()->clearMessage();
  Load("{type: Click, key: Backspace, point: [0.25, 0.75]}");  // with Ctrl and Alt alone the window reserves it
  EXPECT_EQ(Window()->statusBar()->currentMessage(), QString());
}

// The window loads its keymap before it is shown; still there is only this message.
TEST_F(MappingTest, WhatIsToldBeforeTheWindowIsSeenTakesThePlaceOfTheKeymapsName) {
  Window()->hide();
  Load("{type: Click, key: F12, point: [0.25, 0.75]}");
  Window()->show();
  clock_->Settle();
  EXPECT_TRUE(Window()->statusBar()->currentMessage().startsWith("F12 is a key of this keymap"));
  const QList<QLabel*> labels = Window()->statusBar()->findChildren<QLabel*>();
  const auto keymap = std::find_if(labels.begin(), labels.end(),
                                   [](const QLabel* label) { return label->text().startsWith("keymap.yaml"); });
  ASSERT_NE(keymap, labels.end());
  EXPECT_FALSE((*keymap)->isVisible());
  Window()->statusBar()->clearMessage();
  EXPECT_TRUE((*keymap)->isVisible());
}

// X11 reports a held key as releases and presses with equal timestamps.
TEST_F(MappingTest, AHeldPauseKeySwitchesOnce) {
  Load("");
  KeyWith(QEvent::KeyPress, kF12, Qt::NoModifier, 1000);
  for (const ulong repeat : {1500UL, 1530UL, 1560UL}) {
    KeyWith(QEvent::KeyRelease, kF12, Qt::NoModifier, repeat);
    KeyWith(QEvent::KeyPress, kF12, Qt::NoModifier, repeat);
  }
  Key(QEvent::KeyPress, kF12, {}, true);
  EXPECT_TRUE(Window()->Keymaps()->IsPaused());
  KeyWith(QEvent::KeyRelease, kF12, Qt::NoModifier, 1600);
  KeyWith(QEvent::KeyPress, kF12, Qt::NoModifier, 1900);
  EXPECT_FALSE(Window()->Keymaps()->IsPaused());
}

TEST_F(MappingTest, WhatWasDownIsLetGoAtTheSwitch) {
  Load("{type: Click, key: Space, point: [0.25, 0.75]}", "settings: {keyboard_transparent: true}");
  Press(kSpace);
  Press(kW);
  ClickPauseKey();
  EXPECT_TRUE(Slots().isEmpty());
  EXPECT_TRUE(Guest().held_keys.isEmpty());

  Press(kSpace);
  Mouse(QEvent::MouseButtonPress, At(0.5, 0.5), Qt::LeftButton, Qt::LeftButton);
  EXPECT_EQ(Slots().size(), 1);
  ClickPauseKey();
  EXPECT_TRUE(Slots().isEmpty());
  EXPECT_TRUE(Guest().held_keys.isEmpty());
}

TEST_F(MappingTest, WhilePausedTheMouseIsAMouse) {
  Load("{type: Click, key: Mouse Right, point: [0.25, 0.75]}");
  ClickPauseKey();
  Mouse(QEvent::MouseMove, At(0.5, 0.25), Qt::NoButton, Qt::NoButton);
  ASSERT_TRUE(Guest().pointer.has_value());
  ExpectNear(*Guest().pointer, 640, 180);
  Mouse(QEvent::MouseButtonPress, At(0.5, 0.25), Qt::RightButton, Qt::RightButton);
  EXPECT_EQ(Guest().held_keys, QSet<int>{273});
  EXPECT_TRUE(Slots().isEmpty());
  Mouse(QEvent::MouseButtonRelease, At(0.5, 0.25), Qt::RightButton, Qt::NoButton);
  QWheelEvent turn(At(0.5, 0.25), At(0.5, 0.25), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                   Qt::NoScrollPhase, false);
  Send(&turn);
  EXPECT_EQ(Guest().wheel.amount, 100);
  Mouse(QEvent::MouseButtonPress, At(0.5, 0.5), Qt::LeftButton, Qt::LeftButton);
  ExpectNear(Finger(), 640, 360);
}

TEST_F(MappingTest, WhilePausedATextFieldGetsLetters) {
  Load("{type: Click, key: A, point: [0.25, 0.75]}");
  ClickPauseKey();
  LiveHost::GetInstance()->SetTextField(true);
  Key(QEvent::KeyPress, kA, "a");
  Key(QEvent::KeyRelease, kA, "a");
  EXPECT_EQ(Guest().text, QString("a"));
  LiveHost::GetInstance()->SetTextField(false);
  Press(kA);
  EXPECT_EQ(Guest().held_keys, QSet<int>{kA});
}

TEST_F(MappingTest, WhilePausedAGamepadIsAGamepad) {
  LoadJoystick("{type: Click, key: Pad A, point: [0.25, 0.75]}");
  Gamepads* pads = Window()->Pads();
  pads->Add(1, "Pad", PadFamily::kLettered);
  ClickPauseKey();
  pads->SetButton(1, "a", true);
  EXPECT_TRUE(Slots().isEmpty());
  EXPECT_FALSE(Guest().gamepad.buttons.isEmpty());
  ClickPauseKey();
  EXPECT_TRUE(Guest().gamepad.buttons.isEmpty());
  pads->SetButton(1, "a", false);
  pads->SetButton(1, "a", true);
  EXPECT_EQ(Slots().size(), 1);
}

TEST_F(MappingTest, ThePauseGivesTheMouseBack) {
  Load("{type: Staring, key: Grave, point: [0.6, 0.4]}");
  Press(kGrave);
  Release(kGrave);
  clock_->Advance(20);
  EXPECT_EQ(View()->cursor().shape(), Qt::BlankCursor);
  ClickPauseKey();
  EXPECT_NE(View()->cursor().shape(), Qt::BlankCursor);
}

TEST_F(MappingTest, TheToolBarShowsAndSwitches) {
  Load("");
  ASSERT_NE(Switch(), nullptr);
  EXPECT_TRUE(Switch()->isChecked());
  ClickPauseKey();
  EXPECT_FALSE(Switch()->isChecked());
  Switch()->trigger();
  EXPECT_FALSE(Window()->Keymaps()->IsPaused());
}

TEST_F(MappingTest, AKeymapThatIsOpenedWhilePausedIsInUseAfterIt) {
  Load("");
  ClickPauseKey();
  Load("{type: Click, key: Space, point: [0.25, 0.75]}");
  Press(kSpace);
  EXPECT_TRUE(Slots().isEmpty());
  Release(kSpace);
  ClickPauseKey();
  Press(kSpace);
  EXPECT_EQ(Slots().size(), 1);
}

TEST_F(MappingTest, AnotherKeyPauses) {
  Load("{type: Click, key: F12, point: [0.25, 0.75]}");
  KeyCombination key;
  ASSERT_EQ(ParseKeyCombination("Shift+E", &key), QString());
  Window()->SetPauseKey(key);
  Press(kF12);
  EXPECT_EQ(Slots().size(), 1);  // now it belongs to the keymap
  Release(kF12);
  KeyWith(QEvent::KeyPress, kE, Qt::NoModifier);
  EXPECT_FALSE(Window()->Keymaps()->IsPaused());
  KeyWith(QEvent::KeyRelease, kE, Qt::NoModifier);
  KeyWith(QEvent::KeyPress, kE, Qt::ShiftModifier | Qt::ControlModifier);  // further modifiers do not matter
  EXPECT_TRUE(Window()->Keymaps()->IsPaused());
}

// ---- The way out

TEST_F(MappingTest, ThePanicKeyLiftsFingersAndKeys) {
  Load("{type: Click, key: Space, point: [0.25, 0.75]}", "settings: {keyboard_transparent: true}");
  Press(kSpace);
  Press(kW);
  Mouse(QEvent::MouseButtonPress, At(0.1, 0.1), Qt::LeftButton, Qt::LeftButton);
  ClickPanicKey();
  EXPECT_TRUE(Slots().isEmpty());
  EXPECT_TRUE(Guest().held_keys.isEmpty());
  Release(kSpace);
  Press(kSpace);
  EXPECT_EQ(Slots().size(), 1);  // the keymap is still in use
}

TEST_F(MappingTest, ThePanicKeyGivesTheMouseBack) {
  Load("{type: Staring, key: Grave, point: [0.6, 0.4]}");
  Press(kGrave);
  Release(kGrave);
  clock_->Advance(20);
  EXPECT_EQ(View()->cursor().shape(), Qt::BlankCursor);
  ClickPanicKey();
  EXPECT_NE(View()->cursor().shape(), Qt::BlankCursor);
}

TEST_F(MappingTest, ThePanicKeyEndsMacros) {
  Load(
      "{type: Macro, key: E, press_commands: ['press_rel:(0.5,0.5)', 'sleep:100', 'release_rel:(0.5,0.5)', 'sleep:100',"
      " 'press_rel:(0.5,0.5)', 'sleep:5000', 'release_rel:(0.5,0.5)']}");
  Press(kE);
  Release(kE);
  clock_->Advance(250);
  ASSERT_EQ(Slots().size(), 1);
  ClickPanicKey();
  EXPECT_TRUE(Slots().isEmpty());
  clock_->Advance(10000);
  EXPECT_TRUE(Slots().isEmpty());
}

// The keymap maps the panic key's own key, and still does not get it.
TEST_F(MappingTest, ThePanicKeyComesBeforeTheKeymap) {
  Load("{type: Click, key: Backspace, point: [0.25, 0.75]}");
  KeyWith(QEvent::KeyPress, kBackspace, Qt::ControlModifier | Qt::AltModifier);
  EXPECT_TRUE(Slots().isEmpty());
  KeyWith(QEvent::KeyRelease, kBackspace, Qt::ControlModifier | Qt::AltModifier);
  Press(kBackspace);
  EXPECT_EQ(Slots().size(), 1);
}

TEST_F(MappingTest, ThePanicKeyEndsAReplay) {
  Load("{type: Click, key: Space, point: [0.25, 0.75]}");
  const QString file = folder_.filePath("tap.json");
  Window()->Records()->SetTarget(file);
  Window()->Records()->ToggleRecording();
  Press(kSpace);
  clock_->Advance(1000);
  Release(kSpace);
  Window()->Records()->ToggleRecording();
  ASSERT_TRUE(Window()->Records()->OpenRecord(file));
  Window()->Records()->TogglePlaying();
  clock_->Advance(500);
  ASSERT_EQ(Slots().size(), 1);
  ClickPanicKey();
  clock_->Advance(1);
  EXPECT_TRUE(Slots().isEmpty());
  EXPECT_EQ(Replayer::GetInstance()->GetState(), Replayer::State::kNone);
}

TEST_F(MappingTest, ThePanicKeyForgetsThatInputWasToBeHeld) {
  Load("{type: Macro, key: E, press_commands: ['hold_switch']}");
  Press(kE);
  Release(kE);
  clock_->Advance(10);
  ASSERT_TRUE(taviinputmanager::isInputHoldWhenWindowDeactivate());
  ClickPanicKey();
  EXPECT_FALSE(taviinputmanager::isInputHoldWhenWindowDeactivate());
}

// ---- A file that is broken for a while

TEST_F(MappingTest, TheLastGoodKeymapStaysInUse) {
  Load("{type: Click, key: Space, point: [0.25, 0.75]}");
  Load("{type: Click, key: Spcae, point: [0.5, 0.5]}");
  Press(kSpace);
  ExpectNear(Finger(), 320, 540);
  Release(kSpace);
  Load("{type: Click, key: Space, point: [0.5, 0.5]}");
  Press(kSpace);
  ExpectNear(Finger(), 640, 360);
}

TEST_F(MappingTest, TheLastGoodKeymapComesBackAfterAPause) {
  Load("{type: Click, key: Space, point: [0.25, 0.75]}");
  Load("{type: Click, key: Spcae, point: [0.5, 0.5]}");
  ClickPauseKey();
  ClickPauseKey();
  Press(kSpace);
  ExpectNear(Finger(), 320, 540);
}

TEST_F(MappingTest, AFileThatIsGoneComesBackAfterAPause) {
  Load("{type: Click, key: Space, point: [0.25, 0.75]}");
  QFile::remove(folder_.filePath("keymap.yaml"));
  ClickPauseKey();
  ClickPauseKey();
  Press(kSpace);
  ExpectNear(Finger(), 320, 540);
}

TEST_F(MappingTest, AnotherFileThatIsBrokenIsNotTheOneBefore) {
  Load("{type: Click, key: Space, point: [0.25, 0.75]}");
  Window()->LoadKeymap(Write("other.yaml", "{type: Click, key: Spcae, point: [0.5, 0.5]}"));
  Press(kSpace);
  EXPECT_TRUE(Slots().isEmpty());
}

// What was loaded is used, whatever has happened to the file since.
TEST_F(MappingTest, AFileThatIsWrittenButNotReadYetIsNotInUse) {
  ClickPauseKey();
  Load("{type: Click, key: Space, point: [0.25, 0.75]}");
  Write("keymap.yaml", "{type: Click, key: Space, point: [0.5, 0.5]}");
  ClickPauseKey();
  Press(kSpace);
  ExpectNear(Finger(), 320, 540);
}

TEST_F(MappingTest, AFileThatGoesIsToldAndStaysInUse) {
  Load("{type: Click, key: Space, point: [0.25, 0.75]}");
  QFile::remove(folder_.filePath("keymap.yaml"));
  auto* watch = Window()->findChild<KeymapWatch*>();  // the first belongs to the keymap
  ASSERT_NE(watch, nullptr);
  QMetaObject::invokeMethod(watch, "Settle");
  EXPECT_EQ(Window()->statusBar()->currentMessage(),
            QString("keymap.yaml was deleted; the keymap stays in use as it was last read"));
  const QList<QLabel*> labels = Window()->statusBar()->findChildren<QLabel*>();
  EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
    return label->text().contains("1 item \u00B7 the file was deleted");
  }));
  Press(kSpace);
  ExpectNear(Finger(), 320, 540);
}

}  // namespace
}  // namespace tavi
