// Replacing files that have permissions, links, devices or size limits.
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>

#include "record/file_replacement.h"
#include "tests/record/record_files.h"
#include "tests/record/stepped_process.h"

namespace taviinputmanager {
namespace {

// While this exists, no file can grow beyond `bytes`, like on a full disk.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);  // the write fails instead
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    EXPECT_EQ(0, setrlimit(RLIMIT_FSIZE, &limit));
  }
  ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }

 private:
  rlimit before_{};
};

// While this exists, the process has no special rights: root may do anything.
class PlainUser {
 public:
  PlainUser() {
    if (was_root_ && seteuid(kNobody) != 0) ADD_FAILURE() << "cannot become a plain user";
  }
  ~PlainUser() {
    if (was_root_ && seteuid(0) != 0) ADD_FAILURE() << "cannot become root again";
  }

 private:
  static constexpr uid_t kNobody = 65534;
  const bool was_root_ = geteuid() == 0;
};

class FileReplacementOnPosix : public testing::Test, protected RecordFiles {
 protected:
  static void SetMode(const QString& path, mode_t mode) {
    EXPECT_EQ(0, chmod(QFile::encodeName(path).constData(), mode));
  }
  static mode_t ModeOf(const QString& path) {
    struct stat status {};
    EXPECT_EQ(0, stat(QFile::encodeName(path).constData(), &status));
    return status.st_mode & 0777;
  }
};

TEST_F(FileReplacementOnPosix, ANewFileIsForWhomEveryNewFileIs) {
  EXPECT_TRUE(ReplaceContent(Path("new"), "after"));
  EXPECT_EQ(ModeOf(Put("usual", "")), ModeOf(Path("new")));
}

TEST_F(FileReplacementOnPosix, KeepsWhoMayReadIt) {
  const QString file = Put("record", "before");
  SetMode(file, 0640);
  EXPECT_TRUE(ReplaceContent(file, "after"));
  EXPECT_EQ(0640U, ModeOf(file));
}

TEST_F(FileReplacementOnPosix, AFullDiskLeavesTheOldFile) {
  const QString file = Put("record", "before");
  {
    const FullDisk full(64);
    EXPECT_TRUE(ReplaceContent(file, QByteArray(100000, 'x'))) << "what becomes of the writing is not told";
  }
  EXPECT_EQ("before", Bytes(file));
  EXPECT_EQ("record", Names().join(' ').toStdString()) << "half a file beside it is removed";
}

TEST_F(FileReplacementOnPosix, AFullDiskMakesNoHalfAFile) {
  {
    const FullDisk full(64);
    EXPECT_TRUE(ReplaceContent(Path("new"), QByteArray(100000, 'x')));
  }
  EXPECT_EQ("", Names().join(' ').toStdString());
}

// The disk fills up after the copy is complete.
TEST_F(FileReplacementOnPosix, AFileThatTakesAPartOnlyIsReplacedByItsCopy) {
  const QString file = Put("record", "before");
  SetMode(file, 0640);
  SteppedProcess save([&] {
    std::signal(SIGXFSZ, SIG_IGN);
    ReplaceContent(file, "and after");
  });
  if (!save.CanBeStepped()) GTEST_SKIP() << "this system lets nobody stop a process";
  while (Bytes(file) == "before") ASSERT_TRUE(save.Step());
  EXPECT_TRUE(save.FinishWithin(3));
  EXPECT_EQ("and after", Bytes(file));
  EXPECT_EQ(0640U, ModeOf(file));
  EXPECT_EQ("record", Names().join(' ').toStdString());
}

TEST_F(FileReplacementOnPosix, AFileThatIsNotWholeAndCannotBeMovedAwayKeepsItsCopy) {
  if (geteuid() != 0) GTEST_SKIP() << "needs a file of somebody else";
  const QString file = Put("record", "before");
  SetMode(file, 0666);
  SetMode(Path("."), 01777);
  SteppedProcess save([&] {
    const PlainUser user;
    ReplaceContent(file, "and after");
  });
  if (!save.CanBeStepped()) GTEST_SKIP() << "this system lets nobody stop a process";
  while (Bytes(file) == "before") {
    if (!save.Step()) GTEST_SKIP() << "this system forbids that too";
  }
  Put("record", "what is longer");  // by another program, before it is written
  EXPECT_TRUE(save.Finish());
  EXPECT_EQ("and afteronger", Bytes(file));
  ASSERT_EQ(2, Names().size());
  EXPECT_EQ("and after", Bytes(Path(Names().last())));
}

TEST_F(FileReplacementOnPosix, WhatIsNoPlainFileIsWrittenInPlace) {
  EXPECT_TRUE(ReplaceContent("/dev/null", "after"));
  EXPECT_TRUE(ReplaceContent("/dev/full", QByteArray(100000, 'x'))) << "it can be opened";
  EXPECT_FALSE(QFileInfo("/dev/null").isFile());
  EXPECT_FALSE(QFileInfo("/dev/full").isFile());
}

TEST_F(FileReplacementOnPosix, ALinkStaysOneAndItsTargetIsReplaced) {
  const QString target = Put("target", "before");
  ASSERT_TRUE(QFile::link(target, Path("link")));
  EXPECT_TRUE(ReplaceContent(Path("link"), "after"));
  EXPECT_TRUE(QFileInfo(Path("link")).isSymLink());
  EXPECT_EQ("after", Bytes(target));
}

TEST_F(FileReplacementOnPosix, ALinkToNothingMakesItsTarget) {
  ASSERT_TRUE(QFile::link(Path("target"), Path("link")));
  EXPECT_TRUE(ReplaceContent(Path("link"), "after"));
  EXPECT_TRUE(QFileInfo(Path("link")).isSymLink());
  EXPECT_EQ("after", Bytes(Path("target")));
}

TEST_F(FileReplacementOnPosix, AWriteProtectedFileIsRefused) {
  const QString file = Put("record", "before");
  SetMode(file, 0444);
  SetMode(Path("."), 0777);
  {
    const PlainUser user;
    EXPECT_FALSE(ReplaceContent(file, "after"));
  }
  EXPECT_EQ("before", Bytes(file));
}

TEST_F(FileReplacementOnPosix, WhereNoFileCanBeMadeBesideItIsWrittenInPlace) {
  const QString file = Put("record", "before");
  SetMode(file, 0666);
  SetMode(Path("."), 0555);
  {
    const PlainUser user;
    EXPECT_TRUE(ReplaceContent(file, "after"));
    EXPECT_FALSE(ReplaceContent(Path("new"), "after"));
  }
  SetMode(Path("."), 0777);
  EXPECT_EQ("after", Bytes(file));
}

// In a folder like /tmp only its owner may rename a file.
TEST_F(FileReplacementOnPosix, WhereAFileCannotBeMovedAwayIsWrittenInPlace) {
  if (geteuid() != 0) GTEST_SKIP() << "needs a file of somebody else";
  const QString file = Put("record", "before");
  SetMode(file, 0666);
  SetMode(Path("."), 01777);
  {
    const PlainUser user;
    QFile in_place(file);
    if (!in_place.open(QIODevice::WriteOnly)) GTEST_SKIP() << "this system forbids that too";
    in_place.write("before");
    in_place.close();
    EXPECT_TRUE(ReplaceContent(file, "after"));
  }
  EXPECT_EQ("after", Bytes(file));
}

}  // namespace
}  // namespace taviinputmanager
