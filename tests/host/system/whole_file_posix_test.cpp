// Files are written whole or not at all, even with signals, links, other owners, devices and size limits.
#include <csignal>
#include <unistd.h>

#include <QFileInfo>

#include "host/system/file_commit.h"
#include "host/system/whole_file.h"
#include "tests/host/system/whole_file_story.h"
#include "tests/support/system/full_disk.h"
#include "tests/support/system/other_user.h"

namespace tavi {
namespace {

// This is how a script starts a background job.
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

TEST_F(WholeFileTest, AFullDiskLeavesWhatWasThere) {
  Fill(Path("day.json"), "before");
  {
    const FileSizeLimit full(100);
    EXPECT_EQ(WriteWholeFile(Path("day.json"), QByteArray(101, 'x')), QString("File too large"));
    EXPECT_EQ(WriteWholeFile(Path("new.json"), QByteArray(101, 'x')), QString("File too large"));
    EXPECT_EQ(WriteWholeFile(Path("day.json"), QByteArray(100, 'x')), QString());
  }
  EXPECT_EQ(ContentOf(Path("day.json")), QByteArray(100, 'x'));
  EXPECT_EQ(FilesIn(folder_.path()), QStringList("day.json"));
}

TEST_F(WholeFileTest, ADeviceThatIsFullIsTold) {
  EXPECT_EQ(TryWholeFile("/dev/null"), QString());
  EXPECT_EQ(WriteWholeFile("/dev/full", "short"), QString("No space left on device"));
  EXPECT_EQ(WriteWholeFile("/dev/null", "short"), QString());
}

TEST_F(WholeFileTest, ALinkGoesOnToPointAtItsFile) {
  Fill(Path("day.json"), "before");
  QDir(folder_.path()).mkdir("links");
  ASSERT_TRUE(QFile::link("../day.json", Path("links/day.json")));
  EXPECT_EQ(WriteWholeFile(Path("links/day.json"), "after"), QString());
  EXPECT_TRUE(QFileInfo(Path("links/day.json")).isSymLink());
  EXPECT_EQ(ContentOf(Path("day.json")), QByteArray("after"));

  ASSERT_TRUE(QFile::link("../new.json", Path("links/new.json")));  // to a file that does not exist yet
  EXPECT_EQ(WriteWholeFile(Path("links/new.json"), "new"), QString());
  EXPECT_EQ(ContentOf(Path("new.json")), QByteArray("new"));
  EXPECT_EQ(FilesIn(Path("links")), (QStringList{"day.json", "new.json"}));
}

TEST_F(WholeFileTest, AFileStaysItsOwners) {
  if (!IsRoot()) GTEST_SKIP() << "only root has files of others";
  Fill(Path("day.json"), "before");
  ASSERT_EQ(chown(QFile::encodeName(Path("day.json")).constData(), kNobody, kNobody), 0);
  EXPECT_EQ(WriteWholeFile(Path("day.json"), "after"), QString());
  EXPECT_EQ(QFileInfo(Path("day.json")).ownerId(), kNobody);
}

// The file may be written, but its folder accepts no new ones.
TEST_F(WholeFileTest, WhereTheFolderTakesNothingTheFileIsWrittenOver) {
  if (!IsRoot()) GTEST_SKIP() << "only root is somebody else for a while";
  Fill(Path("day.json"), "a long day before");
  ASSERT_EQ(chmod(QFile::encodeName(folder_.path()).constData(), 0755), 0);
  ASSERT_EQ(chown(QFile::encodeName(Path("day.json")).constData(), kNobody, kNobody), 0);
  const AsNobody nobody;
  {
    const FileSizeLimit full(100);
    EXPECT_EQ(WriteWholeFile(Path("day.json"), QByteArray(101, 'x')), QString("File too large"));
  }
  EXPECT_EQ(ContentOf(Path("day.json")), QByteArray("a long day before"));
  EXPECT_EQ(WriteWholeFile(Path("day.json"), "after"), QString());
  EXPECT_EQ(ContentOf(Path("day.json")), QByteArray("after"));
}

// An existing file is not changed before there is space for all of the content.
TEST_F(WholeFileTest, RoomIsMadeBeforeAFileIsWrittenOver) {
  Fill(Path("day.json"), "before");
  QFile file(Path("day.json"));
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  const FileSizeLimit full(100);
  EXPECT_EQ(ReserveRoom(&file, 101), QString("File too large"));
  EXPECT_EQ(ContentOf(Path("day.json")), QByteArray("before"));
  EXPECT_EQ(ReserveRoom(&file, 100), QString());
}

// The library reports success then.
TEST_F(WholeRecords, AFullDiskLeavesTheRecordThatWasThere) {
  Write("tap.json", kRecord);
  Write("day.json", "before");
  const FileSizeLimit full(100);
  const Outcome outcome = Run({"record", "merge", "-o", "day.json", "tap.json"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_TRUE(outcome.errors.startsWith("tavi record merge: cannot write day.json: it was truncated"))
      << outcome.errors.toStdString();
  EXPECT_EQ(Content("day.json"), QByteArray("before"));
  EXPECT_EQ(FilesIn(Folder()), (QStringList{"day.json", "tap.json"}));
}

TEST_F(WholeRecords, AFullDiskLeavesThePictureThatWasThere) {
  Write("tap.json", kRecord);
  Write("tap.svg", "before");
  const FileSizeLimit full(100);
  const Outcome outcome = Run({"record", "draw", "-o", "tap.svg", "tap.json"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.errors, QString("tavi record draw: cannot write tap.svg: File too large\n"));
  EXPECT_EQ(Content("tap.svg"), QByteArray("before"));
}

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
