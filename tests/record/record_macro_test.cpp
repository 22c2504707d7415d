// A macro that is captured from the host's events.
#include <gtest/gtest.h>

#include <QInputMethodEvent>
#include <QJsonArray>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include "keymap/composable_config_item.h"
#include "record/record_action.h"
#include "record/record_file_utils.h"
#include "record/record_macro_instruction_store.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/record/record_files.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ComposableConfigItem;

class MacroCapture : public Story, protected RecordFiles {
 protected:
  MacroCapture() {
    Host().window = {100, 50, 1000, 500};  // its position does not matter
    Load();
  }

  static void Mouse(QEvent::Type type, const QPoint& position, Qt::MouseButton button = Qt::LeftButton) {
    QMouseEvent event(type, position, position, button, button, Qt::NoModifier);
    OnQtInputEvent(&event);
  }
  static void Wheel(int delta) {
    QWheelEvent event(QPointF(500, 125), QPointF(0, 0), QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    OnQtInputEvent(&event);
  }
  static void Key(QEvent::Type type, bool auto_repeat = false) {
    QKeyEvent event(type, Qt::Key_W, Qt::NoModifier, 17, 87, 0, {}, auto_repeat);
    OnQtInputEvent(&event);
  }
  static void Commit(const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    OnQtInputEvent(&event);
  }
};

#define EXPECT_CAPTURED(...)                                     \
  StopRecordMacroInstruction("m");                               \
  EXPECT_EQ((QStringList{__VA_ARGS__}).join('\n').toStdString(), \
            QStringList(getRecordMacroInstruction("m")).join('\n').toStdString())

TEST_F(MacroCapture, EveryEvent) {
  StartRecordMacroInstruction("m");
  Mouse(QEvent::MouseMove, {250, 250}, Qt::NoButton);
  Wait(10);
  Mouse(QEvent::MouseButtonPress, {500, 125});
  Wait(20);
  Mouse(QEvent::MouseButtonRelease, {333, -50}, Qt::RightButton);
  Wheel(120);
  Wheel(-240);
  Wheel(0);
  Wait(5);
  Key(QEvent::KeyPress);
  Wait(6);
  Key(QEvent::KeyRelease);
  Commit("a b:c");
  // Fractions of a window of 1000 x 500; 1 and 2 are the left and the right button; 17 is W's scan code.
  EXPECT_CAPTURED("sleep:0", "vmouse_move:(0.25,0.5)",                                      //
                  "sleep:10", "vmouse_move:(0.5,0.25)", "sleep:0", "vmouse_press:1",        //
                  "sleep:20", "vmouse_move:(0.333,-0.1)", "sleep:0", "vmouse_release:2",    //
                  "sleep:0", "vmouse_move:(0.5,0.25)", "sleep:0", "vmouse_wheelup:120",     //
                  "sleep:0", "vmouse_move:(0.5,0.25)", "sleep:0", "vmouse_wheeldown:-240",  //
                  "sleep:0", "vmouse_move:(0.5,0.25)", "sleep:0", "vmouse_wheeldown:0",     //
                  "sleep:5", "keyboard_press:17", "sleep:6", "keyboard_release:17",         //
                  "sleep:0", "text_inject:a b:c");
}

TEST_F(MacroCapture, AnEmptyCommitIsALineToo) {
  StartRecordMacroInstruction("m");
  Commit("");
  EXPECT_CAPTURED("sleep:0", "text_inject:");
}

TEST_F(MacroCapture, RepeatsOfAKeyAndOtherEventsAddNothing) {
  StartRecordMacroInstruction("m");
  Key(QEvent::KeyPress, true);
  Key(QEvent::KeyRelease, true);
  Mouse(QEvent::MouseButtonDblClick, {1, 1});
  QEvent enter(QEvent::Enter);
  OnQtInputEvent(&enter);
  StopRecordMacroInstruction("m");
  EXPECT_TRUE(getRecordMacroInstruction("m").isEmpty());
}

TEST_F(MacroCapture, TheFirstMoveCountsAndThenEachTenth) {
  StartRecordMacroInstruction("m");
  for (int i = 1; i <= 21; ++i) {
    Wait(1);
    Mouse(QEvent::MouseMove, {i * 10, 0}, Qt::NoButton);
  }
  EXPECT_CAPTURED("sleep:1", "vmouse_move:(0.01,0)", "sleep:10", "vmouse_move:(0.11,0)",  //
                  "sleep:10", "vmouse_move:(0.21,0)");
}

TEST_F(MacroCapture, PressesAreNotThinnedAndDoNotCount) {
  StartRecordMacroInstruction("m");
  Mouse(QEvent::MouseMove, {10, 0});
  for (int i = 0; i < 9; ++i) Mouse(QEvent::MouseButtonPress, {20, 0});
  Mouse(QEvent::MouseMove, {30, 0});  // the second move
  StopRecordMacroInstruction("m");
  EXPECT_EQ(2 * (1 + 9 * 2), getRecordMacroInstruction("m").size());
}

TEST_F(MacroCapture, EachCaptureCountsItsMovesAnew) {
  StartRecordMacroInstruction("m");
  for (int i = 0; i < 3; ++i) Mouse(QEvent::MouseMove, {10, 0});
  StopRecordMacroInstruction("m");
  StartRecordMacroInstruction("m");
  Mouse(QEvent::MouseMove, {500, 0});
  EXPECT_CAPTURED("sleep:0", "vmouse_move:(0.5,0)");
}

TEST_F(MacroCapture, ACaptureStartsEmptyAndItsClockWithIt) {
  StartRecordMacroInstruction("m");
  Key(QEvent::KeyPress);
  Wait(100);
  StartRecordMacroInstruction("m");
  Wait(7);
  Key(QEvent::KeyRelease);
  EXPECT_CAPTURED("sleep:7", "keyboard_release:17");
}

TEST_F(MacroCapture, NothingIsCapturedBeforeAStartAndAfterAStop) {
  Key(QEvent::KeyPress);
  StartRecordMacroInstruction("m");
  Key(QEvent::KeyRelease);
  StopRecordMacroInstruction("m");
  Key(QEvent::KeyPress);
  EXPECT_CAPTURED("sleep:0", "keyboard_release:17");
}

TEST_F(MacroCapture, ThereIsNothingUntilTheStop) {
  EXPECT_TRUE(getRecordMacroInstruction("m").isEmpty());
  StartRecordMacroInstruction("m");
  Key(QEvent::KeyPress);
  EXPECT_TRUE(getRecordMacroInstruction("m").isEmpty());
  StopRecordMacroInstruction("m");
  EXPECT_EQ(2, getRecordMacroInstruction("m").size());
  StartRecordMacroInstruction("m");
  EXPECT_TRUE(getRecordMacroInstruction("m").isEmpty()) << "a new capture forgets the old one";
}

TEST_F(MacroCapture, OnlyTheNewestMacroIsKept) {
  StartRecordMacroInstruction("a");
  Key(QEvent::KeyPress);
  StopRecordMacroInstruction("a");
  StartRecordMacroInstruction("b");
  EXPECT_EQ(2, getRecordMacroInstruction("a").size()) << "until there is a newer one";
  StopRecordMacroInstruction("b");
  EXPECT_TRUE(getRecordMacroInstruction("a").isEmpty());
  EXPECT_TRUE(getRecordMacroInstruction("b").isEmpty());
}

TEST_F(MacroCapture, IsStoredUnderTheNameOfTheStop) {
  StartRecordMacroInstruction("a");
  Key(QEvent::KeyPress);
  StopRecordMacroInstruction("b");
  EXPECT_TRUE(getRecordMacroInstruction("a").isEmpty());
  EXPECT_EQ(2, getRecordMacroInstruction("b").size());
}

TEST_F(MacroCapture, AWindowWithoutSizeHasNoPoints) {
  StartRecordMacroInstruction("m");
  Host().window = {};
  Mouse(QEvent::MouseButtonPress, {20, 10});
  EXPECT_CAPTURED("sleep:0", "vmouse_press:1");
}

TEST_F(MacroCapture, TheEventsGoOnToTheGuest) {
  Add<ComposableConfigItem>("Click", "Q", {0.25, 0.75});
  Load();
  StartRecordMacroInstruction("m");
  Play("down Q");
  EXPECT_EQ(1, TakeWire().size());
}

TEST_F(MacroCapture, WhileItRunsEventLinesAreNotRecordedAndAllElseIs) {
  Host().primary_display = 1;
  StartRecord("p", "a");
  StartRecordMacroInstruction("m");
  OnInputRawEventData("KBDPR:30:1\n", 1);
  OnInputRawTextData("TEXT:abc\n");
  AddVControlCommand("x", "1", "");
  StopRecordMacroInstruction("m");
  OnInputRawEventData("KBDPR:31:1\n", 1);
  StopRecord("p", Path("record.json"));
  EXPECT_STEPS(Utils()->ReadRecordActions(JsonOf(Path("record.json"))).get(),
               R"(0 {"cmd":"detect_app","params":{"app":"a","package":"p"}})", "0 text_inject:abc", "0 x",
               "0 keyboard_press:31");
}

TEST_F(MacroCapture, RunsWhetherThereIsARecordingOrNot) {
  StartRecord("p", "a");
  PauseRecord();
  StartRecordMacroInstruction("m");
  Key(QEvent::KeyPress);
  StopRecord("p", Path("record.json"));
  Key(QEvent::KeyRelease);
  EXPECT_CAPTURED("sleep:0", "keyboard_press:17", "sleep:0", "keyboard_release:17");
}

TEST(MacroStore, PutsASleepBeforeEachInstructionAndLeavesOutThoseThatSleep) {
  RecordAction press{30, "raw_input", "keyboard_press:17", "0", ""};
  RecordAction sleep{40, "raw_input", "sleep:100", "0", ""};
  RecordAction sleepy{50, "raw_input", "sleepy", "0", ""};
  RecordAction empty{0, "raw_input", "", "0", ""};
  RecordAction back{-5, "raw_input", "asleep", "0", ""};
  auto* store = RecordMacroInstructionStore::GetInstance();
  store->StoreInstruction("m", {&press, &sleep, &sleepy, &empty, &back});
  EXPECT_EQ("sleep:30|keyboard_press:17|sleep:0||sleep:-5|asleep", store->GetInstruction("m").join('|').toStdString());
  store->StoreInstruction("m", {&press});
  EXPECT_EQ("sleep:30|keyboard_press:17", store->GetInstruction("m").join('|').toStdString());
}

}  // namespace
}  // namespace taviinputmanager
