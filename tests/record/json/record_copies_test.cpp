// Merged and stamped files: the bytes are those of the libraries, whether they were copied or rewritten.
//
// TAVI_RECORD_FILES and TAVI_RECORD_SEED make the search longer.
#include <gtest/gtest.h>

#include <QFile>
#include <QJsonDocument>

#include <Poco/Exception.h>

#include "host/simulation/virtual_event_dispatcher.h"
#include "record/file_replacement.h"
#include "record/json/merged_writer.h"
#include "record/json/poco_json.h"
#include "record/record_file_utils.h"
#include "record/record_reader.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/record/json/hostile_records.h"
#include "tests/record/json/leaks_of_qt.h"
#include "tests/record/json/library_way.h"
#include "tests/record/record_files.h"
#include "tests/support/from_environment.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

constexpr int kUsualFiles = 2000;

class RecordCopies : public Story, protected RecordFiles {
 protected:
  QByteArray Merged(const QVector<MergeParam>& params) {
    QFile::remove(target_);
    return MergeRecord(target_, params) ? Bytes(target_) : QByteArray();
  }
  void ExpectMergedAsByLibrary(const QByteArray& record) {
    MergeParam param;
    param.file_name = Put("source.json", record);
    const QVector<MergeParam> params{param, param};
    EXPECT_EQ(MergedByLibrary(params, Time().NowMs()), Merged(params)) << record.toStdString();
  }
  void ExpectStampedAsByLibrary(const QByteArray& record) {
    const QString file = Put("stamped.json", record);
    std::string expected = record.toStdString();
    bool is_json = !record.isEmpty();
    try {
      if (is_json) expected = poco_json::Stamped(expected, Time().NowMs()).value_or(expected);
    } catch (const Poco::Exception&) {
      is_json = false;
    }
    try {
      UpdateRecordTimestamp(file);
      EXPECT_TRUE(is_json || record.isEmpty());
    } catch (const Poco::Exception&) {
      EXPECT_FALSE(is_json);
    }
    EXPECT_EQ(expected, Bytes(file).toStdString());
  }
  // `target` is "source.json" by one of its names.
  void ExpectMergedOverItself(const QString& target) {
    MergeParam param;
    param.file_name = Put("source.json", LongRecord(5000));
    const QByteArray expected = MergedByLibrary({param, param}, Time().NowMs());
    ASSERT_TRUE(MergeRecord(target, {param, param}));
    EXPECT_EQ(expected, Bytes(param.file_name));
  }
  // A record of this many actions, in the library's format.
  QByteArray LongRecord(int actions) const {
    QByteArray list;
    for (int i = 0; i < actions; ++i) list += (i == 0 ? "" : ",") + Text("{'data':'release','timing':1}");
    return QJsonDocument::fromJson(Text("{'info':{'create_time':5,'total_running_time':0},'actions':[") + list + "]}")
        .toJson();
  }

  const QString target_ = Path("target.json");
};

TEST_F(RecordCopies, OfRecordsAndOfSpoiltOnes) {
  const LeaksOfQt leaks;
  for (const QByteArray& record : RecordsToSpoil()) {
    ExpectMergedAsByLibrary(record);
    ExpectStampedAsByLibrary(record);
  }
  HostileRecords records(FromEnvironment("TAVI_RECORD_SEED", 1));
  for (int left = FromEnvironment("TAVI_RECORD_FILES", kUsualFiles); left > 0 && !HasFailure(); --left) {
    const QByteArray record = records.NextWritten();
    ExpectMergedAsByLibrary(record);
    ExpectStampedAsByLibrary(record);
  }
}

TEST_F(RecordCopies, OfLongRecords) {
  ExpectMergedAsByLibrary(LongRecord(5000));
  ExpectStampedAsByLibrary(LongRecord(5000));
}

TEST_F(RecordCopies, AStampedAndAMergedRecordAreMergedAgain) {
  MergeParam param;
  param.file_name = Put("source.json", LongRecord(3));
  UpdateRecordTimestamp(param.file_name);
  Put("merged.json", Merged({param, param}));
  ExpectMergedAsByLibrary(Bytes(Path("merged.json")));
}

// The target is one of the sources: itself, through a link, or without the possibility of a copy beside it.
TEST_F(RecordCopies, OfTheFileItself) { ExpectMergedOverItself(Path("source.json")); }

TEST_F(RecordCopies, OfTheFileItselfThroughALink) {
  ASSERT_TRUE(QFile::link(Put("source.json", {}), Path("link.json")));
  ExpectMergedOverItself(Path("link.json"));
}

TEST_F(RecordCopies, OfTheFileItselfWithTheLongestName) {
  MergeParam param;
  const QString longest = Path(QString(255, 'n'));  // a copy's longer name is impossible
  ASSERT_TRUE(QFile::rename(Put("other.json", LongRecord(5000)), longest));
  param.file_name = longest;
  ASSERT_TRUE(MergeRecord(longest, {param, param}));
  EXPECT_EQ(5000 * 2, Bytes(longest).count("release"));
}

// ---- A file that changes between the two readings, or is cut short ----

class ChangingSource : public RecordCopies {
 protected:
  ChangingSource() : source_(Put("source.json", LongRecord(5000))) {}

  // Whether a merge notices changes to its source after it was examined.
  bool IsNoticed(const std::function<void()>& change) {
    MergedWriter writer;
    EXPECT_TRUE(writer.Add(source_, {}));
    change();
    EXPECT_TRUE(ReplaceContent(target_, [&](QIODevice* target) { return writer.Write({}, target); }));
    EXPECT_EQ(!writer.HasChangedSource(), QFile::exists(target_)) << "nothing is made of half a source";
    return writer.HasChangedSource();
  }

  const QString source_;
};

TEST_F(ChangingSource, OneThatStaysIsCopied) {
  EXPECT_FALSE(IsNoticed([] {}));
}

TEST_F(ChangingSource, IsNoticed) {
  const struct {
    const char* name;
    std::function<void()> change;
  } rows[] = {
      {"cut short", [this] { QFile::resize(source_, 200); }},
      {"cut to nothing", [this] { QFile::resize(source_, 0); }},
      {"gone", [this] { QFile::remove(source_); }},
      {"longer", [this] { Put("source.json", LongRecord(5001)); }},
      {"of another time",
       [this] {
         QFile file(source_);
         ASSERT_TRUE(file.open(QIODevice::ReadWrite));
         ASSERT_TRUE(file.setFileTime(QDateTime::fromMSecsSinceEpoch(5), QFileDevice::FileModificationTime));
       }},
  };
  for (const auto& row : rows) {
    Put("source.json", LongRecord(5000));
    EXPECT_TRUE(IsNoticed(row.change)) << row.name;
  }
}

// Each length to which another program may truncate a file while it is read: the existing part is read, and then the
// file ends.
TEST_F(ChangingSource, CutShortWhileItIsReadItIsRefused) {
  const QByteArray record = LongRecord(3);
  class Cut : public QFile {
   public:
    Cut(const QString& name, qint64 left) : QFile(name), left_(left) {}

   protected:
    qint64 readData(char* data, qint64 size) override {
      if (pos() >= 32) resize(qMin(left_, this->size()));
      return QFile::readData(data, size);
    }

   private:
    const qint64 left_;
  };
  for (int left = 0; left < record.size() - 1; ++left) {
    Put("cut.json", record);
    Cut file(Path("cut.json"), left);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    RecordContents contents;
    EXPECT_FALSE(RecordReader(&file, RecordReader::Keep::kAll, 16).Read(&contents)) << left;
  }
}

}  // namespace
}  // namespace taviinputmanager
