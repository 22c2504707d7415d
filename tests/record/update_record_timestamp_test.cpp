// Sets the creation time in a file without changing anything else.
#include <gtest/gtest.h>

#include <QFile>

#include <Poco/Exception.h>
#include <Poco/JSON/JSONException.h>

#include "host/simulation/virtual_event_dispatcher.h"
#include "record/record_file_utils.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/record/record_files.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

class UpdateTimestamp : public Story, protected RecordFiles {
 protected:
  std::string Updated(const QByteArray& json) {
    const QString file = Put("record.json", Text(json));
    UpdateRecordTimestamp(file);
    return Bytes(file).replace('"', '\'').toStdString();
  }
  template <typename Exception>
  void ExpectThrows(const char* name, const QByteArray& json) {
    const QString file = Put("record.json", Text(json));
    EXPECT_THROW(UpdateRecordTimestamp(file), Exception) << name;
    EXPECT_EQ(Text(json), Bytes(file)) << name;
    EXPECT_EQ("record.json", Names().join(' ').toStdString()) << name;
  }
};

TEST_F(UpdateTimestamp, SetsItToNowWithFourColumnsALevel) {
  Wait(7);
  EXPECT_EQ(
      "{\n"
      "    'actions': [\n"
      "        {\n"
      "            'type': 'touch'\n"
      "        }\n"
      "    ],\n"
      "    'info': {\n"
      "        'create_time': 1577836800007,\n"
      "        'package_name': 'p'\n"
      "    }\n"
      "}",
      Updated("{'info':{'package_name':'p','create_time':5},'actions':[{'type':'touch'}]}"));
}

TEST_F(UpdateTimestamp, AddsItWhereThereIsNone) {
  EXPECT_EQ("{\n    'info': {\n        'create_time': 1577836800000\n    }\n}", Updated("{'info': {}}"));
}

TEST_F(UpdateTimestamp, ReplacesOneOfAnotherType) {
  const QJsonObject json = Json(QByteArray::fromStdString(Updated("{'info': {'create_time': ['x']}}")));
  EXPECT_EQ("{'info':{'create_time':1577836800000}}", Compact(json));
}

TEST_F(UpdateTimestamp, KeepsWhatOthersWrote) {
  const QByteArray before =
      "{'actions':[1,'a',null,true,[[]],{}],'control':{'mine':[{'deep':{'deeper':false}}]},"
      "'info':{'create_time':1577836800000,'mine':{'a':[1,2]},'package_name':'\\u4f60\\n\\u0001\\\\'},"
      "'merged_actions':[],'other':'\xc3\xa9\xf0\x9f\x98\x80'}";
  EXPECT_EQ(Compact(Json(before)), Compact(Json(QByteArray::fromStdString(Updated(before)))));
}

TEST_F(UpdateTimestamp, KeepsNumbers) {
  for (const char* number : {"0", "-5", "2147483648", "9007199254740993", "-9223372036854775808", "0.1", "-2.5",
                             "1e300", "1e-7", "123456.789012345"}) {
    const QByteArray before = QByteArray("{'info':{'create_time':1577836800000},'n':") + number + "}";
    EXPECT_EQ(Compact(Json(before)), Compact(Json(QByteArray::fromStdString(Updated(before))))) << number;
  }
}

TEST_F(UpdateTimestamp, WhatItWroteIsARecordStill) {
  const QString file = Put("record.json", Text("{'info':{'package_name':'p','resolution_x':1280,'resolution_y':720,"
                                               "'create_time':1,'total_running_time':33},"
                                               "'actions':[{'timing':33,'type':'touch','data':'a'}]}"));
  UpdateRecordTimestamp(file);
  UpdateRecordTimestamp(file);
  RecordInfo info;
  ASSERT_TRUE(GetRecordInfo(file, &info));
  EXPECT_EQ(Time().NowMs(), info.create_time);
  EXPECT_EQ(QSize(1280, 720), info.resolution);
  EXPECT_EQ(33U, info.total_running_time);
  EXPECT_STEPS(Utils()->ReadRecordActions(JsonOf(file)).get(), "33 a");
}

TEST_F(UpdateTimestamp, LeavesAFileWithoutAHeader) {
  for (const char* json : {"{}", "{ 'actions' : [] }", "{'Info':{}}", ""}) {
    EXPECT_EQ(json, Updated(json));
  }
  UpdateRecordTimestamp(Path("none.json"));
  UpdateRecordTimestamp(Path("."));
  EXPECT_EQ("record.json", Names().join(' ').toStdString()) << "no file is made";
}

TEST_F(UpdateTimestamp, ThrowsWhatTheParserThrowsForWhatIsNoJson) {
  ExpectThrows<Poco::JSON::JSONException>("cut off", "{'info': {'create_time': 5}");
  ExpectThrows<Poco::JSON::JSONException>("no JSON", "hello");
  ExpectThrows<Poco::JSON::JSONException>("blanks", " \n ");
  ExpectThrows<Poco::JSON::JSONException>("more behind the end", "{'info': {}} x");
  ExpectThrows<Poco::JSON::JSONException>("a comma too many", "{'info': {},}");
}

TEST_F(UpdateTimestamp, ThrowsForARootThatIsNoObject) {
  ExpectThrows<Poco::BadCastException>("an array", "[{'info': {}}]");
  ExpectThrows<Poco::BadCastException>("text in an array", "['info']");
}

TEST_F(UpdateTimestamp, ThrowsForAHeaderThatIsNoObject) {
  ExpectThrows<Poco::NullPointerException>("an array", "{'info': []}");
  ExpectThrows<Poco::NullPointerException>("null", "{'info': null}");
  ExpectThrows<Poco::NullPointerException>("text", "{'info': 'p'}");
  ExpectThrows<Poco::NullPointerException>("a number", "{'info': 5}");
}

// The parser rejects a value that is not in an object or list, so it is never asked for the object.
TEST_F(UpdateTimestamp, ThrowsForARootThatHoldsNothing) {
  for (const char* root : {"null", "true", "5", "'info'"}) ExpectThrows<Poco::JSON::JSONException>(root, root);
}

// 1024 levels, including the root; the result can be read again.
TEST_F(UpdateTimestamp, NestedAsDeepAsAnyReaderReads) {
  const struct {
    const char* name;
    QByteArray (*nested)(int levels);
  } rows[] = {{"lists", NestedLists}, {"objects", NestedObjects}, {"both by turns", NestedByTurns}};
  for (const auto& row : rows) {
    const auto file_of = [&](int levels) {
      return Text("{'info':{'create_time':1577836800000},'n':") + row.nested(levels - 1) + "}";
    };
    for (const int levels : {511, 512, 1024}) {
      EXPECT_EQ(Compact(Json(file_of(levels))), Compact(Json(QByteArray::fromStdString(Updated(file_of(levels))))))
          << levels << ' ' << row.name;
    }
    for (const int levels : {1025, 2000}) ExpectThrows<Poco::JSON::JSONException>(row.name, file_of(levels));
  }
}

}  // namespace
}  // namespace taviinputmanager
