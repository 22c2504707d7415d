// How a command ends by the events of its console.
#include <windows.h>
#include <gtest/gtest.h>

#include "test_folders.h"
#include "tests/support/application_object.h"
#include "tests/support/run_until.h"
#include "tests/support/system/program_end.h"

namespace tavi {
namespace {

using taviinputmanager::RunEventsUntil;

class Command : public testing::Test {
 protected:
  ~Command() override {
    program_.kill();
    program_.waitForFinished();
  }

  // Waits for a script from its standard input. This test shares its console.
  void StartWithAConsole() {
    MakeEndable(&program_);
    program_.start(TAVI_PROGRAM, {"simulate", TAVI_SOURCE_DIR "/examples/tutorial/mistakes.yaml", "-"});
    ASSERT_TRUE(program_.waitForStarted());
    FreeConsole();
    ASSERT_TRUE(RunEventsUntil([&] { return AttachConsole(static_cast<DWORD>(program_.processId())) != 0; }));
    ASSERT_TRUE(RunEventsUntil([] { return GetConsoleOutputCP() == CP_UTF8; }));
  }

 private:
  ApplicationObject<QCoreApplication> application_;

 protected:
  QProcess program_;
};

TEST_F(Command, EndsAtOnceAndRestoresTheCodePage) {
  for (const ProgramEnd& end : ProgramEnds()) {
    SCOPED_TRACE(end.name);
    StartWithAConsole();
    SendEnd(program_, end);
    ASSERT_TRUE(RunEventsUntil([&] { return program_.state() == QProcess::NotRunning; }));
    EXPECT_TRUE(IsStatusOf(program_.exitCode(), end)) << program_.exitCode();
    EXPECT_EQ(GetConsoleOutputCP(), GetOEMCP());  // that of a new console
  }
}

}  // namespace
}  // namespace tavi
