// What a program that is interrupted while it writes a file leaves behind, and how it ends.
#include <atomic>
#include <cstdlib>
#include <thread>

#include <QDeadlineTimer>
#include <QFileInfo>

#include "host/system/terminal.h"
#include "host/system/whole_file.h"
#include "tests/host/system/whole_file_story.h"
#include "tests/support/system/program_end.h"

namespace tavi {
namespace {

// A child process that waits in vain ends all the same.
[[noreturn]] void WaitForTheEnd(const std::atomic<int>& taken = 0) {
  const QDeadlineTimer limit(60000);
  while (taken == 0 && !limit.hasExpired()) std::this_thread::yield();
  std::_Exit(taken == 0 ? EXIT_FAILURE : ExitStatusOfSignal(taken));
}

auto EndedBy(const ProgramEnd& end) {
  return [end](int status) { return IsStatusOf(status, end); };
}

// The file is open, as it is while it is written.
TEST_F(WholeFileTest, IsGoneWhenTheProgramIsInterrupted) {
  const QString day = SharedPath("day.json");
  Fill(day, "before");
  for (const ProgramEnd& end : ProgramEnds()) {
    SCOPED_TRACE(end.name);
    const auto work = [&] {
      const WholeFile file(day);
      QFile part(file.WorkingName());
      if (!part.open(QIODevice::WriteOnly) || part.write("a part") < 0 || !part.flush()) std::_Exit(EXIT_FAILURE);
      SendEndToThisProgram(end);
      WaitForTheEnd();
    };
    EXPECT_EXIT(work(), EndedBy(end), "");
    EXPECT_EQ(FilesIn(QFileInfo(day).path()), QStringList("day.json"));
    EXPECT_EQ(ContentOf(day), QByteArray("before"));
  }
}

// Between two tasks nothing is cleaned up, and the program is ended all the same.
TEST_F(WholeFileTest, WhatIsKeptStaysWhenTheProgramIsInterruptedLater) {
  const QString day = SharedPath("day.json");
  for (const ProgramEnd& end : ProgramEnds()) {
    SCOPED_TRACE(end.name);
    const auto work = [&] {
      {
        WholeFile file(day);
        Fill(file.WorkingName(), end.name);
        file.Keep();
      }
      SendEndToThisProgram(end);
      WaitForTheEnd();
    };
    EXPECT_EXIT(work(), EndedBy(end), "");
    EXPECT_EQ(ContentOf(day), QByteArray(end.name));
  }
}

// A program with a window ends by itself, after it has saved its data.
TEST_F(WholeFileTest, WhoTakesInterruptionsIsNotEndedByThem) {
  for (const ProgramEnd& end : ProgramEnds()) {
    SCOPED_TRACE(end.name);
    const auto work = [&] {
      static std::atomic<int> taken{0};
      SetInterruptionTaker([](int number) { taken = number; });
      const WholeFile file(SharedPath("day.json"));
      SendEndToThisProgram(end);
      WaitForTheEnd(taken);
    };
    EXPECT_EXIT(work(), testing::ExitedWithCode(ExitStatusOfSignal(end.number)), "");
  }
}

}  // namespace
}  // namespace tavi
