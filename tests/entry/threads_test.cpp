// Functions that are called on a thread where that is forbidden.
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <thread>

#include <QCoreApplication>

#include "taviinputmanager/taviinputmanager.h"

namespace taviinputmanager {
namespace {

constexpr int kDisplay = 1;

void* NoFunction() { return nullptr; }

struct Row {
  const char* name;
  void (*call)();
};

#define ROW(name, arguments)                         \
  {                                                  \
#name, [] { static_cast<void>(name arguments); } \
  }

const Row kMainThread[] = {
    ROW(OnQtInputEvent, (nullptr)),
    ROW(OnJoystickEvent, (nullptr)),
    ROW(OnWindowsWmRelativeInputEvent, (1, 1)),
    ROW(OnInputRawEventData, ("KBDRL:30:0\n", kDisplay)),
    ROW(OnInputRawTextData, ("TEXT:a\n")),
    ROW(doBackAction, (kDisplay)),
    ROW(Initialize, (nullptr, 0, 0)),
    ROW(OnLoadKeymapConfigAndInfo, ("", "", "", kDisplay)),
    ROW(OnLoadJoystickConfigAndInfo, ("", 0)),
    ROW(OnResetInputStatus, (true, kDisplay)),
    ROW(UpdateDisplayId, (kDisplay)),
    ROW(UpdateDisplayForceTransparent, (kDisplay, true)),
    ROW(UpdateMousePosition, (1, 1)),
    {"ConvertWindowPositionToAndroid",
     [] {
       int x = 1;
       int y = 1;
       ConvertWindowPositionToAndroid(x, y);
     }},
    ROW(SetHandyStaringSensitivity, (1.0, 1.0)),
    ROW(isInputHoldWhenWindowDeactivate, ()),
    ROW(SetInputEventSendFunc, (NoFunction())),
    ROW(SetInputTextSendFunc, (NoFunction())),
    ROW(SetInputEventSyncFunc, (NoFunction())),
    ROW(SetInputTextSyncFunc, (NoFunction())),
    ROW(StartSync, ("a", "", "")),
    ROW(StopSync, ("a")),
    ROW(PauseSync, ("a")),
    ROW(InitializeRecordCallbacks, (nullptr)),
    ROW(StartRecord, ("a", "b")),
    ROW(PauseRecord, ()),
    ROW(ResumeRecord, ()),
    ROW(StopRecord, ("a", "no/such/folder/b")),
    ROW(AddVControlCommand, ("a", "", "")),
    ROW(StartRecordMacroInstruction, ("a")),
    ROW(StopRecordMacroInstruction, ("a")),
    ROW(getRecordMacroInstruction, ("a")),
};

void AskForFiles() {
  RecordInfo info;
  QString app;
  QString package;
  GetScriptAppAndPackage("no such record", app, package);
  UpdateRecordTimestamp("no such record");
  EXPECT_FALSE(GetRecordInfo("no such record", &info));
  EXPECT_FALSE(MergeRecord("no/such/folder/record.json", {}));
}

void OnAnotherThread(void (*call)()) { std::thread(call).join(); }

class Threads : public testing::Test {
 protected:
  void MakeApplication() { application_ = std::make_unique<QCoreApplication>(argument_count_, arguments_); }

 private:
  int argument_count_ = 1;
  char name_[8] = "threads";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QCoreApplication> application_;
};

TEST_F(Threads, AFunctionOfTheMainThreadSaysItsNameOnAnotherOne) {
#ifdef QT_NO_DEBUG
  GTEST_SKIP() << "release builds test nothing";
#endif
  testing::FLAGS_gtest_death_test_style = "fast";  // there is one thread here
  MakeApplication();
  for (const Row& row : kMainThread) {
    EXPECT_DEATH(OnAnotherThread(row.call), std::string("ASSERT failure in ") + row.name + ":") << row.name;
  }
}

TEST_F(Threads, FilesAreForAnyThread) {
  MakeApplication();
  OnAnotherThread(AskForFiles);
}

TEST_F(Threads, TheTwoStatesAreForAnyThread) {
  MakeApplication();
  OnAnotherThread([] { EXPECT_EQ(InputStatus::Normal, GetInputStatus()); });
  OnAnotherThread([] { EXPECT_EQ(RecordStatus::Stopped, GetRecordStatus()); });
}

TEST_F(Threads, BeforeTheApplicationThereIsNoMainThread) {
  OnAnotherThread([] { StartSync("a", "", ""); });
  OnAnotherThread([] { EXPECT_EQ(InputStatus::Normal, GetInputStatus()); });
}

}  // namespace
}  // namespace taviinputmanager
