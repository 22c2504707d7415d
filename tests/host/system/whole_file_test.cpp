// Files that are written completely or not at all.
#include "host/system/whole_file.h"

#include "host/system/progress_line.h"
#include "tests/host/system/whole_file_story.h"

namespace tavi {
namespace {

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

// ---- What cannot be written

TEST_F(WholeFileTest, WhatCannotBeWrittenIsKnownBeforehand) {
  const struct {
    const char* name;
    QString target;
    const char* problem;
  } rows[] = {
      {"a new file", Path("day.json"), ""},
      {"no such folder", Path("none/day.json"), "No such file or directory"},
      {"a folder", folder_.path(), "it is a folder"},
  };
  for (const auto& row : rows) EXPECT_EQ(TryWholeFile(row.target), QString(row.problem)) << row.name;
  EXPECT_EQ(FilesIn(folder_.path()), QStringList());
}

TEST_F(WholeFileTest, WhatCannotBeReadIsNotCopied) {
  Fill(Path("day.json"), "before");
  QFile none(Path("none.json"));
  EXPECT_FALSE(none.open(QIODevice::ReadOnly));
  EXPECT_NE(none.errorString(), QString());
  EXPECT_EQ(CopyWholeFile(none.fileName(), Path("day.json")), none.errorString());
  EXPECT_EQ(ContentOf(Path("day.json")), QByteArray("before"));
  EXPECT_EQ(CopyWholeFile(Path("day.json"), Path("copy.json")), QString());
  EXPECT_EQ(ContentOf(Path("copy.json")), QByteArray("before"));
}

// ---- What stays of the file that was there

// A test's standard error is not a terminal.
TEST(ProgressLineTest, NothingIsToldWhereNobodyReads) {
  testing::internal::CaptureStderr();
  { const ProgressLine progress("reading day.json"); }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
}  // namespace tavi
