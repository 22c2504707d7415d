// Several records, written as one.
#include <gtest/gtest.h>

#include <QFileInfo>
#include <QJsonArray>

#include "host/simulation/virtual_event_dispatcher.h"
#include "record/record_file_utils.h"
#include "record/replay_context.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/record/record_files.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

class MergedFile : public Story, protected RecordFiles {
 protected:
  MergedFile() : target_(Path("merged.json")) {}

  // A source of one action. Played once at normal speed, without a gap, unless the test sets other values.
  MergeParam Source(const QString& name, const QByteArray& total, MergeParam param = {}) {
    param.file_name = Put(name, Text("{'info': {'package_name': '" + name.toUtf8() +
                                     "', 'resolution_x': 800, 'resolution_y': 600, 'create_time': 5,"
                                     " 'total_running_time': " +
                                     total +
                                     "}, 'actions': [{'timing': 10,"
                                     " 'type': 'touch', 'data': '" +
                                     name.toUtf8() + "'}]}"));
    return param;
  }
  MergeParam SourceOf(const QString& name, const QByteArray& json) {
    MergeParam param;
    param.file_name = Put(name, Text(json));
    return param;
  }
  // The duration of the merged file, as a reader gets it.
  quint64 Total(const QVector<MergeParam>& params) {
    EXPECT_TRUE(MergeRecord(target_, params));
    RecordInfo info;
    EXPECT_TRUE(GetRecordInfo(target_, &info));
    return info.total_running_time;
  }
  QJsonArray Items() const { return JsonOf(target_).value("merged_actions").toArray(); }

  const QString target_;
};

TEST_F(MergedFile, WorkedExample) {
  MergeParam first = Repeated(3, 500);
  first.till_next_item_delay = 250;
  first.speed_ratio = 2.0;
  // First: (2 * 500 + 3 * 1000 + 250) / 2 = 2125. The last: 2000, its own gap does not count. 2125 + 2000 = 4125.
  EXPECT_EQ(4125U, Total({Source("a", "1000", first), Source("b", "2000", WithGap(250))}));
}

TEST_F(MergedFile, RunningTimes) {
  MergeParam once = Repeated(1, 500);
  MergeParam never = Repeated(0, 500);
  MergeParam negative = Repeated(-2, 500);
  MergeParam twice_back = Repeated(2, -100);
  const struct {
    const char* name;
    MergeParam param;
    const char* source_total;
    quint64 total;
  } rows[] = {
      {"as it is", {}, "1000", 1000},
      {"one repeat has no delay", once, "1000", 1000},
      {"0 repeats play once", never, "1000", 1000},
      {"negative ones too", negative, "1000", 1000},
      {"a negative delay counts: 2 * 1000 - 100", twice_back, "1000", 1900},
      {"cut off: 1001 / 2", AtSpeed(2.0), "1001", 500},
      {"slower", AtSpeed(0.5), "1000", 2000},
      {"no speed is normal speed", AtSpeed(0.0), "1000", 1000},
      {"a negative one too", AtSpeed(-4.0), "1000", 1000},
      {"1 / 49 is a little small, and so 49 of it are below 1", AtSpeed(49.0), "49", 0},
      {"the gap of the last does not count", WithGap(700), "1000", 1000},
      {"the low 32 bits of 2^32 + 1000", {}, "4294968296", 1000},
      {"a product of low 32 bits: 3 * 2000000000 - 2^32", Repeated(3), "2000000000", 1705032704},
      {"an absent total is 0", {}, "null", 0},
      {"below 0 is 0", {}, "-7", 0},
  };
  for (const auto& row : rows) EXPECT_EQ(row.total, Total({Source("a", row.source_total, row.param)})) << row.name;
}

TEST_F(MergedFile, GapsCountForAllButTheLastAndAtTheirSpeed) {
  // (100 + 50) / 2 + (200 + 60) / 4 + 300 = 75 + 65 + 300
  EXPECT_EQ(440U, Total({Source("a", "100", WithGap(50, 2.0)), Source("b", "200", WithGap(60, 4.0)),
                         Source("c", "300", WithGap(70))}));
}

TEST_F(MergedFile, EachTermIsCutOffByItself) {
  // 101 / 2 is 50, twice.
  EXPECT_EQ(100U, Total({Source("a", "101", AtSpeed(2.0)), Source("b", "101", AtSpeed(2.0))}));
}

TEST_F(MergedFile, AnIntThatRunsOverIsWrittenAsAnUnsignedNumber) {
  // 2^31 is -2^31 as an int, and that is 2^64 - 2^31 without a sign.
  EXPECT_EQ(18446744071562067968U, Total({Source("a", "2147483648")}));
}

TEST_F(MergedFile, TheWholeDocument) {
  MergeParam first = Repeated(3, 4);
  first.speed_ratio = 1.5;
  first.till_next_item_delay = 6;
  first = Source("a", "1000", first);
  const MergeParam second = Source("b", "2000");
  Wait(40);
  ASSERT_TRUE(MergeRecord(target_, {first, second}));
  // (2 * 4 + 3 * 1000 + 6) / 1.5 = 2009 (3014 * 0.666.. = 2009.3), and 2000.
  EXPECT_EQ(Compact(Json("{'info': {'package_name': 'a', 'resolution_x': 800, 'resolution_y': 600,"
                         "  'create_time': 1577836800040, 'total_running_time': 4009},"
                         " 'merged_actions': ["
                         "  {'control': {'file_name': '" +
                         first.file_name.toUtf8() +
                         "', 'repeat_times': 3,"
                         "    'repeat_delay': 4, 'speed_ratio': 1.5, 'till_next_item_delay': 6},"
                         "   'actions': [{'timing': 10, 'type': 'touch', 'data': 'a'}]},"
                         "  {'control': {'file_name': '" +
                         second.file_name.toUtf8() +
                         "', 'repeat_times': 1,"
                         "    'repeat_delay': 0, 'speed_ratio': 1, 'till_next_item_delay': 0},"
                         "   'actions': [{'timing': 10, 'type': 'touch', 'data': 'b'}]}]}")),
            Compact(JsonOf(target_)));
}

TEST_F(MergedFile, IsIndentedUtf8) {
  ASSERT_TRUE(MergeRecord(target_, {SourceOf("a", "{'info':{'package_name':'\xd0\xb8'},'actions':[]}")}));
  const QByteArray bytes = Bytes(target_);
  EXPECT_TRUE(bytes.startsWith("{\n    \"info\": {\n")) << bytes.toStdString();
  EXPECT_TRUE(bytes.contains("\"package_name\": \"\xd0\xb8\""));
}

TEST_F(MergedFile, TheFirstHeaderWins) {
  const MergeParam bare = SourceOf("bare", "{'info': {'create_time': 5}, 'actions': []}");
  ASSERT_TRUE(MergeRecord(target_, {bare, Source("b", "1")}));
  RecordInfo info;
  ASSERT_TRUE(GetRecordInfo(target_, &info));
  EXPECT_EQ("", info.package_name.toStdString()) << "also when it says less";
  EXPECT_EQ(QSize(0, 0), info.resolution);
  EXPECT_EQ(Time().NowMs(), info.create_time);
}

TEST_F(MergedFile, ASourcesListIsCopiedAsItStands) {
  const MergeParam source =
      SourceOf("a",
               "{'info': {'a': 1}, 'control': {'repeat_times': 9}, 'other': 1, 'merged_actions': [],"
               " 'actions': [{'mine': [1, {}], 'timing': 2.5}, 7, null]}");
  ASSERT_TRUE(MergeRecord(target_, {source}));
  const QJsonObject item = Items().first().toObject();
  EXPECT_EQ("actions control", item.keys().join(' ').toStdString()) << "header, control and others are dropped";
  EXPECT_EQ("{'a':[{'mine':[1,{}],'timing':2.5},7,null]}", Compact({{"a", item.value("actions")}}));
  EXPECT_EQ(1, item.value("control").toObject().value("repeat_times").toInt());
}

TEST_F(MergedFile, AListOfAnotherTypeIsCopiedToo) {
  ASSERT_TRUE(MergeRecord(target_, {SourceOf("a", "{'info': {'a': 1}, 'actions': 'text'}")}));
  EXPECT_EQ("text", Items().first().toObject().value("actions").toString().toStdString());
}

TEST_F(MergedFile, IsPlayedAsItWasMerged) {
  MergeParam first = Repeated(2, 30);
  first.till_next_item_delay = 50;
  ASSERT_TRUE(MergeRecord(target_, {Source("a", "10", first), Source("b", "10", AtSpeed(2.0))}));
  ReplayContext context;
  ASSERT_TRUE(Utils()->LoadRecord(target_, &context));
  EXPECT_STEPS(context.actions.get(), "10 a", "30 timer", "10 a", "50 timer", "5 b");
}

TEST_F(MergedFile, AMergedFileMergesAsALevel) {
  const QString inner = Path("inner.json");
  ASSERT_TRUE(MergeRecord(inner, {Source("a", "10", WithGap(4)), Source("b", "10")}));  // 10 + 4 + 10
  MergeParam outer = Repeated(2, 7);
  outer.file_name = inner;
  outer.till_next_item_delay = 9;
  outer.speed_ratio = 2.0;
  // (7 + 2 * 24 + 9) / 2 + 10 = 42
  EXPECT_EQ(42U, Total({outer, Source("c", "10")}));
  EXPECT_EQ("control merged_actions", Items().first().toObject().keys().join(' ').toStdString());

  ReplayContext context;
  ASSERT_TRUE(Utils()->LoadRecord(target_, &context));
  EXPECT_STEPS(context.actions.get(), "5 a", "2 timer", "5 b", "3 timer", "5 a", "2 timer", "5 b", "4 timer", "10 c");
}

TEST_F(MergedFile, AnEmptySourceCountsAndItsGapIsPlayed) {
  MergeParam empty = SourceOf("empty", "{'info': {'a': 1}, 'actions': []}");
  empty.till_next_item_delay = 40;
  EXPECT_EQ(50U, Total({empty, Source("a", "10")}));
  ReplayContext context;
  ASSERT_TRUE(Utils()->LoadRecord(target_, &context));
  EXPECT_EQ("40 timer, 10 a", StepsOfReplay(&context).join(", ").toStdString());
}

TEST_F(MergedFile, NoSourcesMakeAFileThatCannotBePlayed) {
  ASSERT_TRUE(MergeRecord(target_, {}));
  EXPECT_EQ(Compact(Json("{'info': {'package_name': '', 'resolution_x': 0, 'resolution_y': 0,"
                         " 'create_time': 1577836800000, 'total_running_time': 0}, 'merged_actions': []}")),
            Compact(JsonOf(target_)));
  ReplayContext context;
  EXPECT_FALSE(Utils()->LoadRecord(target_, &context));
}

TEST_F(MergedFile, ABadSourceLeavesTheTarget) {
  const MergeParam good = Source("good", "10");
  MergeParam missing;
  missing.file_name = Path("none.json");
  const struct {
    const char* name;
    MergeParam bad;
  } rows[] = {
      {"missing", missing},
      {"no name", MergeParam()},
      {"broken", SourceOf("broken", "{'info': {'a': 1}, 'actions': [}")},
      {"no object", SourceOf("array", "[]")},
      {"no list", SourceOf("no_list", "{'info': {'a': 1}}")},
      {"info missing", SourceOf("no_info", "{'actions': []}")},
      {"info empty", SourceOf("empty_info", "{'info': {}, 'actions': []}")},
      {"info no object", SourceOf("other_info", "{'info': [1], 'actions': []}")},
  };
  for (const auto& row : rows) {
    Put("merged.json", "before");
    EXPECT_FALSE(MergeRecord(target_, {row.bad})) << row.name;
    EXPECT_FALSE(MergeRecord(target_, {row.bad, good})) << row.name;
    EXPECT_FALSE(MergeRecord(target_, {good, row.bad})) << row.name;
    EXPECT_FALSE(MergeRecord(target_, {good, row.bad, good})) << row.name;
    EXPECT_EQ("before", Bytes(target_)) << row.name;
    EXPECT_FALSE(MergeRecord(Path("new.json"), {good, row.bad})) << row.name;
    EXPECT_FALSE(QFileInfo::exists(Path("new.json"))) << row.name;
  }
}

TEST_F(MergedFile, ATargetThatCannotBeOpenedIsFalse) {
  const MergeParam good = Source("good", "10");
  EXPECT_FALSE(MergeRecord(Path("none/merged.json"), {good}));
  EXPECT_FALSE(MergeRecord(Path("."), {good}));
  EXPECT_EQ("good", Names().join(' ').toStdString());
}

TEST_F(MergedFile, SourcesStayAsTheyAre) {
  const MergeParam source = Source("a", "10");
  const QByteArray before = Bytes(source.file_name);
  ASSERT_TRUE(MergeRecord(target_, {source, source}));
  EXPECT_EQ(before, Bytes(source.file_name));
  EXPECT_EQ(2, Items().size());
}

TEST_F(MergedFile, ASourceCanBeTheTarget) {
  MergeParam source = Source("merged.json", "10");
  ASSERT_TRUE(MergeRecord(target_, {source, source}));
  EXPECT_EQ(2, Items().size());
}

}  // namespace
}  // namespace taviinputmanager
