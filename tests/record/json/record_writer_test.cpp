// Writing without a tree: the bytes are those of the library.
//
// TAVI_RECORD_ACTIONS and TAVI_RECORD_SEED make the search longer: how many actions are generated, and which.
#include "record/json/record_writer.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QJsonDocument>
#include <QJsonObject>

#include "record/record_action.h"
#include "record/record_file_utils.h"
#include "record/replay_context.h"
#include "record/single_record_actions.h"
#include "test_folders.h"
#include "tests/record/json/hostile_records.h"
#include "tests/record/json/library_way.h"
#include "tests/record/record_files.h"
#include "tests/support/from_environment.h"

namespace taviinputmanager {
namespace {

constexpr int kUsualActions = 20000;

// Actions that this object owns.
struct Actions : QList<RecordAction*> {
  Actions() = default;
  Actions(const Actions&) = delete;
  Actions& operator=(const Actions&) = delete;
  ~Actions() { qDeleteAll(*this); }
};

const QJsonObject& Header() {
  static const QJsonObject header{
      {"package_name", "[\n{\"actions\": [\n"}, {"create_time", qint64{1577836800000}}, {"total_running_time", -5}};
  return header;
}

QByteArray Written(const QJsonObject& info, const QList<RecordAction*>& actions) {
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  EXPECT_TRUE(WriteRecord(info, actions, &file));
  return file.data();
}

void ExpectAsByLibrary(const QList<RecordAction*>& actions, const char* name = "") {
  EXPECT_EQ(WrittenByLibrary(Header(), actions), Written(Header(), actions)) << name;
}

TEST(RecordWriter, WritesWhatTheLibraryWrites) {
  const struct {
    const char* name;
    QString text;
  } rows[] = {
      {"nothing", ""},
      {"no text at all", QString()},
      {"plain", "press_rel:(0.5,0.25) ~!#[]{}/"},
      {"a quotation mark", "a\"b"},
      {"a backslash", "a\\b"},
      {"the escapes that have a letter", "\b\f\n\r\t"},
      {"the first and the last control character", QString(QChar(0)) + QChar(0x1f)},
      {"the last of ASCII", QString(QChar(0x7f))},
      {"Latin letters", QString::fromUtf8("\xc3\xa9\xc3\xbf")},
      {"the first of two, three and four bytes", QString::fromUcs4(U"\x80\x800\x10000")},
      {"a letter of which a byte is plain", QString(QChar(0x4141))},
      {"halves of pairs", QString(QChar(0xd83d)) + 'a' + QChar(0xde00)},
      {"a byte order mark", QString(QChar(0xfeff)) + 'a'},
      {"no letters", QString(QChar(0xffff)) + QChar(0xfffe)},
      {"longer than a chunk", QString(300000, 'x')},
      {"longer than a chunk, its last letter odd", QString(300000, 'x') + '"'},
  };
  for (const auto& row : rows) {
    RecordAction action{1, row.text, row.text, row.text, row.text};
    ExpectAsByLibrary({&action}, row.name);
  }
}

TEST(RecordWriter, WritesEveryTiming) {
  for (const int timing : {0, 1, -1, 99999, 2147483647, -2147483647, -2147483647 - 1}) {
    RecordAction action{timing, "touch", "release", "", ""};
    ExpectAsByLibrary({&action});
  }
}

TEST(RecordWriter, WritesNoneAndMany) {
  ExpectAsByLibrary({});
  RecordAction action{7, "touch", "release", "1", ""};
  ExpectAsByLibrary({&action, &action, &action});
}

TEST(RecordWriter, ADeviceThatTakesAPartOnlyIsAFailure) {
  class Full : public QBuffer {
   protected:
    qint64 writeData(const char* data, qint64 size) override { return QBuffer::writeData(data, qMin(size, qint64{9})); }
  } file;
  file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
  EXPECT_FALSE(WriteRecord(Header(), {}, &file));
}

// Letters of all kinds: plain ones, escaped ones, unpaired surrogates.
QString MadeUpText(HostileRecords* random) {
  QString text;
  for (int left = random->Below(12); left > 0; --left) {
    const int kinds[] = {0x20 + random->Below(0x5f), random->Below(0x100), 0xd800 + random->Below(0x800),
                         random->Below(0x10000)};
    text.append(QChar(static_cast<ushort>(kinds[random->Below(4)])));
  }
  return text;
}

TEST(MadeUpActions, AreWrittenAsTheLibraryWritesThem) {
  HostileRecords random(FromEnvironment("TAVI_RECORD_SEED", 1));
  constexpr int kTogether = 1000;
  for (int left = FromEnvironment("TAVI_RECORD_ACTIONS", kUsualActions); left > 0; left -= kTogether) {
    Actions actions;
    for (int i = 0; i < kTogether; ++i) {
      actions.append(new RecordAction{random.Below(0x7fffffff) * (i % 2 == 0 ? 1 : -1), MadeUpText(&random),
                                      MadeUpText(&random), MadeUpText(&random), MadeUpText(&random)});
    }
    ASSERT_EQ(WrittenByLibrary(Header(), actions), Written(Header(), actions));
  }
}

class ExampleRecords : public testing::TestWithParam<const char*>, protected RecordFiles {
 protected:
  static QString Example() { return QString(TAVI_SOURCE_DIR "/examples/records/") + GetParam() + ".json"; }
};

// Recorded, merged and stamped by this library: after reading and writing, the bytes are the same.
TEST_P(ExampleRecords, StayAsTheyAre) {
  const QByteArray bytes = Bytes(Example());
  int read_count = 0;
  EXPECT_EQ("", DifferenceInReading(bytes, 64, &read_count));
  EXPECT_EQ(1, read_count) << "it is ordinary";
  ReplayContext context;
  ASSERT_TRUE(Utils()->LoadRecord(Example(), &context));
  if (const auto* single = dynamic_cast<SingleRecordActions*>(context.actions.get())) {
    EXPECT_EQ(bytes, Written(JsonOf(Example()).value("info").toObject(), single->actions));
  }
}

INSTANTIATE_TEST_SUITE_P(Examples, ExampleRecords, testing::Values("taps", "walk", "both"));

}  // namespace
}  // namespace taviinputmanager
