// Which files may be copied: those that the library would write again, byte for byte.
//
// TAVI_RECORD_DOCUMENTS and TAVI_RECORD_SEED make the search longer.
#include "record/json/file_layout.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QJsonDocument>

#include "tests/record/json/hostile_records.h"
#include "tests/record/json/leaks_of_qt.h"
#include "tests/record/json/library_way.h"
#include "tests/record/record_files.h"
#include "tests/support/from_environment.h"

namespace taviinputmanager {
namespace {

constexpr int kUsualDocuments = 10000;

bool IsLaidOut(const QByteArray& bytes, FileLayout::Writer writer, int window_bytes = 8) {
  int copied_count = 0;
  EXPECT_EQ("", DifferenceInCopying(bytes, window_bytes, &copied_count));
  QBuffer file;
  file.setData(bytes);
  file.open(QIODevice::ReadOnly);
  RecordPlaces places;
  return FileLayout(&file, writer, window_bytes).Find(&places);
}

QByteArray InLayout(const QByteArray& json) { return QJsonDocument::fromJson(Text(json)).toJson(); }
// A document in which this is the value of a member.
QByteArray WithValue(const QByteArray& value) {
  return Text("{\n    'info': {\n        'create_time': 5\n    },\n    'other': " + value + "\n}\n");
}

TEST(FileLayout, IsThatOfBothLibraries) {
  const QByteArray json =
      InLayout("{'info':{'create_time':5,'more':[1,[2],{'a':true}]},'actions':[{'data':'\\'\\\\/x'},7,null]}");
  for (int window = 1; window < 40; ++window) {
    EXPECT_TRUE(IsLaidOut(json, FileLayout::Writer::kQt, window)) << window;
    EXPECT_TRUE(IsLaidOut(json, FileLayout::Writer::kPoco, window)) << window;
  }
  EXPECT_TRUE(IsLaidOut(json.trimmed(), FileLayout::Writer::kQt)) << "without a line's end";
  EXPECT_TRUE(IsLaidOut(json + " \r\n\t", FileLayout::Writer::kQt)) << "with more of them";
}

// Each row is a value that a faulty check would copy, though a library writes it in another form.
TEST(FileLayout, HasOneFormOfEachValue) {
  const struct {
    const char* name;
    QByteArray value;
    bool is_qts;
    bool is_pocos;
  } rows[] = {
      {"plain", "'x /~'", true, true},
      {"a number", "-123456789012345", true, true},
      {"nothing", "0", true, true},
      {"a fraction", "1.5", true, true},
      {"16 digits that a double holds", "1234567890123456", true, true},
      {"more digits than a double holds", "9007199254740993", false, true},
      {"more digits than an integer has", "12345678901234567890", false, true},
      {"a negative zero", "-0", false, false},
      {"a fraction of zeros", "1.0", false, false},
      {"an exponent", "1e3", false, false},
      {"a small number", "1e-07", true, false},
      {"a small number in another form", "1e-7", false, false},
      {"a mark that is escaped", "'\\''", true, true},
      {"a mark that need not be", "'\\/'", false, false},
      {"a letter that need not be", "'\\u0041'", false, false},
      {"a control character", "'\\n'", true, true},
      {"one without a letter of its own", "'\\u000b'", true, false},
      {"the same in capitals", "'\\u000B'", false, true},
      {"one that is not escaped", "'\x01'", false, false},
      {"other letters", "'\xe4\xbd\xa0'", true, true},
      {"the same, escaped", "'\\u4f60'", false, false},
      {"half a pair", "'\\ud83d'", true, false},
      {"a byte order mark", "'\xef\xbb\xbfx'", false, true},
      {"bad UTF-8", "'\xff'", false, false},
      {"no element", "[\n    ]", true, false},
      {"no element, as others write it", "[]", false, false},
      {"no member", "{\n    }", true, false},
      {"elements on one line", "[1, 2]", false, false},
      {"elements", "[\n        1,\n        2\n    ]", true, true},
      {"too few columns", "[\n       1\n    ]", false, false},
      {"too many columns", "[\n         1\n    ]", false, false},
      {"a tabulator", "[\n\t\t1\n    ]", false, false},
      {"another end of lines", "[\r\n        1\r\n    ]", false, false},
      {"a blank at a line's end", "[\n        1, \n        2\n    ]", false, false},
      {"a blank before a colon", "{\n        'a' : 1\n    }", false, false},
      {"no blank after it", "{\n        'a':1\n    }", false, false},
      {"members in order", "{\n        'a': 1,\n        'b': 1\n    }", true, true},
      {"members out of order", "{\n        'b': 1,\n        'a': 1\n    }", false, false},
      {"a member twice", "{\n        'a': 1,\n        'a': 1\n    }", false, false},
      {"a member without a key", "{\n        '': 1\n    }", true, true},
      {"an odd key", "{\n        '\xc3\xa9': 1\n    }", false, false},
      {"a comma too many", "[\n        1,\n    ]", false, false},
      {"a literal", "[\n        true,\n        false,\n        null\n    ]", true, true},
      {"a literal that goes on", "nulll", false, false},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.is_qts, IsLaidOut(WithValue(row.value), FileLayout::Writer::kQt)) << row.name;
    EXPECT_EQ(row.is_pocos, IsLaidOut(WithValue(row.value), FileLayout::Writer::kPoco)) << row.name;
  }
}

TEST(FileLayout, IsThatOfAWholeDocument) {
  const QByteArray json = WithValue("1");
  for (const QByteArray& bytes : {QByteArray(), QByteArray("[\n]\n"), '\n' + json, "\xef\xbb\xbf" + json, json + 'x',
                                  json + json, json + '\0', json.left(json.size() - 3)}) {
    EXPECT_FALSE(IsLaidOut(bytes, FileLayout::Writer::kQt)) << bytes.toStdString();
  }
  EXPECT_FALSE(IsLaidOut(InLayout("{'info':[1]}"), FileLayout::Writer::kQt)) << "a header that is none";
  EXPECT_TRUE(IsLaidOut(InLayout("{'a':" + NestedLists(63) + "}"), FileLayout::Writer::kQt));
  EXPECT_FALSE(IsLaidOut(InLayout("{'a':" + NestedLists(64) + "}"), FileLayout::Writer::kQt)) << "too deep";
}

// Found by level, not only by name: another one is deeper, and one is beside the header.
TEST(FileLayout, TheTimeIsThatOfTheHeader) {
  for (const char* json :
       {"{'info':{'create_time':5,'other':{'create_time':6}}}", "{'info':{'a':{'create_time':6},'create_time':5}}",
        "{'create_time':6,'info':{'create_time':5},'other':{'create_time':6}}"}) {
    EXPECT_TRUE(IsLaidOut(InLayout(json), FileLayout::Writer::kPoco)) << json;
  }
}

TEST(SpoiltRecords, AreCopiedOnlyWhereTheLibraryWritesTheSame) {
  const LeaksOfQt leaks;
  HostileRecords records(FromEnvironment("TAVI_RECORD_SEED", 1));
  const int documents = FromEnvironment("TAVI_RECORD_DOCUMENTS", kUsualDocuments);
  int copied_count = 0;
  for (int i = 0; i < documents; ++i) {
    const QByteArray record = records.NextWritten();
    ASSERT_EQ("", DifferenceInCopying(record, 8 + records.Below(61), &copied_count)) << record.toStdString();
  }
  EXPECT_GE(copied_count, documents / 4) << "hardly any is copied at all";
}

}  // namespace
}  // namespace taviinputmanager
