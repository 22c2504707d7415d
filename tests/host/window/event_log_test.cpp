// The list of events: what each matched, and the lines that it produced.
#include "host/window/events/event_log.h"

#include <QClipboard>
#include <QToolButton>
#include <QWheelEvent>

#include "host/window/events/event_viewer.h"
#include "keymapmanager/keymap_file.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/host/window/window_fixture.h"

namespace tavi {
namespace {

constexpr int kE = 18;
constexpr int kLeftCtrl = 29;
constexpr int kGrave = 41;
constexpr int kF12 = 88;

class EventLogTest : public WindowFixture {
 protected:
  EventViewer* Viewer() const { return Window()->findChild<EventViewer*>(); }
  EventLog* Log() const { return Window()->findChild<EventLog*>(); }
  int Rows() const { return Log()->rowCount(); }
  QString Cell(int row, int column) const { return Log()->index(row, column).data().toString(); }
  // A column of the last row.
  QString Last(int column) const { return Cell(Rows() - 1, column); }
  void Click(const char* button) {
    for (QToolButton* each : Viewer()->findChildren<QToolButton*>()) {
      if (each->text() == QLatin1String(button)) each->click();
    }
  }
  void Turn(int delta) {
    QWheelEvent event(At(0.5, 0.25), At(0.5, 0.25), QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    Send(&event);
  }
};

// The keymap is on line 3 of the fixture's file; each further item here is on a line of its own.
TEST_F(EventLogTest, AKeyWithItsItemAndItsLine) {
  Load("{type: Click, label: Jump, key: Space, point: [0.25, 0.75]},\n{type: Click, key: W, point: [0.5, 0.5]}");
  Press(kSpace);
  EXPECT_EQ(Last(EventLog::kEvent), "press");
  EXPECT_EQ(Last(EventLog::kCode), "scan 57");
  EXPECT_EQ(Last(EventLog::kKey), "Space");
  EXPECT_EQ(Last(EventLog::kMatch), "Jump, line 3");
  EXPECT_EQ(Last(EventLog::kSent), "1:SLOTPRESS:11:11:1:1:320:540");
  clock_->Advance(10);
  Release(kSpace);
  EXPECT_EQ(Last(EventLog::kEvent), "release");
  EXPECT_EQ(Last(EventLog::kMatch), "Jump, line 3");
  EXPECT_EQ(Last(EventLog::kSent), "1:SLOTRELEASE:11");
  Press(kW);
  EXPECT_EQ(Last(EventLog::kMatch), "Click, line 4");
  EXPECT_EQ(Rows(), 3);
}

// Of two fingers one is lifted by its key, the other when the window loses the focus.
TEST_F(EventLogTest, AReleaseIsNotCreditedWithWhatTheWindowLifts) {
  Load("{type: Click, label: Jump, key: Space, point: [0.25, 0.75]},\n{type: Click, key: W, point: [0.5, 0.5]}");
  Press(kW);
  Press(kSpace);
  clock_->Advance(10);
  Release(kSpace);
  const int release = Rows() - 1;
  QFocusEvent lost(QEvent::FocusOut);
  Send(&lost);
  EXPECT_EQ(Cell(release, EventLog::kSent), "1:SLOTRELEASE:12");
  EXPECT_EQ(Last(EventLog::kEvent), "release all");
  EXPECT_EQ(Last(EventLog::kMatch), "the window");
  // Three gestures lift their fingers, then the sweep lifts slots 0 to 17: of 21 lines 12 are listed.
  EXPECT_TRUE(Last(EventLog::kSent).endsWith("1:SLOTRELEASE:8  and 9 more")) << Last(EventLog::kSent).toStdString();
  EXPECT_TRUE(Slots().isEmpty());
  Window()->Keymaps()->LetGoOfEverything();
  EXPECT_FALSE(Cell(release, EventLog::kSent).contains("later")) << Cell(release, EventLog::kSent).toStdString();
}

TEST_F(EventLogTest, WhatNoItemAnswersTo) {
  Load("", "settings: {keyboard_transparent: true}");
  Press(kW);
  EXPECT_EQ(Last(EventLog::kMatch), "passes through");
  EXPECT_EQ(Last(EventLog::kSent), "1:KBDPR:17:1");
  Release(kW);
  Load("");
  Press(kW);
  EXPECT_EQ(Last(EventLog::kMatch), "nothing sent");
  EXPECT_EQ(Last(EventLog::kSent), QString());
}

TEST_F(EventLogTest, LinesThatComeLaterAreCounted) {
  Load(
      "{type: Macro, label: Two, key: E, press_commands: ['sleep:50', 'press_rel:(0.5,0.5)', "
      "'release_rel:(0.5,0.5)']}");
  Press(kE);
  EXPECT_EQ(Last(EventLog::kMatch), "Two, line 3");
  clock_->Advance(200);
  EXPECT_EQ(Last(EventLog::kSent), "+2 later");
  Release(kE);
  clock_->Advance(10);
  EXPECT_EQ(Cell(0, EventLog::kSent), "+2 later");
}

TEST_F(EventLogTest, AChordAndItsRelease) {
  Load("{type: Click, label: Both, key: Left Ctrl + E, point: [0.5, 0.5]},\n{type: Click, key: E, point: [0.1, 0.1]}");
  Press(kLeftCtrl);
  EXPECT_EQ(Last(EventLog::kMatch), "nothing sent");
  Press(kE);
  EXPECT_EQ(Last(EventLog::kMatch), "Both, line 3");
  Release(kLeftCtrl);
  Release(kE);
  EXPECT_EQ(Last(EventLog::kMatch), "Both, line 3");
  Press(kE);
  EXPECT_EQ(Last(EventLog::kMatch), "Click, line 4");
}

TEST_F(EventLogTest, TheMouseItsWheelAndItsMoves) {
  Load(
      "{type: Click, label: Fire, key: Mouse Right, point: [0.5, 0.5]}, {type: Click, label: Next, key: Wheel Up, "
      "point: [0.1, 0.1]}");
  Mouse(QEvent::MouseButtonPress, At(0.5, 0.25), Qt::RightButton, Qt::RightButton);
  EXPECT_EQ(Last(EventLog::kCode), "button 2");
  EXPECT_EQ(Last(EventLog::kKey), "Mouse Right");
  EXPECT_EQ(Last(EventLog::kMatch), "Fire, line 3");
  EXPECT_TRUE(Last(EventLog::kEvent).startsWith("press at 0.5, 0.25")) << Last(EventLog::kEvent).toStdString();
  Turn(120);
  EXPECT_EQ(Last(EventLog::kCode), "wheel +120");
  EXPECT_EQ(Last(EventLog::kKey), "Wheel Up");
  EXPECT_EQ(Last(EventLog::kMatch), "Next, line 3");
  Mouse(QEvent::MouseMove, At(0.1, 0.1), Qt::NoButton, Qt::NoButton);
  EXPECT_EQ(Last(EventLog::kMatch), "nothing sent");
}

TEST_F(EventLogTest, AGamepadAndItsPairs) {
  LoadJoystick(
      "{type: Click, label: Pair, key: Pad LB+A, point: [0.5, 0.5]}, {type: Click, label: One, key: Pad A, point: "
      "[0.1, 0.1]}");
  Gamepads* pads = Window()->Pads();
  pads->Add(1, "Pad", PadFamily::kLettered);
  pads->SetButton(1, "a", true);
  EXPECT_EQ(Last(EventLog::kKey), "Pad A");
  EXPECT_EQ(Last(EventLog::kMatch), "One, line 3");
  pads->SetButton(1, "a", false);
  pads->SetButton(1, "leftshoulder", true);
  pads->SetButton(1, "a", true);
  EXPECT_EQ(Last(EventLog::kMatch), "Pair, line 3");
}

TEST_F(EventLogTest, AKeyForATextFieldAndOneWhileTheMappingIsOff) {
  Load("{type: Click, label: Jump, key: Space, point: [0.25, 0.75]}");
  LiveHost::GetInstance()->SetTextField(true);
  Key(QEvent::KeyPress, kSpace, " ");
  EXPECT_EQ(Last(EventLog::kMatch), "text field");
  EXPECT_EQ(Last(EventLog::kSent), "TEXT: ");
  LiveHost::GetInstance()->SetTextField(false);
  Key(QEvent::KeyRelease, kSpace);
  Press(kF12);  // reserved by the window: not an event of the guest
  Press(kSpace);
  EXPECT_EQ(Last(EventLog::kKey), "Space");
  EXPECT_EQ(Last(EventLog::kMatch), "mapping off");
  EXPECT_EQ(Last(EventLog::kSent), "1:KBDPR:57:1");
}

TEST_F(EventLogTest, MovesOfOneWayShareARow) {
  Load("");
  for (const double x : {0.1, 0.2, 0.3}) Mouse(QEvent::MouseMove, At(x, 0.5), Qt::NoButton, Qt::NoButton);
  EXPECT_EQ(Rows(), 1);
  EXPECT_TRUE(Last(EventLog::kEvent).startsWith("move to 0.3")) << Last(EventLog::kEvent).toStdString();
  EXPECT_TRUE(Last(EventLog::kEvent)
                  .endsWith("\u00D7"
                            "3"));
  Click("Every move");
  for (const double x : {0.1, 0.2}) Mouse(QEvent::MouseMove, At(x, 0.5), Qt::NoButton, Qt::NoButton);
  EXPECT_EQ(Rows(), 3);
}

TEST_F(EventLogTest, AHeldKeySharesARow) {
  Load("");
  Press(kW);
  for (int i = 0; i < 5; ++i) Key(QEvent::KeyPress, kW, {}, true);
  EXPECT_EQ(Rows(), 2);
  EXPECT_TRUE(Last(EventLog::kEvent)
                  .endsWith("\u00D7"
                            "5"));
}

TEST_F(EventLogTest, MovesThatSteerTheView) {
  Load("{type: Staring, key: Grave, point: [0.6, 0.4]}");
  Press(kGrave);
  Release(kGrave);
  clock_->Advance(20);
  const QPointF middle = View()->rect().center();
  Mouse(QEvent::MouseMove, middle, Qt::NoButton, Qt::NoButton);  // the pointer is put there
  Mouse(QEvent::MouseMove, middle + QPointF(5, -3), Qt::NoButton, Qt::NoButton);
  EXPECT_TRUE(Last(EventLog::kEvent).startsWith("move by ")) << Last(EventLog::kEvent).toStdString();
  EXPECT_EQ(Last(EventLog::kMatch), "view control");
}

TEST_F(EventLogTest, TheOldestGoFirst) {
  Load("");
  for (int i = 0; i < EventLog::kMostRows; ++i) i % 2 ? Release(kW) : Press(kW);
  Press(kE);
  EXPECT_EQ(Rows(), EventLog::kMostRows);
  EXPECT_EQ(Last(EventLog::kKey), "E");
  EXPECT_EQ(Cell(0, EventLog::kEvent), "release");
}

TEST_F(EventLogTest, PauseAndClear) {
  Load("");
  Press(kW);
  Click("Pause");
  Release(kW);
  EXPECT_EQ(Rows(), 1);
  Click("Pause");
  Press(kW);
  EXPECT_EQ(Rows(), 2);
  Click("Clear");
  EXPECT_EQ(Rows(), 0);
}

// The copied text is what an item needs: added to a keymap, it is loaded and works.
TEST_F(EventLogTest, ARowIsCopiedAsAKeymapHasIt) {
  Load("");
  Press(kW);
  Click("Copy for keymap");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "key: W");
  Mouse(QEvent::MouseButtonPress, At(0.5, 0.25), Qt::RightButton, Qt::RightButton);
  Click("Copy for keymap");
  const QString copied = QGuiApplication::clipboard()->text();
  EXPECT_TRUE(copied.startsWith("key: Mouse Right\npoint: [")) << copied.toStdString();

  const QString item = QString(copied).replace('\n', "\n    ");
  const auto keymap = tavikeymapmanager::ReadKeymapText(
      ("format: 1\nitems:\n  - type: Click\n    " + item + "\n").toUtf8(), "copied.yaml");
  EXPECT_TRUE(keymap.diagnostics.isEmpty());
  ASSERT_EQ(keymap.config->items.size(), 1);
  EXPECT_EQ(keymap.config->items[0]->key.scancode, 2);
  EXPECT_NEAR(keymap.config->items[0]->rel_y, 0.25, 0.002);
}

TEST_F(EventLogTest, AllIsCopiedAsATable) {
  Load("{type: Click, label: Jump, key: Space, point: [0.25, 0.75]}");
  Press(kSpace);
  Click("Copy all");
  const QStringList columns = QGuiApplication::clipboard()->text().split('\t');
  ASSERT_EQ(columns.size(), EventLog::kColumnCount);
  EXPECT_EQ(columns.mid(1),
            (QStringList{"press", "scan 57", "Space", "Jump, line 3", "1:SLOTPRESS:11:11:1:1:320:540"}));
}

TEST_F(EventLogTest, ALongGestureKeepsAFewLines) {
  Load("");
  Press(kW);
  const int before = Rows();
  for (int i = 0; i < 40; ++i) taviinputmanager::OnInputRawEventData("KBDPR:30:1\n", LiveHost::kDisplay);
  EXPECT_EQ(Rows(), before);
  EXPECT_EQ(Last(EventLog::kSent), "+40 later");
}

}  // namespace
}  // namespace tavi
