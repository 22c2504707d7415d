#include "host/record/record_file.h"

#include <gtest/gtest.h>

#include "tests/host/record/record_text.h"

namespace tavi {
namespace {

// As the program prints them, for a file named "f".
QString FindingsOf(const QByteArray& text) { return FormatFindings(QStringLiteral("f"), ReadRecordText(text)); }

TEST(RecordFile, ReadsASingleRecord) {
  const RecordFile record =
      ReadRecordText(WithHeader(R"~("control": {"repeat_times": 2, "speed_ratio": 0.5}, "actions": [
      {"timing": 5, "type": "touch", "data": "press_rel:(0.5,0.25)", "extra1": "3", "extra2": ""}])~"));
  EXPECT_EQ(record.findings.size(), 0);
  EXPECT_FALSE(record.root.is_merged);
  EXPECT_EQ(record.root.control.repeat_times, 2);
  EXPECT_EQ(record.root.control.speed_ratio, 0.5);
  ASSERT_EQ(record.root.actions.size(), 1U);
  const RecordAction& action = record.root.actions.front();
  EXPECT_EQ(action.timing, 5);
  EXPECT_EQ(action.type, QStringLiteral("touch"));
  EXPECT_EQ(action.data, QStringLiteral("press_rel:(0.5,0.25)"));
  EXPECT_EQ(action.extra1, QStringLiteral("3"));
}

TEST(RecordFile, ReadsPartsWithinParts) {
  const RecordFile record = ReadRecordText(WithHeader(R"("merged_actions": [
      {"control": {"file_name": "a", "repeat_delay": 7, "till_next_item_delay": 8},
       "merged_actions": [{"actions": [{"type": "vcontrol", "data": "first"}]}]},
      {"actions": []}])"));
  EXPECT_EQ(record.findings.size(), 0);
  ASSERT_TRUE(record.root.is_merged);
  ASSERT_EQ(record.root.parts.size(), 2U);
  const RecordPart& first = record.root.parts.front();
  EXPECT_EQ(first.control.file_name, QStringLiteral("a"));
  EXPECT_EQ(first.control.repeat_delay, 7);
  EXPECT_EQ(first.control.till_next_item_delay, 8);
  ASSERT_NE(FirstAction(record.root), nullptr);
  EXPECT_EQ(FirstAction(record.root)->data, QStringLiteral("first"));
}

// The lines and columns are counted by hand. A column is a character, not a byte: é and the emoji are one each.
TEST(RecordFile, TellsWhereJsonIsBroken) {
  EXPECT_TRUE(FindingsOf("{\n  \"info\": x\n}").startsWith("f:2:11: error: broken JSON: "));
  EXPECT_TRUE(FindingsOf("{\"\xc3\xa9\xf0\x9f\x98\x80\": x}").startsWith("f:1:8: error: broken JSON: "));
  EXPECT_TRUE(FindingsOf("").startsWith("f:1:1: error: broken JSON: "));
}

// The file is one level, so a list of 1023 in it makes 1024.
TEST(RecordFile, ReadsAsManyLevelsAsAReplayDoes) {
  const auto findings_of = [](int levels) {
    return FindingsOf(WithActions("").replace(
        "\"info\"", "\"n\": " + QByteArray(levels - 1, '[') + QByteArray(levels - 1, ']') + ", \"info\""));
  };
  EXPECT_EQ(findings_of(1024), QStringLiteral("f: warning: n: ignored: there is no such key here\n"));
  EXPECT_TRUE(findings_of(1025).startsWith("f:1:1031: error: broken JSON: ")) << findings_of(1025).toStdString();
}

TEST(RecordFile, RefusesWhatCannotBePlayed) {
  const struct {
    const char* name;
    QByteArray text;
    const char* finding;
  } rows[] = {
      {"a list", "[]", "f: error: not a record: the file holds a list\n"},
      {"no header", R"({"actions": []})", "f: error: info: missing\n"},
      {"a header of a wrong kind", R"({"info": 5, "actions": []})",
       "f: error: info: a number where an object belongs\n"},
      {"a header with nothing in it", R"({"info": {}, "actions": []})", "f: error: info: empty\n"},
      {"no list", WithHeader(R"("action": [])"),
       "f: error: not a record: it has neither \"actions\" nor \"merged_actions\"\n"},
      {"no part", WithHeader(R"("merged_actions": [])"),
       "f: error: merged_actions: empty: a merged record needs a part to play\n"},
      {"parts that are no list", WithHeader(R"("merged_actions": true)"),
       "f: error: merged_actions: true or false where a list belongs\n"},
      {"a part without list, deep down",
       WithHeader(R"("merged_actions": [{"actions": [{"type": "vcontrol", "data": "a"}]}, {"merged_actions": [7]}])"),
       "f: error: merged_actions[1].merged_actions[0]: it has neither \"actions\" nor \"merged_actions\"\n"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const RecordFile record = ReadRecordText(row.text);
    EXPECT_TRUE(record.HasErrors());
    EXPECT_EQ(FormatFindings("f", record), QLatin1String(row.finding));
  }
}

TEST(RecordFile, RefusesWhatIsNoFile) {
  EXPECT_TRUE(FormatFindings("none", ReadRecordFile("/none")).startsWith("none: error: cannot be read: "));
  EXPECT_EQ(FormatFindings("d", ReadRecordFile("/")), QStringLiteral("d: error: cannot be read: it is a folder\n"));
}

TEST(RecordFile, WarnsOfWhatReadsAsSomethingElse) {
  const struct {
    const char* name;
    const char* action;
    const char* finding;
  } rows[] = {
      {"a time with a fraction", R"({"timing": 16.7, "type": "vcontrol", "data": "a"})",
       "actions[1].timing: a number with a fraction reads as 0"},
      {"a time beyond all timers", R"({"timing": 2147483648, "type": "vcontrol", "data": "a"})",
       "actions[1].timing: a number beyond 32 bits reads as 0"},
      {"a time in quotes", R"({"timing": "16", "type": "vcontrol", "data": "a"})",
       "actions[1].timing: a text where a number belongs; ignored"},
      {"a time back", R"({"timing": -1, "type": "vcontrol", "data": "a"})",
       "actions[1].timing: a value below 0 waits like 0"},
      {"a key of another name", R"({"type": "vcontrol", "data": "a", "extra": ""})",
       "actions[1].extra: ignored: there is no such key here"},
      {"no action", R"("touch")", "actions[1]: a text where an action belongs; the replay ends here"},
      {"no type", R"({"data": "a"})", "actions[1]: type: empty; the replay ends here"},
      {"another type", R"({"type": "swipe"})", "actions[1]: type: \"swipe\" is unknown; the action is a pause"},
      {"another touch", R"({"type": "touch", "data": "tap"})",
       "actions[1]: data: \"tap\" is not a command of this type; dropped"},
      {"a point without brackets", R"({"type": "touch", "data": "press_rel:0.5,0.5", "extra1": "1"})",
       "actions[1]: data: \"0.5,0.5\" is not a point such as (0.5,0.25); dropped"},
      {"the corner", R"~({"type": "touch", "data": "press_rel:(0,0)", "extra1": "1"})~",
       "actions[1]: data: (0,0) is not a valid point; dropped"},
      {"half a point", R"~({"type": "touch", "data": "press_rel:(a,0.5)", "extra1": "1"})~",
       "actions[1]: data: a coordinate of \"(a,0.5)\" is not a number and reads as 0"},
      {"a finger without number", R"({"type": "touch", "data": "release"})",
       "actions[1]: extra1: \"\" is not a whole number and reads as 0"},
      {"more points than fingers",
       R"~({"type": "touch", "data": "press_multi_rel:(0.1,0.1):(0.2,0.2)", "extra1": "1"})~",
       "actions[1]: data: 2 points and 1 slots in extra1; dropped"},
      {"no fingers to lift", R"({"type": "touch", "data": "release_multi"})", "actions[1]: extra1: no slots; dropped"},
      {"a key without code", R"({"type": "keyboard", "data": "keyboard_press:A"})",
       "actions[1]: data: \"A\" is not a whole number and reads as 0"},
      {"a key of two codes", R"({"type": "keyboard", "data": "keyboard_press:1:2"})",
       "actions[1]: data: \"keyboard_press:1:2\" is not a command of this type; dropped"},
      {"a move to nowhere", R"({"type": "mouse", "data": "move"})",
       "actions[1]: data: \"move\" is not a command of this type; dropped"},
      {"a text without text", R"({"type": "input_method", "data": "text_inject"})",
       "actions[1]: data: \"text_inject\" is not a command of this type; dropped"},
      {"a gamepad that says nothing", R"({"type": "joystick"})", "actions[1]: data: empty; dropped"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const RecordFile record = ReadRecordText(WithActions(row.action));
    EXPECT_FALSE(record.HasErrors());
    EXPECT_EQ(FormatFindings("f", record), "f: warning: " + QString::fromLatin1(row.finding) + "\n");
  }
}

TEST(RecordFile, HasNothingToSayAboutGoodActions) {
  for (const char* action : {
           R"~({"timing": 3, "type": "touch", "data": "press_rel:(1e-05,1)", "extra1": "11", "extra2": ""})~",
           R"~({"type": "touch", "data": "press_multi_rel:(0.1,0.1):(0.2,0.2)", "extra1": "18:19"})~",
           R"~({"type": "touch", "data": "release_multi", "extra1": "18:19"})~",
           R"~({"type": "touch", "data": "reset"})~",
           R"~({"type": "keyboard", "data": "keyboard_release:30"})~",
           R"~({"type": "mouse", "data": "wheel:(-0.1,0)"})~",
           R"~({"type": "joystick", "data": "GPDBUTTON:304:1"})~",
           R"~({"type": "input_method", "data": "text_control:ENTER"})~",
       }) {
    EXPECT_EQ(FindingsOf(WithActions(action)), QString()) << action;
  }
}

TEST(RecordFile, WarnsOfControlsThatDoNotSayWhatTheyMean) {
  const QByteArray text =
      WithHeader(QByteArray(R"("merged_actions": [{"control": {"repeat_times": 2.5, "speed_ratio": 0,
      "speed": 2}, "actions": [)") +
                 kMarker + R"(]}], "control": 7)");
  EXPECT_EQ(FindingsOf(text),
            QStringLiteral("f: warning: control: a number where an object belongs; reads as none\n"
                           "f: warning: merged_actions[0].control.repeat_times: a number with a fraction reads as 0\n"
                           "f: warning: merged_actions[0].control.speed: ignored: there is no such key here\n"
                           "f: warning: merged_actions[0].control.repeat_times: below 1 plays once\n"
                           "f: warning: merged_actions[0].control.speed_ratio: not above 0; plays at speed 1\n"));
}

TEST(RecordFile, WarnsOfListsThatAreNotPlayed) {
  EXPECT_EQ(FindingsOf(WithHeader(QByteArray(R"("merged_actions": [], "actions": [)") + kMarker + "]")),
            QStringLiteral("f: warning: merged_actions: ignored because there is \"actions\" beside it\n"));
  EXPECT_TRUE(FindingsOf(WithHeader(R"("actions": 7)"))
                  .startsWith("f: warning: actions: a number where a list belongs; plays nothing\n"));
}

// Asking the library for the app of such a file would never return.
TEST(RecordFile, WarnsWhenThereIsNoStartMarker) {
  const QString warning =
      "f: warning: the first action has no data; a host that reads the app of this file will hang\n";
  EXPECT_EQ(FindingsOf(WithHeader(R"("actions": [])")), warning);
  EXPECT_EQ(FindingsOf(WithHeader(R"("merged_actions": [{"actions": []}])")), warning);
  EXPECT_EQ(FindingsOf(WithHeader(R"("actions": [{"type": "vcontrol"}])")), warning);
}

TEST(RecordFile, TellsOfTheFirstFortyFindings) {
  QByteArray actions = R"({"type": "vcontrol", "data": "a", "timing": 0.5})";
  for (int i = 1; i < 45; ++i) actions += R"(, {"type": "vcontrol", "data": "a", "timing": 0.5})";
  const QString text = FindingsOf(WithActions(actions));
  EXPECT_EQ(text.count("warning: "), 40);
  EXPECT_TRUE(text.endsWith("\nf: and 5 more\n"));
}

}  // namespace
}  // namespace tavi
