// Files that are made whole or not at all.
#include "host/whole_file.h"

#include <csignal>
#include <gtest/gtest.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "host/progress_line.h"
#include "tests/host/program.h"

namespace tavi {
namespace {

constexpr char kRecord[] =
    R"~({"info": {"total_running_time": 10},)~"
    R"~( "actions": [{"timing": 10, "type": "touch", "data": "press_rel:(0.5,0.5)", "extra1": "2"}]})~";

QStringList FilesIn(const QString& folder) {
  return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

void Fill(const QString& name, const char* text) {
  QFile file(name);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(text);
}

QByteArray ContentOf(const QString& name) {
  QFile file(name);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return file.readAll();
}

class WholeFileTest : public testing::Test {
 protected:
  QString Path(const char* name) const { return folder_.filePath(QLatin1String(name)); }
  QTemporaryDir folder_;
};

TEST_F(WholeFileTest, IsInItsPlaceWhenItIsKept) {
  Fill(Path("day.json"), "before");
  {
    WholeFile file(Path("day.json"));
    Fill(file.WorkingName(), "after");
    EXPECT_EQ(ContentOf(Path("day.json")), QByteArray("before"));
    EXPECT_TRUE(file.Keep());
  }
  EXPECT_EQ(ContentOf(Path("day.json")), QByteArray("after"));
  EXPECT_EQ(FilesIn(folder_.path()), QStringList("day.json"));
}

TEST_F(WholeFileTest, IsGoneWhenItIsNot) {
  {
    const WholeFile file(Path("day.json"));
    Fill(file.WorkingName(), "a part");
  }
  EXPECT_EQ(FilesIn(folder_.path()), QStringList());
}

// The work is interrupted in its middle, by Ctrl+C or by being told to end.
TEST_F(WholeFileTest, IsGoneWhenTheProgramIsInterrupted) {
  Fill(Path("day.json"), "before");
  for (const int signal : {SIGINT, SIGTERM}) {
    const auto work = [&] {
      const WholeFile file(Path("day.json"));
      Fill(file.WorkingName(), "a part");
      kill(getpid(), signal);
      for (;;) pause();
    };
    EXPECT_EXIT(work(), testing::KilledBySignal(signal), "");
    EXPECT_EQ(FilesIn(folder_.path()), QStringList("day.json"));
    EXPECT_EQ(ContentOf(Path("day.json")), QByteArray("before"));
  }
}

// A job in the background of a script is started so.
TEST_F(WholeFileTest, WhoIgnoresInterruptionsIsNotInterrupted) {
  const auto work = [&] {
    std::signal(SIGINT, SIG_IGN);
    WholeFile file(Path("day.json"));
    Fill(file.WorkingName(), "whole");
    kill(getpid(), SIGINT);
    std::_Exit(file.Keep() ? 0 : 1);
  };
  EXPECT_EXIT(work(), testing::ExitedWithCode(0), "");
  EXPECT_EQ(ContentOf(Path("day.json")), QByteArray("whole"));
}

// Between two pieces of work nothing is cleaned up, and Ctrl+C ends the program all the same.
TEST_F(WholeFileTest, WhatIsKeptStaysWhenTheProgramIsInterruptedLater) {
  const auto work = [&] {
    {
      WholeFile file(Path("day.json"));
      Fill(file.WorkingName(), "whole");
      file.Keep();
    }
    kill(getpid(), SIGINT);
    for (;;) pause();
  };
  EXPECT_EXIT(work(), testing::KilledBySignal(SIGINT), "");
  EXPECT_EQ(ContentOf(Path("day.json")), QByteArray("whole"));
}

TEST_F(WholeFileTest, IsMadeInItsPlaceWhereNoFolderCanBe) {
  EXPECT_EQ(WholeFile(Path("none/day.json")).WorkingName(), Path("none/day.json"));
  EXPECT_EQ(WholeFile("/dev/null").WorkingName(), QString("/dev/null"));
}

// Standard error of a test is no terminal.
TEST(ProgressLineTest, NothingIsToldWhereNobodyReads) {
  testing::internal::CaptureStderr();
  { const ProgressLine progress("reading day.json"); }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

class WholeRecords : public Program {};

TEST_F(WholeRecords, ATargetKeepsItsPermissions) {
  Write("tap.json", kRecord);
  Write("day.json", "before");
  const QString day = Folder() + "/day.json";
  QFile::setPermissions(day, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
  const QFile::Permissions before = QFile::permissions(day);
  EXPECT_EQ(Run({"record", "merge", "-o", "day.json", "tap.json"}).status, 0);
  EXPECT_EQ(QFile::permissions(day), before);
  EXPECT_TRUE(Content("day.json").contains("merged_actions"));
  EXPECT_EQ(FilesIn(Folder()), (QStringList{"day.json", "tap.json"}));
}

TEST_F(WholeRecords, WhatIsNoPlainFileIsWrittenWhereItIs) {
  Write("tap.json", kRecord);
  const Outcome outcome = Run({"record", "draw", "-o", "/dev/stdout", "tap.json"});
  EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
  EXPECT_TRUE(outcome.output.contains("<svg"));
}

}  // namespace
}  // namespace tavi
