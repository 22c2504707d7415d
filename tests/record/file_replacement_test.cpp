#include "record/file_replacement.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

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

class FileReplacement : public testing::Test, protected RecordFiles {
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

TEST_F(FileReplacement, MakesAFile) {
  EXPECT_TRUE(ReplaceFile(Path("new"), "after"));
  EXPECT_EQ("after", Bytes(Path("new")));
  EXPECT_EQ("new", Names().join(' ').toStdString()) << "nothing else is left in the folder";
}

TEST_F(FileReplacement, ANewFileIsForWhomEveryNewFileIs) {
  EXPECT_TRUE(ReplaceFile(Path("new"), "after"));
  EXPECT_EQ(ModeOf(Put("usual", "")), ModeOf(Path("new")));
}

TEST_F(FileReplacement, TakesThePlaceOfAFile) {
  const QString file = Put("record", QByteArray(5000, 'x'));
  EXPECT_TRUE(ReplaceFile(file, "after"));
  EXPECT_EQ("after", Bytes(file));
  EXPECT_EQ("record", Names().join(' ').toStdString());
}

TEST_F(FileReplacement, KeepsWhoMayReadIt) {
  const QString file = Put("record", "before");
  SetMode(file, 0640);
  EXPECT_TRUE(ReplaceFile(file, "after"));
  EXPECT_EQ(0640U, ModeOf(file));
}

TEST_F(FileReplacement, WhoHoldsItOpenReadsWhatIsNew) {
  QFile reader(Put("record", "before"));
  ASSERT_TRUE(reader.open(QIODevice::ReadOnly));
  EXPECT_TRUE(ReplaceFile(reader.fileName(), "after"));
  EXPECT_EQ("after", reader.readAll());
}

TEST_F(FileReplacement, AFullDiskLeavesTheOldFile) {
  const QString file = Put("record", "before");
  {
    const FullDisk full(64);
    EXPECT_TRUE(ReplaceFile(file, QByteArray(100000, 'x'))) << "what becomes of the writing is not told";
  }
  EXPECT_EQ("before", Bytes(file));
  EXPECT_EQ("record", Names().join(' ').toStdString()) << "half a file beside it is removed";
}

// Like a full disk.
TEST_F(FileReplacement, AContentThatCannotBeMadeLeavesTheOldFile) {
  const FileContent half = [](QIODevice* target) {
    target->write("half");
    return false;
  };
  const QString file = Put("record", "before");
  EXPECT_TRUE(ReplaceFile(file, half));
  EXPECT_TRUE(ReplaceFile(Path("new"), half));
  EXPECT_EQ("before", Bytes(file));
  EXPECT_EQ("record", Names().join(' ').toStdString());
}

// It is read before the file is truncated, even if there can be no copy beside it, because its longer name is
// impossible.
TEST_F(FileReplacement, AContentMayBeMadeOfTheFileItself) {
  for (const QString& file : {Put("record", "before"), Put(QString(255, 'n'), "before")}) {
    EXPECT_TRUE(ReplaceFile(file, [&](QIODevice* target) {
      const QByteArray twice = Bytes(file).repeated(2);
      return target->write(twice) == twice.size();
    }));
    EXPECT_EQ("beforebefore", Bytes(file));
  }
}

TEST_F(FileReplacement, AFullDiskMakesNoHalfAFile) {
  {
    const FullDisk full(64);
    EXPECT_TRUE(ReplaceFile(Path("new"), QByteArray(100000, 'x')));
  }
  EXPECT_EQ("", Names().join(' ').toStdString());
}

// The disk fills up after the copy is complete.
TEST_F(FileReplacement, AFileThatTakesAPartOnlyIsReplacedByItsCopy) {
  const QString file = Put("record", "before");
  SetMode(file, 0640);
  SteppedProcess save([&] {
    std::signal(SIGXFSZ, SIG_IGN);
    ReplaceFile(file, "and after");
  });
  if (!save.CanBeStepped()) GTEST_SKIP() << "this system lets nobody stop a process";
  while (Bytes(file) == "before") ASSERT_TRUE(save.Step());
  EXPECT_TRUE(save.FinishWithin(3));
  EXPECT_EQ("and after", Bytes(file));
  EXPECT_EQ(0640U, ModeOf(file));
  EXPECT_EQ("record", Names().join(' ').toStdString());
}

TEST_F(FileReplacement, AFileThatIsNotWholeAndCannotBeMovedAwayKeepsItsCopy) {
  if (geteuid() != 0) GTEST_SKIP() << "needs a file of somebody else";
  const QString file = Put("record", "before");
  SetMode(file, 0666);
  SetMode(Path("."), 01777);
  SteppedProcess save([&] {
    const PlainUser user;
    ReplaceFile(file, "and after");
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

// A name that looks like that of a copy, but is none.
TEST_F(FileReplacement, FilesOfOthersStay) {
  const QString file = Put("record", "before");
  for (const char* name : {"record.tavi-copy", "record.tavi-copy-", "record.tavi-copy-abcde",
                           "record.tavi-copy-abcdefg", "record2.tavi-copy-abcdef", "arecord.tavi-copy-abcdef"}) {
    Put(name, "other");
  }
  const QStringList names = Names();
  EXPECT_TRUE(ReplaceFile(file, "after"));
  EXPECT_EQ(names, Names());
  ASSERT_TRUE(QDir().mkdir(Path("record.tavi-copy-abcdef")));
  EXPECT_TRUE(ReplaceFile(file, "again"));
  EXPECT_EQ(names.size() + 1, Names().size());
}

TEST_F(FileReplacement, WhatIsNoPlainFileIsWrittenInPlace) {
  EXPECT_TRUE(ReplaceFile("/dev/null", "after"));
  EXPECT_TRUE(ReplaceFile("/dev/full", QByteArray(100000, 'x'))) << "it can be opened";
  EXPECT_FALSE(QFileInfo("/dev/null").isFile());
  EXPECT_FALSE(QFileInfo("/dev/full").isFile());
}

TEST_F(FileReplacement, ALinkStaysOneAndItsTargetIsReplaced) {
  const QString target = Put("target", "before");
  ASSERT_TRUE(QFile::link(target, Path("link")));
  EXPECT_TRUE(ReplaceFile(Path("link"), "after"));
  EXPECT_TRUE(QFileInfo(Path("link")).isSymLink());
  EXPECT_EQ("after", Bytes(target));
}

TEST_F(FileReplacement, ALinkToNothingMakesItsTarget) {
  ASSERT_TRUE(QFile::link(Path("target"), Path("link")));
  EXPECT_TRUE(ReplaceFile(Path("link"), "after"));
  EXPECT_TRUE(QFileInfo(Path("link")).isSymLink());
  EXPECT_EQ("after", Bytes(Path("target")));
}

TEST_F(FileReplacement, AFolderIsRefused) {
  ASSERT_TRUE(QDir().mkdir(Path("folder")));
  EXPECT_FALSE(ReplaceFile(Path("folder"), "after"));
  EXPECT_FALSE(ReplaceFile(Path("none/record"), "after"));
  EXPECT_FALSE(ReplaceFile("", "after"));
  EXPECT_EQ("folder", Names().join(' ').toStdString());
}

TEST_F(FileReplacement, AWriteProtectedFileIsRefused) {
  const QString file = Put("record", "before");
  SetMode(file, 0444);
  SetMode(Path("."), 0777);
  {
    const PlainUser user;
    EXPECT_FALSE(ReplaceFile(file, "after"));
  }
  EXPECT_EQ("before", Bytes(file));
}

TEST_F(FileReplacement, WhereNoFileCanBeMadeBesideItIsWrittenInPlace) {
  const QString file = Put("record", "before");
  SetMode(file, 0666);
  SetMode(Path("."), 0555);
  {
    const PlainUser user;
    EXPECT_TRUE(ReplaceFile(file, "after"));
    EXPECT_FALSE(ReplaceFile(Path("new"), "after"));
  }
  SetMode(Path("."), 0777);
  EXPECT_EQ("after", Bytes(file));
}

// A copy beside it would have a longer name, which is impossible.
TEST_F(FileReplacement, AFileOfTheLongestNameIsWrittenInPlace) {
  const QString file = Path(QString(255, 'n'));
  EXPECT_TRUE(ReplaceFile(file, "first"));
  EXPECT_EQ("first", Bytes(file));
  EXPECT_TRUE(ReplaceFile(file, "second"));
  EXPECT_EQ("second", Bytes(file));
  EXPECT_FALSE(ReplaceFile(Path(QString(256, 'n')), "none"));
}

// In a folder like /tmp only its owner may rename a file.
TEST_F(FileReplacement, WhereAFileCannotBeMovedAwayIsWrittenInPlace) {
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
    EXPECT_TRUE(ReplaceFile(file, "after"));
  }
  EXPECT_EQ("after", Bytes(file));
}

}  // namespace
}  // namespace taviinputmanager
