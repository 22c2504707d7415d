// Reads headers and actions from record files: both kinds, and the possible values.
#include <gtest/gtest.h>

#include <QVector>

#include "record/merge_record_actions.h"
#include "record/record_file_utils.h"
#include "record/replay_context.h"
#include "record/single_record_actions.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/record/record_files.h"

namespace taviinputmanager {
namespace {

class RecordReading : public testing::Test, protected RecordFiles {
 protected:
  // Fails the test if the file is not loaded.
  ReplayContext Load(const QByteArray& json) {
    ReplayContext context;
    EXPECT_TRUE(Utils()->LoadRecord(Put("record.json", Text(json)), &context)) << json.toStdString();
    return context;
  }
  static QStringList Played(const ReplayContext& context) {
    return context.actions ? Walk(context.actions.get()) : QStringList("no actions");
  }
};

#define EXPECT_PLAYED(json, ...) \
  EXPECT_EQ((QStringList{__VA_ARGS__}).join('\n').toStdString(), Played(Load(json)).join('\n').toStdString())
#define EXPECT_NOTHING_PLAYED(json) EXPECT_EQ(std::string(), Played(Load(json)).join('\n').toStdString())

// ---- The two shapes ----

TEST_F(RecordReading, ASingleRecord) {
  const ReplayContext context = Load(
      "{'info': {'package_name': 'com.example.game', 'resolution_x': 1920, 'resolution_y': 1080,"
      "          'create_time': 1577836800123, 'total_running_time': 4000000000},"
      " 'actions': [{'timing': 5, 'type': 'touch', 'data': 'release', 'extra1': '3', 'extra2': 'x'},"
      "             {'timing': 7, 'type': 'keyboard', 'data': 'keyboard_press:30', 'extra1': '', 'extra2': ''}]}");
  EXPECT_EQ("com.example.game", context.info.package_name.toStdString());
  EXPECT_EQ(QSize(1920, 1080), context.info.resolution);
  EXPECT_EQ(1577836800123, context.info.create_time);
  EXPECT_EQ(4000000000U, context.info.total_running_time);

  const auto* single = dynamic_cast<SingleRecordActions*>(context.actions.get());
  ASSERT_NE(nullptr, single);
  ASSERT_EQ(2, single->actions.size());
  const RecordAction& first = *single->actions.first();
  EXPECT_EQ(5, first.timing);
  EXPECT_EQ("touch", first.type.toStdString());
  EXPECT_EQ("release", first.data.toStdString());
  EXPECT_EQ("3", first.extra1.toStdString());
  EXPECT_EQ("x", first.extra2.toStdString());
  EXPECT_EQ("keyboard_press:30", single->actions.last()->data.toStdString());
}

TEST_F(RecordReading, AMergedRecordWithALevelInIt) {
  const ReplayContext context = Load(
      "{'info': {'package_name': 'p'}, 'control': {'repeat_times': 2, 'repeat_delay': 11}, 'merged_actions': ["
      "  {'control': {'till_next_item_delay': 40, 'speed_ratio': 2.0, 'file_name': '/a.json'},"
      "   'actions': [{'timing': 10, 'type': 'touch', 'data': 'a'}]},"
      "  {'merged_actions': [{'actions': [{'timing': 3, 'type': 'touch', 'data': 'b'}]}]}]}");
  const auto* merged = dynamic_cast<MergeRecordActions*>(context.actions.get());
  ASSERT_NE(nullptr, merged);
  ASSERT_EQ(2, merged->items.size());
  EXPECT_NE(nullptr, dynamic_cast<SingleRecordActions*>(merged->items.first().get()));
  EXPECT_NE(nullptr, dynamic_cast<MergeRecordActions*>(merged->items.last().get()));
  EXPECT_EQ("/a.json", merged->items.first()->control.file_name.toStdString());
  // The first item at speed 2: 10 ms are 5, its gap of 40 ms is 20.
  EXPECT_EQ("5 a|20 timer|3 b|11 timer|5 a|20 timer|3 b", Played(context).join('|').toStdString());
}

TEST_F(RecordReading, TheOrderOfKeysMeansNothingAndOthersAreNotLookedAt) {
  EXPECT_PLAYED("{'x': [1], 'actions': [{'data': 'a', 'more': {}, 'type': 'touch', 'timing': 1}], 'info': {'y': 0}}",
                "1 a");
}

TEST_F(RecordReading, KeysAreCaseSensitive) {
  ReplayContext context;
  const QString file = Put("a", Text("{'info': {'a': 1}, 'Actions': []}"));
  EXPECT_FALSE(Utils()->LoadRecord(file, &context));
  EXPECT_PLAYED("{'info': {'a': 1}, 'actions': [{'type': 'touch', 'Timing': 5, 'DATA': 'x', 'data': 'a'}]}", "0 a");
}

TEST_F(RecordReading, ActionsWinOverMergedActions) {
  EXPECT_PLAYED(
      "{'info': {'a': 1}, 'actions': [{'type': 'touch', 'data': 'flat'}],"
      " 'merged_actions': [{'actions': [{'type': 'touch', 'data': 'item'}]}]}",
      "0 flat");
  EXPECT_NOTHING_PLAYED("{'info': {'a': 1}, 'actions': [], 'merged_actions': 'of no use'}");
}

TEST_F(RecordReading, ActionsWinInAnItemToo) {
  EXPECT_PLAYED(
      "{'info': {'a': 1}, 'merged_actions': ["
      " {'actions': [{'type': 'touch', 'data': 'flat'}], 'merged_actions': []}]}",
      "0 flat");
}

TEST_F(RecordReading, ActionsOfAnotherTypeAreAnEmptyList) {
  for (const char* value : {"null", "true", "5", "'text'", "{'type': 'touch'}"}) {
    const QByteArray json = QByteArray("{'info': {'a': 1}, 'actions': ") + value + "}";
    const ReplayContext context = Load(json);
    ASSERT_NE(nullptr, dynamic_cast<SingleRecordActions*>(context.actions.get())) << value;
    EXPECT_NO_STEPS(context.actions.get()) << value;
  }
}

TEST_F(RecordReading, AnElementThatIsNoObjectIsAnActionWithoutTypeAndEndsAReplay) {
  ReplayContext context = Load(
      "{'info': {'a': 1}, 'actions': ["
      " {'type': 'touch', 'data': 'a'}, 5, {'type': 'touch', 'data': 'b'}]}");
  EXPECT_EQ(3, static_cast<SingleRecordActions*>(context.actions.get())->actions.size()) << "none is rejected";
  RecordAction action;
  context.First();
  EXPECT_TRUE(context.CurrentAction(&action));
  context.Next();
  EXPECT_FALSE(context.CurrentAction(&action));
}

// ---- The values ----

TEST_F(RecordReading, WhatIsAbsentLeavesItsField) {
  RecordAction action{1, "type", "data", "extra1", "extra2"};
  Utils()->ReadAction({}, &action);
  EXPECT_EQ("{'data':'data','extra1':'extra1','extra2':'extra2','timing':1,'type':'type'}",
            Compact(Utils()->WriteAction(action)));

  MergeParam control{"file", 2, 3, 4.5, 6};
  Utils()->ReadControlParam({}, &control);
  EXPECT_EQ("{'file_name':'file','repeat_delay':3,'repeat_times':2,'speed_ratio':4.5,'till_next_item_delay':6}",
            Compact(Utils()->WriteControlParam(control)));

  RecordInfo info{"package", QSize(7, 8), 9, 10};
  Utils()->ReadRecordInfo({}, &info);
  EXPECT_EQ("package", info.package_name.toStdString());
  EXPECT_EQ(9, info.create_time);
  EXPECT_EQ(10U, info.total_running_time);
  EXPECT_EQ(QSize(0, 0), info.resolution) << "a size is stored always";
}

// The types of JSON values: which of them each key accepts.
TEST_F(RecordReading, EachKeyTakesOneTypeOnly) {
  const struct {
    const char* type;
    const char* json;
  } values[] = {{"null", "null"},  {"bool", "true"}, {"number", "3"},
                {"string", "'3'"}, {"array", "[3]"}, {"object", "{'a': 3}"}};
  const QString text("number string");
  for (const auto& value : values) {
    const bool is_number = qstrcmp(value.type, "number") == 0;
    const bool is_string = qstrcmp(value.type, "string") == 0;
    const auto object = [&value](const char* key) { return Json(QByteArray("{'") + key + "': " + value.json + "}"); };
    const auto read_action = [&](const char* key) {
      RecordAction action{1, "t", "t", "t", "t"};
      Utils()->ReadAction(object(key), &action);
      return action;
    };
    EXPECT_EQ(is_number ? 3 : 1, read_action("timing").timing) << value.type;
    EXPECT_EQ(is_string ? "3" : "t", read_action("type").type) << value.type;
    EXPECT_EQ(is_string ? "3" : "t", read_action("data").data) << value.type;
    EXPECT_EQ(is_string ? "3" : "t", read_action("extra1").extra1) << value.type;
    EXPECT_EQ(is_string ? "3" : "t", read_action("extra2").extra2) << value.type;

    const auto read_control = [&](const char* key) {
      MergeParam control{"t", 1, 1, 1.5, 1};
      Utils()->ReadControlParam(object(key), &control);
      return control;
    };
    EXPECT_EQ(is_string ? "3" : "t", read_control("file_name").file_name) << value.type;
    EXPECT_EQ(is_number ? 3 : 1, read_control("repeat_times").repeat_times) << value.type;
    EXPECT_EQ(is_number ? 3 : 1, read_control("repeat_delay").repeat_delay) << value.type;
    EXPECT_EQ(is_number ? 3 : 1.5, read_control("speed_ratio").speed_ratio) << value.type;
    EXPECT_EQ(is_number ? 3 : 1, read_control("till_next_item_delay").till_next_item_delay) << value.type;

    const auto read_info = [&](const char* key) {
      RecordInfo info{"t", QSize(1, 1), 1, 1};
      Utils()->ReadRecordInfo(object(key), &info);
      return info;
    };
    EXPECT_EQ(is_string ? "3" : "t", read_info("package_name").package_name) << value.type;
    EXPECT_EQ(QSize(is_number ? 3 : 0, 0), read_info("resolution_x").resolution) << value.type;
    EXPECT_EQ(QSize(0, is_number ? 3 : 0), read_info("resolution_y").resolution) << value.type;
    EXPECT_EQ(is_number ? 3 : 1, read_info("create_time").create_time) << value.type;
    EXPECT_EQ(is_number ? 3U : 1U, read_info("total_running_time").total_running_time) << value.type;
  }
}

TEST_F(RecordReading, AnIntTakesWholeNumbersThatFitAndElseReadsAsZero) {
  const struct {
    const char* number;
    int value;
  } rows[] = {
      {"0", 0},           {"-7", -7},
      {"1e3", 1000},      {"12.0", 12},
      {"2.5", 0},         {"-0.5", 0},
      {"0.9999999", 0},   {"2147483647", 2147483647},
      {"2147483648", 0},  {"-2147483648", -2147483647 - 1},
      {"-2147483649", 0}, {"1e300", 0},
  };
  for (const auto& row : rows) {
    const auto object = [&row](const char* key) { return Json(QByteArray("{'") + key + "': " + row.number + "}"); };
    RecordAction action{77, {}, {}, {}, {}};
    Utils()->ReadAction(object("timing"), &action);
    EXPECT_EQ(row.value, action.timing) << row.number;
    for (const char* key : {"repeat_times", "repeat_delay", "till_next_item_delay"}) {
      MergeParam control{"", 77, 77, 1, 77};
      Utils()->ReadControlParam(object(key), &control);
      const qint64 sum = qint64{control.repeat_times} + control.repeat_delay + control.till_next_item_delay;
      EXPECT_EQ(qint64{77} + 77 + row.value, sum) << key << " " << row.number;
    }
    RecordInfo info;
    Utils()->ReadRecordInfo(object("resolution_x"), &info);
    EXPECT_EQ(QSize(row.value, 0), info.resolution) << row.number;
    Utils()->ReadRecordInfo(object("resolution_y"), &info);
    EXPECT_EQ(QSize(0, row.value), info.resolution) << row.number;
  }
}

TEST_F(RecordReading, RepeatTimesWithAFractionPlayOnce) {
  EXPECT_PLAYED("{'info': {'a': 1}, 'control': {'repeat_times': 2.5}, 'actions': [{'type': 'touch', 'data': 'a'}]}",
                "0 a");
}

TEST_F(RecordReading, TimesOfTheHeaderAreReadAsDoublesAndCutOff) {
  const struct {
    const char* name;
    const char* number;
    qint64 create_time;
    quint64 total;
  } rows[] = {
      {"a fraction is cut off", "1.9", 1, 1},
      {"towards zero", "-0.9", 0, 0},
      {"beyond an int", "1577836800123", 1577836800123, 1577836800123},
      {"beyond what a double can tell apart: 2^53 + 1 is 2^53", "9007199254740993", 9007199254740992, 9007199254740992},
      {"beyond signed 64 bits", "1e19", 9223372036854775807, 10000000000000000000U},
      {"beyond all", "1e300", 9223372036854775807, 18446744073709551615U},
  };
  for (const auto& row : rows) {
    RecordInfo info;
    Utils()->ReadRecordInfo(Json(QByteArray("{'create_time': ") + row.number + "}"), &info);
    EXPECT_EQ(row.create_time, info.create_time) << row.name;
    Utils()->ReadRecordInfo(Json(QByteArray("{'total_running_time': ") + row.number + "}"), &info);
    EXPECT_EQ(row.total, info.total_running_time) << row.name;
  }
  RecordInfo info;
  Utils()->ReadRecordInfo(Json("{'create_time': -1500.5}"), &info);
  EXPECT_EQ(-1500, info.create_time);
}

TEST_F(RecordReading, StringsHoldAnyText) {
  RecordAction action;
  Utils()->ReadAction(Json("{'data': '\\u4f60\xc3\xa9\\ud83d\\ude00\\n\\u0000z'}"), &action);
  EXPECT_EQ(QString::fromUtf8("\xe4\xbd\xa0\xc3\xa9\xf0\x9f\x98\x80\n\0z", 12), action.data);
}

TEST_F(RecordReading, AByteOrderMarkDoesNotHurt) {
  const QString file = Put("bom.json", "\xef\xbb\xbf" + Text("{'info': {'package_name': 'p'}, 'actions': []}"));
  RecordInfo info;
  EXPECT_TRUE(GetRecordInfo(file, &info));
}

// ---- control ----

TEST_F(RecordReading, WithoutAControlTheActionsKeepTheirOwn) {
  const auto actions = Single({}, Repeated(7, 8));
  Utils()->ReadControl({}, actions);
  EXPECT_EQ(7, actions->control.repeat_times);
  EXPECT_EQ(8, actions->control.repeat_delay);
}

TEST_F(RecordReading, AControlSetsAllFiveFields) {
  const char* const defaults =
      "{'file_name':'','repeat_delay':0,'repeat_times':1,'speed_ratio':1,'till_next_item_delay':0}";
  const struct {
    const char* name;
    const char* json;
    const char* control;
  } rows[] = {
      {"all", "{'file_name': 'f', 'repeat_times': 2, 'repeat_delay': 3, 'speed_ratio': 0.5, 'till_next_item_delay': 4}",
       "{'file_name':'f','repeat_delay':3,'repeat_times':2,'speed_ratio':0.5,'till_next_item_delay':4}"},
      {"one, the others by default", "{'repeat_delay': 3}",
       "{'file_name':'','repeat_delay':3,'repeat_times':1,'speed_ratio':1,'till_next_item_delay':0}"},
      {"none", "{}", defaults},
      {"no object", "[1]", defaults},
      {"null", "null", defaults},
  };
  for (const auto& row : rows) {
    const auto actions = Single({}, {"old", 7, 8, 9.0, 10});
    Utils()->ReadControl(Json(QByteArray("{'control': ") + row.json + "}"), actions);
    EXPECT_EQ(row.control, Compact(Utils()->WriteControlParam(actions->control))) << row.name;
  }
}

TEST_F(RecordReading, AMergedListHasItsControlFromTheObjectThatHoldsIt) {
  const auto actions = Utils()->ReadRecordActions(
      Json("{'control': {'repeat_times': 4}, 'merged_actions': [{'control': {'repeat_times': 5}, 'actions': []}]}"));
  ASSERT_NE(nullptr, actions);
  EXPECT_EQ(4, actions->control.repeat_times);
  EXPECT_EQ(5, static_cast<MergeRecordActions*>(actions.get())->items.first()->control.repeat_times);
}

TEST_F(RecordReading, NoPointerNoWork) {
  const QJsonObject json = Json("{'control': {'repeat_times': 2}, 'timing': 3}");
  Utils()->ReadAction(json, nullptr);
  Utils()->ReadControlParam(json, nullptr);
  Utils()->ReadRecordInfo(json, nullptr);
  Utils()->ReadControl(json, nullptr);
  const QString file = Put("good.json", Text("{'info': {'a': 1}, 'actions': []}"));
  EXPECT_FALSE(GetRecordInfo(file, nullptr));
  EXPECT_FALSE(Utils()->LoadRecord(file, nullptr));
}

TEST_F(RecordReading, ReadersOfAnObjectWithoutAListGiveNull) {
  EXPECT_EQ(nullptr, Utils()->ReadRecordActions({}));
  EXPECT_EQ(nullptr, Utils()->ReadMergeRecordActions({}));
  ASSERT_NE(nullptr, Utils()->ReadSingleRecordActions({})) << "the single reader never does";
}

TEST_F(RecordReading, TheHeaderIsReadIntoWhatIsThere) {
  RecordInfo info{"old", QSize(1, 2), 3, 4};
  ASSERT_TRUE(GetRecordInfo(Put("info.json", Text("{'info': {'create_time': 5}}")), &info));
  EXPECT_EQ("old", info.package_name.toStdString());
  EXPECT_EQ(5, info.create_time);
  EXPECT_EQ(QSize(0, 0), info.resolution);
  EXPECT_EQ(4U, info.total_running_time);
}

TEST_F(RecordReading, ALoadStartsFromAFreshHeader) {
  ReplayContext context;
  context.info = {"old", QSize(1, 2), 3, 4};
  ASSERT_TRUE(Utils()->LoadRecord(Put("a", Text("{'info': {'create_time': 5}, 'actions': []}")), &context));
  EXPECT_EQ("", context.info.package_name.toStdString());
  EXPECT_EQ(5, context.info.create_time);
  EXPECT_EQ(0U, context.info.total_running_time);
}

TEST_F(RecordReading, ABadItemIsFoundAfterTheHeaderWasTaken) {
  ReplayContext context;
  EXPECT_FALSE(Utils()->LoadRecord(
      Put("a", Text("{'info': {'package_name': 'p'}, 'merged_actions': [{'control': {}}]}")), &context));
  EXPECT_EQ("p", context.info.package_name.toStdString());
  EXPECT_EQ(nullptr, context.actions);
}

TEST_F(RecordReading, TheHeaderOfAMergedFileIsItsOwn) {
  RecordInfo info;
  ASSERT_TRUE(GetRecordInfo(Put("a", Text("{'merged_actions': [{'info': {'package_name': 'item'}, 'actions': []}],"
                                          " 'info': {'package_name': 'whole'}}")),
                            &info));
  EXPECT_EQ("whole", info.package_name.toStdString());
}

// ---- What is refused ----

TEST_F(RecordReading, EveryReaderRefusesInItsWay) {
  const char* const names = "{'package':'P','app':'A'}";
  const QByteArray marker =
      QByteArray("{'type': 'vcontrol', 'data': '{\\'params\\':") + QByteArray(names).replace("'", "\\'") + "}'}";
  const QByteArray list = "'actions': [" + marker + "]";
  const QByteArray info = "'info': {'package_name': 'p'}";
  const QByteArray item = "{" + list + "}";
  const struct {
    const char* name;
    QByteArray json;
    bool info;
    bool load;
    bool names;
  } rows[] = {
      {"good", "{" + info + ", " + list + "}", true, true, true},
      {"good and merged", "{" + info + ", 'merged_actions': [" + item + "]}", true, true, true},
      {"empty file", "", false, false, false},
      {"blanks", " \n ", false, false, false},
      {"cut off", "{" + info + ", " + list, false, false, false},
      {"more behind the end", "{" + info + ", " + list + "} x", false, false, false},
      {"no JSON", "hello", false, false, false},
      {"root is an array", "[{" + info + ", " + list + "}]", false, false, false},
      {"root is null", "null", false, false, false},
      {"root is text", "'text'", false, false, false},
      {"root is an empty object", "{}", false, false, false},
      {"info missing", "{" + list + "}", false, false, true},
      {"info empty", "{'info': {}, " + list + "}", false, false, true},
      {"info null", "{'info': null, " + list + "}", false, false, true},
      {"info an array", "{'info': [{'package_name': 'p'}], " + list + "}", false, false, true},
      {"info text", "{'info': 'p', " + list + "}", false, false, true},
      {"info with unknown keys only", "{'info': {'x': 1}, " + list + "}", true, true, true},
      {"no list", "{" + info + "}", true, false, false},
      {"merged list empty", "{" + info + ", 'merged_actions': []}", true, false, false},
      {"merged list no array", "{" + info + ", 'merged_actions': " + item + "}", true, false, false},
      {"merged list null", "{" + info + ", 'merged_actions': null}", true, false, false},
      {"first item without a list", "{" + info + ", 'merged_actions': [{'control': {}}, " + item + "]}", true, false,
       false},
      {"first item no object", "{" + info + ", 'merged_actions': [7, " + item + "]}", true, false, false},
      {"second item without a list", "{" + info + ", 'merged_actions': [" + item + ", {}]}", true, false, true},
      {"item with an empty list in it", "{" + info + ", 'merged_actions': [" + item + ", {'merged_actions': []}]}",
       true, false, true},
  };
  for (const auto& row : rows) {
    const QString file = Put("row.json", Text(row.json));
    RecordInfo header{"untouched", QSize(1, 2), 3, 4};
    EXPECT_EQ(row.info, GetRecordInfo(file, &header)) << row.name;
    if (!row.info) {
      EXPECT_EQ("untouched", header.package_name.toStdString()) << row.name;
      EXPECT_EQ(QSize(1, 2), header.resolution) << row.name;
    }

    ReplayContext context;
    EXPECT_EQ(row.load, Utils()->LoadRecord(file, &context)) << row.name;
    EXPECT_EQ(row.load, context.actions != nullptr) << row.name;

    QString app = "old app", package = "old package";
    GetScriptAppAndPackage(file, app, package);
    EXPECT_EQ(row.names ? "A" : "old app", app.toStdString()) << row.name;
    EXPECT_EQ(row.names ? "P" : "old package", package.toStdString()) << row.name;
  }
}

TEST_F(RecordReading, AFileThatIsNotThereIsRefused) {
  for (const QString& file : {Path("none.json"), Path("."), Path("none/none.json"), QString()}) {
    RecordInfo info{"untouched", {}, 0, 0};
    EXPECT_FALSE(GetRecordInfo(file, &info)) << file.toStdString();
    EXPECT_EQ("untouched", info.package_name.toStdString());
    ReplayContext context;
    EXPECT_FALSE(Utils()->LoadRecord(file, &context)) << file.toStdString();
    QString app = "a", package = "p";
    GetScriptAppAndPackage(file, app, package);
    EXPECT_EQ("a p", (app + ' ' + package).toStdString()) << file.toStdString();
  }
}

TEST_F(RecordReading, AnEmptyListLoadsAndPlaysNothing) {
  EXPECT_NOTHING_PLAYED("{'info': {'a': 1}, 'actions': []}");
  EXPECT_NOTHING_PLAYED("{'info': {'a': 1}, 'merged_actions': [{'actions': []}, {'actions': []}]}");
}

// The file itself, its list and an action are 3 levels, each merged list around them 2 more: 3 + 2 * 510 = 1023.
TEST_F(RecordReading, PartsAreNestedUpTo510Deep) {
  const auto nested = [](int lists) {
    const QByteArray json = QByteArray("{'merged_actions': [").repeated(lists) +
                            "{'actions': [{'type': 'touch', 'data': 'a'}]}" + QByteArray("]}").repeated(lists);
    return Text("{'info': {'a': 1}," + json.mid(1));
  };
  ReplayContext context;
  ASSERT_TRUE(Utils()->LoadRecord(Put("deep.json", nested(510)), &context));
  EXPECT_STEPS(context.actions.get(), "0 a");
  for (const int lists : {511, 20000}) {
    EXPECT_FALSE(Utils()->LoadRecord(Put("deep.json", nested(lists)), &context)) << lists;
  }
}

// Even if the nested value is ignored: 1024 levels are valid, including the root, and one more is not.
TEST_F(RecordReading, NestingIsReadToItsLimitByAllReaders) {
  for (const auto nested : {NestedLists, NestedObjects, NestedByTurns}) {
    const auto file_of = [&](int levels) {
      return Put("deep.json", Text("{'info':{'package_name':'p'},'n':") + nested(levels - 1) +
                                  Text(",'actions':[{'data':'{\\'params\\':{\\'app\\':\\'A\\'}}'}]}"));
    };
    const auto what_is_read = [&](const QString& file) {
      RecordInfo info;
      ReplayContext context;
      QString app, package;
      MergeParam source;
      source.file_name = file;
      GetScriptAppAndPackage(file, app, package);
      return QStringLiteral("%1 %2 %3 %4 %5")
          .arg(Utils()->LoadJsonObject(file).size())
          .arg(GetRecordInfo(file, &info))
          .arg(Utils()->LoadRecord(file, &context))
          .arg(MergeRecord(Path("merged.json"), {source}))
          .arg(app)
          .toStdString();
    };
    EXPECT_EQ("3 1 1 1 A", what_is_read(file_of(1023)));
    EXPECT_EQ("3 1 1 1 A", what_is_read(file_of(1024)));
    EXPECT_EQ("0 0 0 0 ", what_is_read(file_of(1025)));
  }
}

}  // namespace
}  // namespace taviinputmanager
