// Programs that are killed while they save a record: at every system call, and in the middle of a write. Either the old
// or the new content remains, in the file or in the copy beside it.
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <sys/syscall.h>

#include <QDir>
#include <QFile>

#include "record/file_replacement.h"
#include "record/record_action.h"
#include "record/record_file_utils.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/record/record_files.h"
#include "tests/record/stepped_process.h"

namespace taviinputmanager {
namespace {

constexpr int kManySteps = 10000;  // more than any save needs
constexpr int kCall = 2;           // steps: a system call begins, and returns

class KilledSave : public testing::Test, protected RecordFiles {
 protected:
  void SetUp() override {
    if (!SteppedProcess([] {}).CanBeStepped()) GTEST_SKIP() << "this system lets nobody stop a process";
    std::signal(SIGXFSZ, SIG_DFL);
  }

  // Everything from the start: the file with this content, and no copies.
  QString Afresh(const QByteArray& content) const {
    for (const QString& name : Names()) QFile::remove(Path(name));
    return Put("record", content);
  }
  QStringList CopyNames() const { return Names().filter("record.tavi-copy-"); }
  QList<QByteArray> Copies() const {
    QList<QByteArray> copies;
    for (const QString& name : CopyNames()) copies.append(Bytes(Path(name)));
    return copies;
  }
  bool IsAnywhere(const QByteArray& content) const {
    return Bytes(Path("record")) == content || Copies().contains(content);
  }

  const QByteArray before_ = "before";
  const QByteArray after_ = QByteArray("after").repeated(100);
};

TEST_F(KilledSave, AtEachStepTheFileOrTheCopyIsWhole) {
  int saved_by_copy = 0;
  int step = 0;
  for (bool is_over = false; !is_over; ++step) {
    ASSERT_LT(step, kManySteps);
    const QString file = Afresh(before_);
    SteppedProcess save([&] { ReplaceContent(file, after_); });
    is_over = !save.Step(step);
    save.Kill();
    const QByteArray content = Bytes(file);
    const bool is_whole = content == before_ || content == after_;
    EXPECT_TRUE(is_whole || Copies().contains(after_)) << step;
    saved_by_copy += is_whole ? 0 : 1;

    EXPECT_TRUE(ReplaceContent(file, "again"));
    EXPECT_EQ("again", Bytes(file)) << step;
    EXPECT_EQ("record", Names().join(' ').toStdString()) << step << ": what was left is gone with the next save";
  }
  EXPECT_GT(saved_by_copy, 0);
}

TEST_F(KilledSave, InTheMiddleOfAWriteTheFileOrTheCopyIsWhole) {
  int half_files = 0;
  bool is_over = false;
  for (int step = 0; !is_over; ++step) {
    ASSERT_LT(step, kManySteps);
    const QString file = Afresh(before_);
    SteppedProcess save([&] { ReplaceContent(file, after_); });
    is_over = !save.Step(step) || save.FinishWithin(7);
    const QByteArray content = Bytes(file);
    half_files += content == "afteraf" ? 1 : 0;
    EXPECT_TRUE(content == before_ || content == after_ || Copies().contains(after_)) << step;
  }
  EXPECT_GT(half_files, 0);
}

TEST_F(KilledSave, WhatAnEarlierDeathLeftStaysUntilTheFileIsWhole) {
  bool is_over = false;
  for (int step = 0; !is_over; ++step) {
    ASSERT_LT(step, kManySteps);
    const QString file = Afresh("bef");
    const QString left = Put("record.tavi-copy-AbCdEf", before_);
    SteppedProcess save([&] { ReplaceContent(file, after_); });
    is_over = !save.Step(step);
    save.Kill();
    EXPECT_TRUE(QFile::exists(left) || Bytes(file) == after_) << step;
    EXPECT_TRUE(IsAnywhere(before_) || IsAnywhere(after_)) << step;
  }
  EXPECT_EQ("record", Names().join(' ').toStdString());
}

// Of two programs that save the same file, one stops at some step while the other saves; then it continues, and is
// killed at a later step. When a call returns, the files are as at the start of the next call.
TEST_F(KilledSave, TwoSavesOfOneFileDoNotSpoilEachOther) {
  const QByteArray other = QByteArray("other").repeated(200);  // longer
  bool is_over = false;
  for (int step = 1; !is_over; step += kCall) {
    bool is_over_later = false;
    for (int later = 0; !is_over_later; later += 2 * kCall) {
      ASSERT_LT(step + later, kManySteps);
      const QString file = Afresh(before_);
      SteppedProcess save([&] { ReplaceContent(file, after_); });
      is_over = !save.Step(step);
      EXPECT_TRUE(ReplaceContent(file, other));
      is_over_later = !save.Step(later);
      save.Kill();
      EXPECT_TRUE(IsAnywhere(after_) || IsAnywhere(other)) << step << " and " << later;
    }
    // Both finished.
    EXPECT_EQ("record", Names().join(' ').toStdString()) << step;
    const QByteArray content = Bytes(Path("record"));
    EXPECT_TRUE(content == after_ || content == other) << step << ": " << content.constData();
  }
}

bool IsRemoval(long call) {
#ifdef SYS_unlink  // newer architectures have only the other
  if (call == SYS_unlink) return true;
#endif
  return call == SYS_unlinkat;
}

// What reaches the disk, in order: "sync" for the content of a file or folder, "cut", "remove".
std::string DiskCalls(const std::function<void()>& save) {
  QStringList calls;
  SteppedProcess process(save);
  while (process.Step()) {
    const SteppedProcess::Call call = process.BeginningCall();
    if (call.number == SYS_fsync || call.number == SYS_fdatasync) calls += "sync";
    if (call.number == SYS_openat && (call.third_argument & O_TRUNC) != 0) calls += "cut";
    if (IsRemoval(call.number)) calls += "remove";
  }
  return calls.join(' ').toStdString();
}

// A machine can crash, too. The copy and its name are on the disk before the file is truncated, and the file is before
// the copy is removed.
TEST_F(KilledSave, EachStepIsOnTheDiskBeforeTheNext) {
  const QString file = Afresh(before_);
  EXPECT_EQ("sync sync cut sync remove", DiskCalls([&] { ReplaceContent(file, after_); }));
  EXPECT_EQ("sync sync", DiskCalls([&] { ReplaceContent(Path("new"), after_); }));
}

TEST_F(KilledSave, ACopyIsForItsOwnerAlone) {
  const QString file = Afresh(before_);
  SteppedProcess save([&] { ReplaceContent(file, after_); });
  while (CopyNames().isEmpty()) ASSERT_TRUE(save.Step());
  const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
  EXPECT_FALSE(QFile::permissions(Path(CopyNames().first())) & others);
}

TEST_F(KilledSave, OfALinkTheCopyIsBesideTheFile) {
  const QString file = Afresh(before_);
  ASSERT_TRUE(QDir().mkdir(Path("links")));
  ASSERT_TRUE(QFile::link(file, Path("links/link")));
  SteppedProcess save([&] { ReplaceContent(Path("links/link"), after_); });
  while (Bytes(file) == before_) ASSERT_TRUE(save.Step());
  save.Kill();
  EXPECT_EQ(QList<QByteArray>{after_}, Copies());
}

TEST_F(KilledSave, ANewFileIsWholeOrNotThere) {
  bool is_over = false;
  for (int step = 0; !is_over; ++step) {
    ASSERT_LT(step, kManySteps);
    const QString file = Afresh({});
    QFile::remove(file);
    SteppedProcess save([&] { ReplaceContent(file, after_); });
    is_over = !save.Step(step);
    save.Kill();
    EXPECT_TRUE(!QFile::exists(file) || Bytes(file) == after_) << step;
  }
}

// Everything that writes records does so in this way.
TEST_F(KilledSave, EachKindOfSaveLeavesARecord) {
  const QByteArray record = Text("{'info':{'package_name':'p'},'actions':[{'type':'touch','data':'press_rel'}]}");
  const auto save = [&](const QString& file) {
    RecordAction action{0, "keyboard", "keyboard_press:30", {}, {}};
    Utils()->SaveRecord("p", file, {&action});
  };
  const auto merge = [&](const QString& file) {
    MergeParam source;
    source.file_name = file;
    MergeRecord(file, {source, source});
  };
  const struct {
    const char* name;
    std::function<void(const QString&)> save;
  } rows[] = {{"a recording", save}, {"a merged record", merge}, {"a new time", UpdateRecordTimestamp}};
  for (const auto& row : rows) {
    int saved_by_copy = 0;
    bool is_over = false;
    for (int step = 0; !is_over; ++step) {
      ASSERT_LT(step, kManySteps);
      const QString file = Afresh(record);
      SteppedProcess process([&] { row.save(file); });
      is_over = !process.Step(step);
      process.Kill();
      RecordInfo info;
      if (GetRecordInfo(file, &info)) continue;
      ++saved_by_copy;
      ASSERT_EQ(1, CopyNames().size()) << row.name << ' ' << step;
      EXPECT_TRUE(GetRecordInfo(Path(CopyNames().first()), &info)) << row.name << ' ' << step;
    }
    EXPECT_GT(saved_by_copy, 0) << row.name;
    EXPECT_NE(record, Bytes(Path("record"))) << row.name;
  }
}

}  // namespace
}  // namespace taviinputmanager
