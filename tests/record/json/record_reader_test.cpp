// Reading without a tree: what is read equals the library's result.
//
// TAVI_RECORD_DOCUMENTS, TAVI_RECORD_SEED and TAVI_RECORD_WORDS make the search longer: the number of damaged records,
// which ones, and the number of words in all sequences.
#include "record/record_reader.h"

#include <gtest/gtest.h>

#include <QBuffer>

#include "record/record_action.h"
#include "record/record_file_utils.h"
#include "record/single_record_actions.h"
#include "tests/record/json/hostile_records.h"
#include "tests/record/json/leaks_of_qt.h"
#include "tests/record/json/library_way.h"
#include "tests/record/record_files.h"
#include "tests/support/from_environment.h"

namespace taviinputmanager {
namespace {

constexpr int kUsualDocuments = 20000;
constexpr int kUsualWords = 4;
constexpr int kSmallestWindow = 8;
constexpr int kLargestWindow = 68;

bool IsOrdinary(const QByteArray& json, int window_bytes = JsonWindow::kUsualBytes) {
  int read_count = 0;
  EXPECT_EQ("", DifferenceInReading(json, window_bytes, &read_count)) << json.toStdString();
  return read_count == 1;
}

// A document with this in the usual place.
QByteArray WithAction(const QByteArray& action) { return Text("{'info':{'a':1},'actions':[" + action + "]}"); }
QByteArray WithData(const QByteArray& value) { return WithAction("{'data':" + value + "}"); }
QByteArray WithTiming(const QByteArray& value) { return WithAction("{'timing':" + value + "}"); }

TEST(RecordReader, ReadsWhatProgramsWrite) {
  for (const QByteArray& record : RecordsToSpoil()) EXPECT_TRUE(IsOrdinary(record)) << record.toStdString();
}

TEST(RecordReader, ThroughAnyWindow) {
  for (const QByteArray& record : RecordsToSpoil()) {
    for (int bytes = 1; bytes <= kLargestWindow; ++bytes) EXPECT_TRUE(IsOrdinary(record, bytes)) << bytes;
  }
  EXPECT_TRUE(IsOrdinary(WithData('"' + QByteArray(5000, 'x') + '"'), 8)) << "a text that is longer than the window";
}

// Each row is a document that a faulty reader would accept, or read differently.
TEST(RecordReader, LeavesWhatIsOddToTheLibrary) {
  const LeaksOfQt leaks;
  const struct {
    const char* name;
    QByteArray json;
  } rows[] = {
      {"nothing", ""},
      {"a byte order mark", "\xef\xbb\xbf" + WithData("''")},
      {"a list", "[]"},
      {"cut off", WithData("''").chopped(1)},
      {"more behind the end", WithData("''") + "x"},
      {"a byte of 0 behind the end", WithData("''") + '\0'},
      {"a second document", WithData("''") + "{}"},
      {"a comma before the end", WithAction("{'data':'',}")},
      {"no colon", WithAction("{'data' ''}")},
      {"no comma", WithAction("{'data':'' 'type':''}")},
      {"a key without marks", WithAction("{data:''}")},
      {"an escape in a key", WithAction("{'d\\u0061ta':'x'}")},
      {"a key that is no ASCII", WithAction("{'\xc3\xa9':'x'}")},
      {"another key that an escape makes equal", WithAction("{'data':'x','d\\u0061ta':'y'}")},
      {"a field twice", WithAction("{'data':'x','data':'y'}")},
      {"a timing twice", WithAction("{'timing':1,'timing':2}")},
      {"a field twice, first of another type", WithAction("{'data':1,'data':'y'}")},
      {"actions twice", Text("{'actions':[{'data':'x'}],'actions':[{'data':'y'}]}")},
      {"merged actions twice", Text("{'merged_actions':[{'actions':[]}],'merged_actions':[{'actions':[{}]}]}")},
      {"a header twice", Text("{'info':{'a':1},'info':{'b':1},'actions':[]}")},
      {"a control twice", Text("{'control':{'repeat_times':1},'control':{'repeat_times':2},'actions':[]}")},
      {"a header that is no object", Text("{'info':[1],'actions':[]}")},
      {"a control that is no object", Text("{'control':[1],'actions':[]}")},
      {"an element that is no object", WithAction("1")},
      {"actions that are no list", Text("{'actions':{'data':'x'}}")},
      {"merged actions that are no list", Text("{'merged_actions':{'actions':[]}}")},
      {"merged actions without an item", Text("{'merged_actions':[]}")},
      {"an item without a list", Text("{'merged_actions':[{'actions':[]},{}]}")},
      {"an item that is no object", Text("{'merged_actions':[[]]}")},
      {"bad UTF-8", WithData("'\xff'")},
      {"half a letter", WithData("'\xc3'")},
      {"a letter in too many bytes", WithData("'\xc0\xaf'")},
      {"half a pair in UTF-8", WithData("'\xed\xa0\x80'")},
      {"an escape of too few digits", WithData("'\\u12'")},
      {"an escape of no digits", WithData("'\\u12x4'")},
      {"a mark that ends nothing", WithData("'\\'")},
      {"a zero in front", WithTiming("01")},
      {"a sign alone", WithTiming("-")},
      {"a plus", WithTiming("+1")},
      {"two points", WithTiming("1.2.3")},
      {"an exponent without digits", WithTiming("1e")},
      {"a number that no double is", WithTiming("1e400")},
      {"a literal with a wrong letter", WithTiming("trux")},
      {"a literal in capitals", WithTiming("True")},
      {"a literal that goes on", WithTiming("nulll")},
      {"a blank that is none", "{\x0b\"actions\":[]}"},
      {"a comment", Text("{/**/'actions':[]}")},
      {"a broken value that nobody asks for", Text("{'other':[1,],'actions':[]}")},
      {"a broken text that nobody asks for", Text("{'other':'\xff','actions':[]}")},
      {"a broken number that nobody asks for", Text("{'other':1.2.3,'actions':[]}")},
      {"65 levels", Text("{'actions':[],'other':") + NestedLists(64) + "}"},
      {"more levels than there are", Text("{'actions':[],'other':") + NestedLists(1024) + "}"},
  };
  for (const auto& row : rows) {
    for (const int window : {kSmallestWindow, JsonWindow::kUsualBytes}) {
      EXPECT_FALSE(IsOrdinary(row.json, window)) << row.name;
    }
  }
}

// Each row is a document that needs the library at most for a value; the values are those of the library.
TEST(RecordReader, ReadsOddValuesWithTheLibrary) {
  const struct {
    const char* name;
    QByteArray json;
  } rows[] = {
      {"64 levels", Text("{'actions':[],'other':") + NestedByTurns(63) + "}"},
      {"blanks everywhere", Text(" { \n'actions'\t:\r[ { 'timing' : 1 , 'data' : 'x' } ] } \n")},
      {"no list", Text("{'info':{'a':1}}")},
      {"an empty object", "{}"},
      {"both lists, whatever comes first", Text("{'merged_actions':[{'actions':[]}],'actions':[{'data':'x'}]}")},
      {"values of other types", WithAction("{'timing':'1','data':1,'type':null,'extra1':[],'extra2':{}}")},
      {"another key twice", WithAction("{'a':1,'a':2,'data':'x'}")},
      {"no key", WithAction("{'':1,'data':'x'}")},
      {"every escape", WithData("'\\\\ \\/ \\b \\f \\n \\r \\t \\u0000 \\u00e9 \\ud83d\\ude00 \\'x\\''")},
      {"an escape that is none", WithData("'\\x \\1'")},
      {"an escape of half a pair", WithData("'\\ud83d'")},
      {"control characters", WithData("'\x01\n\t\x1f'")},
      {"the last of ASCII", WithData("'\x7f'")},
      {"a text of other letters", WithData("'\xe4\xbd\xa0 \xf0\x9f\x98\x80'")},
      {"a byte order mark in front of a text", WithData("'\xef\xbb\xbfx'")},
      {"one behind an escape", WithData("'\xef\xbb\xbf\\n'")},
      {"a fraction", WithTiming("1.5")},
      {"no digit before the point", WithTiming(".1e1")},
      {"a fraction of zeros", WithTiming("7.000")},
      {"an exponent", WithTiming("1e3")},
      {"a negative zero", WithTiming("-0")},
      {"the largest timing", WithTiming("2147483647")},
      {"the least timing", WithTiming("-2147483648")},
      {"more than any timing", WithTiming("2147483648")},
      {"more than 15 digits", WithTiming("1234567890123456")},
      {"more digits than a double has", Text("{'info':{'create_time':9007199254740993},'actions':[]}")},
  };
  for (const auto& row : rows) {
    for (const int window : {kSmallestWindow, JsonWindow::kUsualBytes}) {
      EXPECT_TRUE(IsOrdinary(row.json, window)) << row.name;
    }
  }
}

TEST(RecordReader, EqualShortTextsAreOne) {
  const QByteArray json = WithAction(
      "{'type':'touch','data':'release','extra1':'11'},{'type':'touch','data':'release','extra1':'12'},"
      "{'type':'touch','data':'release','extra1':'11'},{'type':'tough','data':'press_rel:(0.123456,0.654321)'}");
  QBuffer file;
  file.setData(json);
  file.open(QIODevice::ReadOnly);
  RecordContents contents;
  ASSERT_TRUE(RecordReader(&file, RecordReader::Keep::kAll).Read(&contents));
  const auto& actions = static_cast<SingleRecordActions*>(contents.actions.get())->actions;
  EXPECT_EQ(actions.at(0)->type.constData(), actions.at(2)->type.constData());
  EXPECT_EQ(actions.at(0)->data.constData(), actions.at(2)->data.constData());
  EXPECT_EQ(actions.at(0)->extra1.constData(), actions.at(2)->extra1.constData());
  EXPECT_EQ("12", actions.at(1)->extra1);
  EXPECT_EQ("tough", actions.at(3)->type);
}

TEST(RecordReader, ADeviceThatFailsIsAtItsEnd) {
  class Failing : public QBuffer {
   protected:
    qint64 readData(char* data, qint64 size) override { return pos() < 40 ? QBuffer::readData(data, size) : -1; }
  } file;
  file.setData(WithData("'a text that is longer than that'"));
  file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
  RecordContents contents;
  EXPECT_FALSE(RecordReader(&file, RecordReader::Keep::kAll, 8).Read(&contents));
}

// ---- The search ----

class RowsOfWords : public testing::Test {
 protected:
  // All sequences of the words, between these.
  static void ExpectNoDifference(const QByteArray& before, const QList<QByteArray>& words, const QByteArray& after,
                                 int least_read) {
    int read_count = 0;
    int window = kSmallestWindow;
    ForEachRow(words, FromEnvironment("TAVI_RECORD_WORDS", kUsualWords), [&](const QByteArray& row) {
      const QByteArray json = Text(before + row + after);
      window = window == kLargestWindow ? kSmallestWindow : window + 1;
      ASSERT_EQ("", DifferenceInReading(json, window, &read_count)) << json.toStdString() << " through " << window;
    });
    EXPECT_GE(read_count, least_read) << "the rows are odd ones only";
  }
};

TEST_F(RowsOfWords, Documents) {
  ExpectNoDifference("", {"{", "}", "[", "]", ",", "'info':", "'actions':", "'merged_actions':", "'x'", "1", " "}, "",
                     3);
}

TEST_F(RowsOfWords, Levels) {
  ExpectNoDifference("{'info':{'a':1},",
                     {"'actions':", "'merged_actions':[{", "'control':", "[", "]", "{}", "}", ",", "'x':1"}, "}", 3);
}

TEST_F(RowsOfWords, Actions) {
  ExpectNoDifference("{'actions':[{", {"'data':", "'timing':", "'x'", "7", ",", "}", "{", "[]", "null", "\n"}, "}]}",
                     3);
}

TEST_F(RowsOfWords, Texts) {
  ExpectNoDifference("{'actions':[{'data':'",
                     {"a", "\\", "'", "u", "00e9", "d83d", "\xc3", "\xa9", "\x01", "\xef\xbb\xbf", ",", "/"}, "'}]}",
                     100);
}

TEST_F(RowsOfWords, Numbers) {
  ExpectNoDifference("{'actions':[{'timing':", {"0", "1", "99999999", "-", "+", ".", "e", "E", " "}, "}]}", 100);
}

TEST(SpoiltRecords, AreReadAsTheLibraryReadsThem) {
  const LeaksOfQt leaks;
  HostileRecords records(FromEnvironment("TAVI_RECORD_SEED", 1));
  const int documents = FromEnvironment("TAVI_RECORD_DOCUMENTS", kUsualDocuments);
  int read_count = 0;
  for (int i = 0; i < documents; ++i) {
    const QByteArray record = records.Next();
    const int window = kSmallestWindow + records.Below(kLargestWindow - kSmallestWindow + 1);
    ASSERT_EQ("", DifferenceInReading(record, window, &read_count)) << record.toStdString() << "\nthrough " << window;
  }
  EXPECT_GE(read_count, documents / 10) << "hardly any is read at all";
}

}  // namespace
}  // namespace taviinputmanager
