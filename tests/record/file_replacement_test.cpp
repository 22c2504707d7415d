#include "record/file_replacement.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "tests/record/record_files.h"

namespace taviinputmanager {
namespace {

class FileReplacement : public testing::Test, protected RecordFiles {};

TEST_F(FileReplacement, MakesAFile) {
  EXPECT_TRUE(ReplaceContent(Path("new"), "after"));
  EXPECT_EQ("after", Bytes(Path("new")));
  EXPECT_EQ("new", Names().join(' ').toStdString()) << "nothing else is left in the folder";
}

TEST_F(FileReplacement, TakesThePlaceOfAFile) {
  const QString file = Put("record", QByteArray(5000, 'x'));
  EXPECT_TRUE(ReplaceContent(file, "after"));
  EXPECT_EQ("after", Bytes(file));
  EXPECT_EQ("record", Names().join(' ').toStdString());
}

TEST_F(FileReplacement, WhoHoldsItOpenReadsWhatIsNew) {
  QFile reader(Put("record", "before"));
  ASSERT_TRUE(reader.open(QIODevice::ReadOnly));
  EXPECT_TRUE(ReplaceContent(reader.fileName(), "after"));
  EXPECT_EQ("after", reader.readAll());
}

// Like a full disk.
TEST_F(FileReplacement, AContentThatCannotBeMadeLeavesTheOldFile) {
  const FileContent half = [](QIODevice* target) {
    target->write("half");
    return false;
  };
  const QString file = Put("record", "before");
  EXPECT_TRUE(ReplaceContent(file, half));
  EXPECT_TRUE(ReplaceContent(Path("new"), half));
  EXPECT_EQ("before", Bytes(file));
  EXPECT_EQ("record", Names().join(' ').toStdString());
}

// It is read before the file is truncated, even if there can be no copy beside it, because its longer name is
// impossible.
TEST_F(FileReplacement, AContentMayBeMadeOfTheFileItself) {
  for (const QString& file : {Put("record", "before"), Put(QString(255, 'n'), "before")}) {
    EXPECT_TRUE(ReplaceContent(file, [&](QIODevice* target) {
      const QByteArray twice = Bytes(file).repeated(2);
      return target->write(twice) == twice.size();
    }));
    EXPECT_EQ("beforebefore", Bytes(file));
  }
}

// A name that looks like that of a copy, but is none.
TEST_F(FileReplacement, FilesOfOthersStay) {
  const QString file = Put("record", "before");
  for (const char* name : {"record.tavi-copy", "record.tavi-copy-", "record.tavi-copy-abcde",
                           "record.tavi-copy-abcdefg", "record2.tavi-copy-abcdef", "arecord.tavi-copy-abcdef"}) {
    Put(name, "other");
  }
  const QStringList names = Names();
  EXPECT_TRUE(ReplaceContent(file, "after"));
  EXPECT_EQ(names, Names());
  ASSERT_TRUE(QDir().mkdir(Path("record.tavi-copy-abcdef")));
  EXPECT_TRUE(ReplaceContent(file, "again"));
  EXPECT_EQ(names.size() + 1, Names().size());
}

TEST_F(FileReplacement, AFolderIsRefused) {
  ASSERT_TRUE(QDir().mkdir(Path("folder")));
  EXPECT_FALSE(ReplaceContent(Path("folder"), "after"));
  EXPECT_FALSE(ReplaceContent(Path("none/record"), "after"));
  EXPECT_FALSE(ReplaceContent("", "after"));
  EXPECT_EQ("folder", Names().join(' ').toStdString());
}

// A copy beside it would have a longer name, which is impossible.
TEST_F(FileReplacement, AFileOfTheLongestNameIsWrittenInPlace) {
  const QString file = Path(QString(255, 'n'));
  EXPECT_TRUE(ReplaceContent(file, "first"));
  EXPECT_EQ("first", Bytes(file));
  EXPECT_TRUE(ReplaceContent(file, "second"));
  EXPECT_EQ("second", Bytes(file));
  EXPECT_FALSE(ReplaceContent(Path(QString(256, 'n')), "none"));
}

}  // namespace
}  // namespace taviinputmanager
