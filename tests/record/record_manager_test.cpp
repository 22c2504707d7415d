// A recording, from its start to its file.
#include "record/record_manager.h"

#include <gtest/gtest.h>
#include <utility>

#include <QJsonArray>

#include "keymap/composable_config_item.h"
#include "record/record_file_utils.h"
#include "record/replay_event_handler.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/record/record_files.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ComposableConfigItem;

QStringList told;  // the calls of the host's functions

class Recording : public Story, protected RecordFiles {
 protected:
  Recording() : file_(Path("record.json")) {
    Host().primary_display = 1;
    table_.started = [] { Tell("started"); };
    table_.paused = [] { Tell("paused"); };
    table_.resumed = [] { Tell("resumed"); };
    table_.stopped = [](const QString& filename, int result) {
      Tell("stopped");
      told << filename << QString::number(result);
    };
    InitializeRecordCallbacks(&table_);
  }
  ~Recording() override { InitializeRecordCallbacks(nullptr); }

  static void Tell(const char* word) { told << QString("%1 in state %2").arg(word).arg(int(GetRecordStatus())); }
  static void Line(const QString& line) { OnInputRawEventData(line + '\n', 1); }
  static void Key(int code) { Line(QString("KBDPR:%1:1").arg(code)); }

  // The content of the file after a stop, "timing type data extra1 extra2" for each action, without the start marker.
  QStringList Recorded() {
    StopRecord("com.example.game", file_);
    QStringList lines;
    for (const QJsonValue& value : JsonOf(file_).value("actions").toArray()) {
      RecordAction action;
      Utils()->ReadAction(value.toObject(), &action);
      if (action.data.contains("detect_app")) continue;
      lines << QString("%1 %2 %3 %4 %5").arg(action.timing).arg(action.type, action.data, action.extra1, action.extra2);
      lines.last() = lines.last().trimmed();
    }
    return lines;
  }

  const QString file_;
  InputRecorderCallbacks table_;
};

#define EXPECT_RECORDED(...) \
  EXPECT_EQ((QStringList{__VA_ARGS__}).join('\n').toStdString(), Recorded().join('\n').toStdString())
#define EXPECT_TOLD(...) \
  EXPECT_EQ((QStringList{__VA_ARGS__}).join('\n').toStdString(), std::exchange(told, {}).join('\n').toStdString())

// ---- Start and stop ----

TEST_F(Recording, StartsWithAMarkerForTheApp) {
  EXPECT_EQ(RecordStatus::Stopped, GetRecordStatus());
  StartRecord("com.example.game", "Game");
  Key(30);
  StopRecord("com.example.other", file_);
  const QJsonObject marker = JsonOf(file_).value("actions").toArray().first().toObject();
  EXPECT_EQ(R"({'data':'{\'cmd\':\'detect_app\',\'params\':{\'app\':\'Game\',\'package\':\'com.example.game\'}}',)"
            R"('extra1':'','extra2':'','timing':0,'type':'vcontrol'})",
            Compact(marker));
  QString app, package;
  GetScriptAppAndPackage(file_, app, package);
  EXPECT_EQ("Game com.example.game", (app + ' ' + package).toStdString());
  RecordInfo info;
  ASSERT_TRUE(GetRecordInfo(file_, &info));
  EXPECT_EQ("com.example.other", info.package_name.toStdString()) << "the header has the name of the stop";
}

TEST_F(Recording, WithoutNamesThereIsAMarkerToo) {
  StartRecord("", "");
  Key(30);
  StopRecord("", file_);
  EXPECT_EQ(2, JsonOf(file_).value("actions").toArray().size());
  QString app = "a", package = "p";
  GetScriptAppAndPackage(file_, app, package);
  EXPECT_EQ("", (app + package).toStdString());
}

TEST_F(Recording, OfNothingButTheMarkerMakesNoFile) {
  StartRecord("p", "a");
  StopRecord("p", file_);
  EXPECT_TOLD("started in state 1", "stopped in state 0", file_, "1");
  EXPECT_EQ("", Names().join(' ').toStdString());
}

TEST_F(Recording, TheHostIsToldTheResult) {
  StartRecord("p", "a");
  Key(30);
  StopRecord("the package", file_);
  EXPECT_TOLD("started in state 1", "stopped in state 0", file_, "0");

  StartRecord("p", "a");
  Key(30);
  StopRecord("the package", Path("none/record.json"));
  EXPECT_TOLD("started in state 1", "stopped in state 0", Path("none/record.json"), "2");

  StopRecord("the package", file_);
  EXPECT_TOLD("stopped in state 0", file_, "1");
}

TEST_F(Recording, NothingIsRecordedBeforeAStartAndAfterAStop) {
  Key(29);
  AddVControlCommand("x", "1", "");
  StartRecord("p", "a");
  Key(30);
  EXPECT_RECORDED("0 keyboard keyboard_press:30");
  Key(31);
  StartRecord("p", "a");
  Key(32);
  EXPECT_RECORDED("0 keyboard keyboard_press:32");
}

TEST_F(Recording, ASecondStartBeginsAgain) {
  StartRecord("p", "a");
  Key(30);
  Wait(500);
  StartRecord("p", "b");
  Wait(20);
  Key(31);
  EXPECT_RECORDED("20 keyboard keyboard_press:31");
  QString app, package;
  GetScriptAppAndPackage(file_, app, package);
  EXPECT_EQ("b", app.toStdString());
}

// Two actions of the host: one at the start of the call, one in the host's callback.
TEST_F(Recording, TheHostIsToldAtTheEndOfACall) {
  table_.started = [] { AddVControlCommand("in started", "1", ""); };
  table_.resumed = [] { AddVControlCommand("in resumed", "", ""); };
  table_.paused = [] { AddVControlCommand("in paused", "", ""); };
  StartRecord("p", "a");
  PauseRecord();
  ResumeRecord();
  EXPECT_RECORDED("0 vcontrol in started 1", "0 vcontrol in resumed");
}

// ---- States ----

TEST_F(Recording, NoCallIsRefusedInAnyState) {
  const struct {
    const char* name;
    void (*come_here)();
  } states[] = {
      {"stopped", [] {}},
      {"recording", [] { StartRecord("p", "a"); }},
      {"paused", [] { PauseRecord(); }},
  };
  for (const auto& state : states) {
    const auto enter = [&] {
      StopRecord("p", file_);
      state.come_here();
      told.clear();
    };
    enter();
    StartRecord("p", "a");
    EXPECT_TOLD("started in state 1") << state.name;
    enter();
    PauseRecord();
    EXPECT_TOLD("paused in state 2") << state.name;
    enter();
    ResumeRecord();
    EXPECT_TOLD("resumed in state 1") << state.name;
    enter();
    StopRecord("p", file_);
    EXPECT_TOLD("stopped in state 0", file_, "1") << state.name;
  }
}

TEST_F(Recording, WorksWithoutAHostThatListens) {
  InitializeRecordCallbacks(nullptr);
  StartRecord("p", "a");
  EXPECT_EQ(RecordStatus::Recording, GetRecordStatus());
  PauseRecord();
  EXPECT_EQ(RecordStatus::Paused, GetRecordStatus());
  ResumeRecord();
  EXPECT_EQ(RecordStatus::Recording, GetRecordStatus());
  Key(30);
  EXPECT_RECORDED("0 keyboard keyboard_press:30");
  EXPECT_EQ(RecordStatus::Stopped, GetRecordStatus());
  EXPECT_TRUE(told.isEmpty());
}

TEST_F(Recording, AResumeWhileStoppedRecordsWithoutAMarker) {
  ResumeRecord();
  Key(30);
  StopRecord("p", file_);
  const QJsonArray actions = JsonOf(file_).value("actions").toArray();
  ASSERT_EQ(1, actions.size());
  EXPECT_EQ("keyboard_press:30", actions.first().toObject().value("data").toString().toStdString());
}

// ---- Times ----

TEST_F(Recording, AnActionsTimeIsTheGapBeforeIt) {
  Wait(3000);
  StartRecord("p", "a");
  Wait(70);
  Key(30);
  Key(31);
  Wait(5);
  Key(32);
  EXPECT_RECORDED("70 keyboard keyboard_press:30", "0 keyboard keyboard_press:31", "5 keyboard keyboard_press:32");
  RecordInfo info;
  ASSERT_TRUE(GetRecordInfo(file_, &info));
  EXPECT_EQ(75U, info.total_running_time);
}

TEST_F(Recording, TimeOfWhatIsNotRecordedCountsForTheNext) {
  StartRecord("p", "a");
  Wait(10);
  Line("HATX:0:1");
  Line("KBDPR:30");
  Wait(20);
  Key(30);
  EXPECT_RECORDED("30 keyboard keyboard_press:30");
}

TEST_F(Recording, APauseIsCutOut) {
  StartRecord("p", "a");
  Key(30);
  Wait(60);
  PauseRecord();
  Wait(10000);
  ResumeRecord();
  Wait(40);
  Key(31);
  EXPECT_RECORDED("0 keyboard keyboard_press:30", "100 keyboard keyboard_press:31");
}

TEST_F(Recording, NothingIsStoredDuringAPause) {
  StartRecord("p", "a");
  Key(30);
  PauseRecord();
  Wait(10);
  Key(31);
  Line("TEXT:abc");
  OnInputRawTextData("TEXT:abc\n");
  AddVControlCommand("x", "1", "");
  ResumeRecord();
  Key(32);
  EXPECT_RECORDED("0 keyboard keyboard_press:30", "0 keyboard keyboard_press:32");
}

TEST_F(Recording, ASecondPauseCountsFromTheSecond) {
  StartRecord("p", "a");
  Wait(10);
  PauseRecord();
  Wait(100);
  PauseRecord();  // as if it had run until now
  Wait(1000);
  ResumeRecord();
  Wait(5);
  Key(30);
  EXPECT_RECORDED("115 keyboard keyboard_press:30");
}

TEST_F(Recording, TwoPausesInAGapAreBothCutOut) {
  StartRecord("p", "a");
  for (int i = 0; i < 2; ++i) {
    Wait(10);
    PauseRecord();
    Wait(1000);
    ResumeRecord();
  }
  Wait(3);
  Key(30);
  EXPECT_RECORDED("23 keyboard keyboard_press:30");
}

// The pause is long over, so the time before it is negative: pause at 10, action at 30, resume at 50 with last action =
// 50 - (10 - 30) = 70, and so the action at 75 comes 5 later.
TEST_F(Recording, AResumeWithoutAPauseTakesTheOldOne) {
  StartRecord("p", "a");
  Wait(10);
  PauseRecord();
  ResumeRecord();
  Wait(20);
  Key(30);
  Wait(20);
  ResumeRecord();
  Wait(25);
  Key(31);
  EXPECT_RECORDED("30 keyboard keyboard_press:30", "5 keyboard keyboard_press:31");
}

TEST_F(Recording, AGapIsOfTheLow32Bits) {
  StartRecord("p", "a");
  for (int i = 0; i < 2; ++i) Wait(2147483647);
  Wait(9);  // 2^32 - 2 + 9 is 7
  Key(30);
  EXPECT_RECORDED("7 keyboard keyboard_press:30");
}

// ---- What comes in ----

TEST_F(Recording, AHostsCommandIsKeptUnchanged) {
  StartRecord("p", "a");
  Wait(8);
  AddVControlCommand("any text:1", "1", "two");
  AddVControlCommand("", "1", "no data, no action");
  EXPECT_RECORDED("8 vcontrol any text:1 1 two");
}

TEST_F(Recording, AnActionIsTimedAndKeptWhileRecordingIsOn) {
  RecordManager* manager = RecordManager::GetInstance();
  manager->AddAction("keyboard", "before the start", "", "");
  StartRecord("p", "a");
  Wait(30);
  manager->AddAction("keyboard", "keyboard_press:30", "3", "x");
  manager->AddAction("keyboard", "", "4", "");
  PauseRecord();
  manager->AddAction("touch", "in a pause", "", "");
  EXPECT_RECORDED("30 keyboard keyboard_press:30 3 x");
}

TEST_F(Recording, EmptyCommandsLeaveTheListAlone) {
  StartRecord("p", "a");
  RecordManager::GetInstance()->OnEventCommand("");
  RecordManager::GetInstance()->OnTextCommand("");
  OnInputRawEventData("", 1);
  OnInputRawTextData("");
  OnInputRawEventData("\n", 1);
  OnInputRawTextData("\n");
  AddVControlCommand("x", "1", "");
  EXPECT_RECORDED("0 vcontrol x 1");
}

TEST_F(Recording, LinesOfEveryFamily) {
  StartRecord("p", "a");
  Line("SLOTPRESS:2:2:1:1:640:360");
  Line("SLOTRELEASE:2");
  Line("SLOTMULTIPRESS:18:18:320:180:19:19:960:540");
  Line("SLOTMULTIRELEASE:18:19");
  Line("SLOTRELEASEALL");
  Line("WHEEL:1:2:640:360");
  Line("WHEEL_WITH_DELTA:1:2:640:360");
  Line("MOUSEMOVE_REL:640:360");
  Line("KBDRL:30:0");
  Line("GPDBUTTON:0:1:1");
  OnInputRawTextData("TEXT:a b\n");
  OnInputRawTextData("TEXT_CONTROL:28\n");
  EXPECT_RECORDED("0 touch press_rel:(0.5,0.5) 2", "0 touch release 2",  //
                  "0 touch press_multi_rel:(0.25,0.25):(0.75,0.75) 18:19", "0 touch release_multi 18:19",
                  "0 touch reset", "0 mouse wheel:(0.5,0.5)", "0 mouse move:(0.5,0.5)",  //
                  "0 keyboard keyboard_release:30", "0 joystick GPDBUTTON:0:1:1", "0 input_method text_inject:a b",
                  "0 input_method text_control:28");
}

TEST_F(Recording, LinesToOtherDisplaysAreNotRecordedButTextIs) {
  StartRecord("p", "a");
  OnInputRawEventData("KBDPR:30:1\n", 2);
  Host().table.IsPrimaryDisplay = nullptr;
  Key(31);
  Host().primary_display = 5;
  OnInputRawTextData("TEXT:abc\n");
  EXPECT_RECORDED("0 input_method text_inject:abc");
}

TEST_F(Recording, AKeyThatTapsIsRecordedAsTheTap) {
  Add<ComposableConfigItem>("Click", "Q", {0.25, 0.75});
  Load();
  StartRecord("p", "a");
  Play("wait 10; down Q; wait 40; up Q");
  const QString down = TakeWire().value(0);
  EXPECT_TRUE(down.startsWith("10ms 1:SLOTPRESS:") && down.endsWith(":320:540")) << down.toStdString();
  const QString slot = down.section(':', 2, 2);
  EXPECT_RECORDED("10 touch press_rel:(0.25,0.75) " + slot, "40 touch release " + slot);
}

TEST_F(Recording, LinesThatAReplaySendsAreRecordedAsAllOthers) {
  UpdateReplayDisplayId(1);
  StartRecord("p", "a");
  Wait(4);
  ReplayEventHandler::GetInstance()->OnTouchAction("press_rel:(0.5,0.25)", "3", "", false);
  ReplayEventHandler::GetInstance()->OnInputMethodAction("text_inject:abc", "", "");
  EXPECT_RECORDED("4 touch press_rel:(0.5,0.25) 18", "0 input_method text_inject:abc");
}

TEST_F(Recording, WhatWasRecordedCanBePlayed) {
  StartRecord("com.example.game", "Game");
  Wait(5);
  Line("SLOTPRESS:2:2:1:1:640:360");
  Wait(33);
  Line("SLOTRELEASE:2");
  StopRecord("com.example.game", file_);
  EXPECT_STEPS(Utils()->ReadRecordActions(JsonOf(file_)).get(),
               R"(0 {"cmd":"detect_app","params":{"app":"Game","package":"com.example.game"}})",
               "5 press_rel:(0.5,0.5)", "33 release");
}

}  // namespace
}  // namespace taviinputmanager
