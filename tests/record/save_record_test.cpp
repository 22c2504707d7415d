// How a recording is written, and whether it is saved at all.
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QRect>

#include "host/simulation/virtual_event_dispatcher.h"
#include "record/record_action.h"
#include "record/record_file_utils.h"
#include "record/replay_context.h"
#include "tests/record/record_files.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

// The caller keeps its list.
class Recording {
 public:
  explicit Recording(std::initializer_list<RecordAction> actions) {
    for (const RecordAction& action : actions) actions_.append(new RecordAction(action));
  }
  Recording(const Recording&) = delete;
  Recording& operator=(const Recording&) = delete;
  ~Recording() { qDeleteAll(actions_); }
  const QList<RecordAction*>& List() const { return actions_; }

 private:
  QList<RecordAction*> actions_;
};

Recording OneKey(int timing = 0) { return Recording{{timing, "keyboard", "keyboard_press:30", "", ""}}; }

class SaveRecord : public Story, protected RecordFiles {
 protected:
  int Save(const Recording& recording, const QString& file) {
    return Utils()->SaveRecord("com.example.game", file, recording.List());
  }
};

TEST_F(SaveRecord, OnlySomeActionsAreWorthAFile) {
  const struct {
    const char* name;
    RecordAction action;
    bool worth;
  } rows[] = {
      {"a host's command marked 1", {0, "vcontrol", "x", "1", ""}, true},
      {"a host's command without a mark, as the start marker", {0, "vcontrol", "x", "", ""}, false},
      {"a host's command marked 0", {0, "vcontrol", "x", "0", ""}, false},
      {"a host's command marked 11", {0, "vcontrol", "x", "11", ""}, false},
      {"a host's command with a 1 elsewhere", {0, "vcontrol", "1", "", "1"}, false},
      {"a press", {0, "touch", "press_rel:(0.5,0.5)", "2", ""}, true},
      {"a press of several", {0, "touch", "press_multi_rel:(0.5,0.5)", "2", ""}, true},
      {"a release", {0, "touch", "release", "2", ""}, false},
      {"a release of several", {0, "touch", "release_multi", "2:3", ""}, false},
      {"a reset", {0, "touch", "reset", "", ""}, false},
      {"a touch with release somewhere", {0, "touch", "press_rel_and_release", "", ""}, false},
      {"a touch with reset somewhere", {0, "touch", "no reset", "", ""}, false},
      {"a touch in other letters", {0, "touch", "RELEASE Reset", "", ""}, true},
      {"a touch without data", {0, "touch", "", "", ""}, true},
      {"a touch with the word as an extra", {0, "touch", "press_rel:(0,0)", "release", "reset"}, true},
      {"a key", {0, "keyboard", "keyboard_press:30", "", ""}, true},
      {"a key that goes up", {0, "keyboard", "keyboard_release:30", "", ""}, true},
      {"a mouse move", {0, "mouse", "move:(0.5,0.5)", "", ""}, true},
      {"a gamepad line", {0, "joystick", "GPDBUTTON:0:1:1", "", ""}, true},
      {"a text", {0, "input_method", "text_inject:reset", "", ""}, true},
      {"a type of nobody", {0, "x", "release", "", ""}, true},
      {"types are case-sensitive", {0, "Touch", "release", "", ""}, true},
  };
  for (const auto& row : rows) {
    const QString file = Put("record.json", "before");
    EXPECT_EQ(row.worth ? 0 : 1, Save(Recording{row.action}, file)) << row.name;
    EXPECT_EQ(!row.worth, Bytes(file) == "before") << row.name;
  }
}

TEST_F(SaveRecord, OneThatIsWorthItIsEnough) {
  const RecordAction marker{0, "vcontrol", "{}", "", ""};
  const RecordAction press{0, "touch", "press_rel:(0.5,0.5)", "2", ""};
  const RecordAction release{0, "touch", "release", "2", ""};
  EXPECT_EQ(0, Save(Recording{marker, press, release}, Path("a.json")));
  EXPECT_EQ(0, Save(Recording{press, marker}, Path("b.json")));
  EXPECT_EQ(1, Save(Recording{marker, release, release}, Path("c.json")));
  EXPECT_EQ("a.json b.json", Names().join(' ').toStdString()) << "nothing worth saving makes no file";
}

TEST_F(SaveRecord, AnEmptyListIsNotWorthAFile) {
  const QString file = Put("record.json", "before");
  EXPECT_EQ(1, Save(Recording{}, file));
  EXPECT_EQ("before", Bytes(file));
  EXPECT_EQ(1, Save(Recording{}, Path("none.json")));
  EXPECT_EQ(1, Save(Recording{}, Path("none/none.json"))) << "the target is not even tried";
  EXPECT_EQ("record.json", Names().join(' ').toStdString());
}

TEST_F(SaveRecord, ATargetThatCannotBeOpenedIsResultTwo) {
  for (const QString& file : {Path("none/record.json"), Path("."), QString()}) {
    EXPECT_EQ(2, Save(OneKey(), file)) << file.toStdString();
  }
  EXPECT_EQ("", Names().join(' ').toStdString());
}

TEST_F(SaveRecord, WritesHeaderAndActions) {
  Wait(250);
  const Recording recording{{10, "vcontrol", "{}", "1", "two"}, {20, "touch", "release", "3", ""}};
  ASSERT_EQ(0, Save(recording, Path("record.json")));
  const qint64 now = tavi::VirtualEventDispatcher::kDefaultStartMs + 250;
  EXPECT_EQ(now, Time().NowMs());
  EXPECT_EQ(
      Compact(Json("{'info': {'package_name': 'com.example.game', 'resolution_x': 1280, 'resolution_y': 720,"
                   "  'create_time': 1577836800250, 'total_running_time': 30},"
                   " 'actions': [{'timing': 10, 'type': 'vcontrol', 'data': '{}', 'extra1': '1', 'extra2': 'two'},"
                   "  {'timing': 20, 'type': 'touch', 'data': 'release', 'extra1': '3', 'extra2': ''}]}")),
      Compact(JsonOf(Path("record.json"))))
      << "no control, and all five keys of an action, also when they are empty";
}

TEST_F(SaveRecord, TheResolutionIsThatOfTheGuestDisplay) {
  Host().display = QRect(100, 50, 720, 1600);
  ASSERT_EQ(0, Save(OneKey(), Path("record.json")));
  const QJsonObject info = JsonOf(Path("record.json")).value("info").toObject();
  EXPECT_EQ(720, info.value("resolution_x").toInt());
  EXPECT_EQ(1600, info.value("resolution_y").toInt());
}

// Without a story there is no host, and so the display is unknown.
TEST(SaveRecordWithoutHost, TheResolutionIsTheUsualOne) {
  class Files : public RecordFiles {
   public:
    QJsonObject Saved() {
      EXPECT_EQ(0, Utils()->SaveRecord("p", Path("record.json"), OneKey().List()));
      return JsonOf(Path("record.json"));
    }
  } files;
  const QJsonObject info = files.Saved().value("info").toObject();
  EXPECT_EQ(1280, info.value("resolution_x").toInt());
  EXPECT_EQ(720, info.value("resolution_y").toInt());
}

TEST_F(SaveRecord, TheTotalIsASumOf64Bits) {
  ASSERT_EQ(0, Save(Recording{{2000000000, "keyboard", "a", "", ""},
                              {2000000000, "keyboard", "b", "", ""},
                              {2000000000, "keyboard", "c", "", ""}},
                    Path("record.json")));
  RecordInfo info;
  ASSERT_TRUE(Utils()->GetRecordInfo(Path("record.json"), &info));
  EXPECT_EQ(6000000000U, info.total_running_time);
}

TEST_F(SaveRecord, TheTotalOfAClockThatWasSetBackIsBelowZero) {
  ASSERT_EQ(0, Save(OneKey(-5), Path("record.json")));
  EXPECT_EQ(-5, JsonOf(Path("record.json")).value("info").toObject().value("total_running_time").toInt());
}

TEST_F(SaveRecord, IsIndentedUtf8WithoutAByteOrderMark) {
  Recording recording{{0, "input_method", QString::fromUtf8("text_inject:\xe4\xbd\xa0\"\\\n\xf0\x9f\x98\x80"), "", ""}};
  ASSERT_EQ(0, Utils()->SaveRecord(QString::fromUtf8("\xd0\xb8"), Path("record.json"), recording.List()));
  // Keys in ascending order, four columns per level, as this library writes.
  EXPECT_EQ(
      "{\n"
      "    \"actions\": [\n"
      "        {\n"
      "            \"data\": \"text_inject:\xe4\xbd\xa0\\\"\\\\\\n\xf0\x9f\x98\x80\",\n"
      "            \"extra1\": \"\",\n"
      "            \"extra2\": \"\",\n"
      "            \"timing\": 0,\n"
      "            \"type\": \"input_method\"\n"
      "        }\n"
      "    ],\n"
      "    \"info\": {\n"
      "        \"create_time\": 1577836800000,\n"
      "        \"package_name\": \"\xd0\xb8\",\n"
      "        \"resolution_x\": 1280,\n"
      "        \"resolution_y\": 720,\n"
      "        \"total_running_time\": 0\n"
      "    }\n"
      "}\n",
      Bytes(Path("record.json")).toStdString());
}

TEST_F(SaveRecord, IsReadBackAsItWas) {
  const QString text = QString::fromUtf8("\xe4\xbd\xa0 \t\"'\\/\x01\xf0\x9f\x98\x80");
  ASSERT_EQ(0, Save(Recording{{-2147483647 - 1, "x", text, text, text}, {2147483647, "y", "", "", ""}}, Path("a")));
  ReplayContext context;
  ASSERT_TRUE(Utils()->LoadRecord(Path("a"), &context));
  const auto* single = static_cast<SingleRecordActions*>(context.actions.get());
  ASSERT_EQ(2, single->actions.size());
  EXPECT_EQ(-2147483647 - 1, single->actions.first()->timing);
  EXPECT_EQ(text, single->actions.first()->data);
  EXPECT_EQ(text, single->actions.first()->extra1);
  EXPECT_EQ(text, single->actions.first()->extra2);
  EXPECT_EQ(2147483647, single->actions.last()->timing);
}

TEST_F(SaveRecord, ALongerFileOfThatNameLeavesNothingBehind) {
  const QString file = Put("record.json", QByteArray(100000, 'x'));
  ASSERT_EQ(0, Save(OneKey(), file));
  EXPECT_EQ(1, JsonOf(file).value("actions").toArray().size());
}

}  // namespace
}  // namespace taviinputmanager
