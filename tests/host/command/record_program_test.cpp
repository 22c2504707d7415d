// `tavi record`, and records made by `tavi simulate`, as users start them.
#include <memory>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>
#include <QSemaphore>
#include <QThread>
#include <QXmlStreamReader>

#include "tests/host/record/record_text.h"
#include "tests/support/program.h"
#include "tests/support/system/full_disk.h"

namespace tavi {
namespace {

class RecordProgram : public Program {
 protected:
  QJsonObject Json(const QString& name) { return QJsonDocument::fromJson(Content(name)).object(); }

  // Taps the middle of the display: down at 40 ms, up 80 ms later.
  void WriteTap(const QString& name, const char* resolution = "") {
    const QByteArray text = QByteArray(R"({"info": {"package_name": "com.example.game", "total_running_time": 120)") +
                            resolution + R"~(}, "actions": [
      {"timing": 0, "type": "vcontrol", "data": "{\"cmd\":\"detect_app\",\"params\":{\"app\":\"Game\",\"package\":\"com.example.game\"}}"},
      {"timing": 40, "type": "touch", "data": "press_rel:(0.5,0.5)", "extra1": "11"},
      {"timing": 80, "type": "touch", "data": "release", "extra1": "11"}]
  })~";
    Write(name, text.constData());
  }

  // The lines that contain `part`, without the text after it.
  static QStringList Lines(const QString& output, const QString& part) { return output.split('\n').filter(part); }
};

constexpr char kKeymap[] =
    "format: 1\n"
    "items:\n"
    "  - {type: Click, key: Space, point: [0.5, 0.5]}\n";

TEST_F(RecordProgram, RefusesWhatItDoesNotKnow) {
  const struct {
    const char* name;
    QStringList arguments;
    const char* error;
  } rows[] = {
      {"no word", {"record"}, "tavi record: expected info, play, merge or draw\nTry \"tavi record --help\".\n"},
      {"another word",
       {"record", "paly"},
       "tavi record: expected info, play, merge or draw, found \"paly\"; did you mean \"play\"?\nTry \"tavi record "
       "--help\".\n"},
      {"info of nothing",
       {"record", "info"},
       "tavi record info: a record is missing\nTry \"tavi record info --help\".\n"},
      {"play of two",
       {"record", "play", "a", "b"},
       "tavi record play: one record is needed\nTry \"tavi record play --help\".\n"},
      {"play at no speed",
       {"record", "play", "a", "--speed", "0"},
       "tavi record play: --speed needs a number above 0, not \"0\"\nTry \"tavi record play --help\".\n"},
      {"play for no display",
       {"record", "play", "a", "--size", "big"},
       "tavi record play: --size needs a size such as 1280x720, not \"big\"\nTry \"tavi record play --help\".\n"},
      {"play for no guest",
       {"record", "play", "a", "--live", "--guest", "big"},
       "tavi record play: --guest: a guest is exec:COMMAND, unix:PATH, tcp:HOST:PORT or uinput, not \"big\"\nTry "
       "\"tavi record play --help\".\n"},
      {"play for a guest without time",
       {"record", "play", "a", "--guest", "tcp:localhost:7000"},
       "tavi record play: --guest needs --live\nTry \"tavi record play --help\".\n"},
      {"merge without target",
       {"record", "merge", "a"},
       "tavi record merge: -o FILE is missing\nTry \"tavi record merge --help\".\n"},
      {"draw without target",
       {"record", "draw", "a"},
       "tavi record draw: -o FILE is missing\nTry \"tavi record draw --help\".\n"},
      {"draw of nothing",
       {"record", "draw", "-o", "a.svg"},
       "tavi record draw: one record is needed\nTry \"tavi record draw --help\".\n"},
      {"a record without name",
       {"simulate", "--record", "", "a", "b"},
       "tavi simulate: the name of the record is empty\nTry \"tavi simulate --help\".\n"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const Outcome outcome = Run(row.arguments);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, QString());
    EXPECT_EQ(outcome.errors, QLatin1String(row.error));
  }
  EXPECT_TRUE(Run({"record", "play", "--help"}).output.startsWith("tavi record play - "));
}

TEST_F(RecordProgram, NothingIsDoneWithABrokenFile) {
  Write("bad.json", "{\n  \"info\": x\n}");
  WriteTap("good.json");
  for (const QStringList& arguments :
       {QStringList{"play", "bad.json"}, QStringList{"merge", "-o", "out.json", "good.json", "bad.json"},
        QStringList{"draw", "-o", "out.json", "bad.json"}}) {
    SCOPED_TRACE(arguments.first().toStdString());
    const Outcome outcome = Run(QStringList("record") + arguments);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, QString());
    EXPECT_TRUE(outcome.errors.startsWith("bad.json:2:11: error: broken JSON: ")) << outcome.errors.toStdString();
    EXPECT_FALSE(Has("out.json"));
  }
}

TEST_F(RecordProgram, InfoTellsAboutARecord) {
  WriteTap("tap.json", R"(, "resolution_x": 1280, "resolution_y": 720, "create_time": 1577836800000)");
  const Outcome outcome = Run({"record", "info", "tap.json"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.errors, QString());
  EXPECT_EQ(outcome.output, QStringLiteral("tap.json\n"
                                           "  kind          single record\n"
                                           "  app           Game (com.example.game)\n"
                                           "  package       com.example.game\n"
                                           "  display       1280 x 720\n"
                                           "  created       2020-01-01 00:00:00 UTC\n"
                                           "  header says   0.120 s\n"
                                           "  plays         0.120 s for 3 actions\n"
                                           "  actions       3 (2 touch, 1 vcontrol)\n"));
}

// Each tap takes 120 ms. The inner merged record: 120 + 120 = 240, played twice with 60 between: 540, at speed 2:
// 270.
TEST_F(RecordProgram, InfoTellsTheLevelsOfAMergedRecord) {
  WriteTap("tap.json");
  ASSERT_EQ(Run({"record", "merge", "-o", "two.json", "tap.json", "tap.json"}).status, 0);
  ASSERT_EQ(
      Run({"record", "merge", "-o", "all.json", "two.json", "--times", "2", "--delay", "60", "--speed", "2"}).status,
      0);
  const QString output = Run({"record", "info", "all.json"}).output;
  EXPECT_EQ(Lines(output, "kind"), QStringList{"  kind          merged record of 1 part, 2 levels"});
  EXPECT_EQ(Lines(output, "app  "), QStringList{"  app           Game (com.example.game)"});
  EXPECT_EQ(Lines(output, "says"), QStringList{"  header says   0.270 s"});
  EXPECT_EQ(Lines(output, "plays"), QStringList{"  plays         0.270 s for 12 actions"});
  EXPECT_EQ(Lines(output, "two.json"),
            QStringList{"    1. two.json: 6 (4 touch, 2 vcontrol) actions, 2 times with pauses of 60 ms, speed 2"});
  EXPECT_EQ(Lines(output, "tap.json"), (QStringList{"       1. tap.json: 3 (2 touch, 1 vcontrol) actions",
                                                    "       2. tap.json: 3 (2 touch, 1 vcontrol) actions"}));
}

TEST_F(RecordProgram, InfoDoesNotGoDownForEver) {
  QByteArray list = QByteArray(R"("actions": [)") + kMarker + "]";
  for (int level = 0; level < 100; ++level) list = R"("merged_actions": [{)" + list + "}]";
  Write("deep.json", WithHeader(list).constData());
  const QString output = Run({"record", "info", "deep.json"}).output;
  EXPECT_EQ(Lines(output, "kind"), QStringList{"  kind          merged record of 1 part, 100 levels"});
  EXPECT_TRUE(output.endsWith(" ...\n"));
  EXPECT_LT(output.count('\n'), 30);
}

// The library would search for the start marker of the first two endlessly.
TEST_F(RecordProgram, InfoWarnsAndGoesOn) {
  Write("empty.json", WithHeader(R"("actions": [])").constData());
  Write("bare.json", WithHeader(R"("actions": [{"type": "touch"}])").constData());
  WriteTap("tap.json");
  const Outcome outcome = Run({"record", "info", "empty.json", "bare.json", "none.json", "tap.json"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(Lines(outcome.output, "app  ").size(), 3);
  EXPECT_EQ(Lines(outcome.output, "app  ").first(), QStringLiteral("  app           -"));
  EXPECT_TRUE(outcome.errors.startsWith("empty.json: warning: the first action has no data"));
  EXPECT_TRUE(
      outcome.errors.contains("\nbare.json: warning: actions[0]: data: \"\" is not a command of this type; dropped\n"));
  EXPECT_TRUE(outcome.errors.contains("\nnone.json: error: cannot be read: "));
}

// The record has no display, so it is 1280 x 720. A replay's slots start at 18; at its end all eight are lifted, though
// the last action has lifted the first.
TEST_F(RecordProgram, PlayPrintsTheTimeline) {
  WriteTap("tap.json");
  const Outcome outcome = Run({"record", "play", "tap.json"});
  EXPECT_EQ(outcome.status, 0);
  const QStringList lines = outcome.output.split('\n');
  EXPECT_EQ(lines.mid(0, 3),
            (QStringList{
                "0ms ! replay started",
                R"(0ms ! vcontrol {"cmd":"detect_app","params":{"app":"Game","package":"com.example.game"}})",
                "40ms 1:SLOTPRESS:18:18:1:1:640:360",
            }));
  EXPECT_EQ(Lines(outcome.output, "RELEASE:18").last(), QStringLiteral("120ms 1:SLOTRELEASE:18"));
  EXPECT_TRUE(lines.contains("120ms ! replay finished"));
}

TEST_F(RecordProgram, PlayFitsSpeedAndDisplay) {
  WriteTap("tap.json", R"(, "resolution_x": 2000, "resolution_y": 1000)");
  EXPECT_EQ(Lines(Run({"record", "play", "tap.json"}).output, "PRESS"),
            QStringList{"40ms 1:SLOTPRESS:18:18:1:1:1000:500"});
  // 40 / 4 = 10
  EXPECT_EQ(Lines(Run({"record", "play", "--speed", "4", "--size", "100x60", "tap.json"}).output, "PRESS"),
            QStringList{"10ms 1:SLOTPRESS:18:18:1:1:50:30"});
}

// Each coordinate is up to 2 pixels off.
TEST_F(RecordProgram, PlayMayMissAsAHandDoes) {
  WriteTap("tap.json");
  const QStringList fields =
      Lines(Run({"record", "play", "--emulation", "tap.json"}).output, "PRESS").value(0).split(':');
  ASSERT_EQ(fields.size(), 8);
  EXPECT_NEAR(fields[6].toDouble(), 640, 2);
  EXPECT_NEAR(fields[7].toDouble(), 360, 2);
}

TEST_F(RecordProgram, PlayTellsOfWarningsAndPlays) {
  Write("warned.json", WithActions(R"({"timing": 16.5, "type": "swipe"})").constData());
  const Outcome outcome = Run({"record", "play", "warned.json"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(outcome.errors.startsWith(
      "warned.json: warning: actions[1].timing: a number with a fraction reads as 0\n"
      "warned.json: warning: actions[1]: type: \"swipe\" is unknown; the action is a pause\n"));
  EXPECT_TRUE(outcome.output.contains("replay finished"));
}

TEST_F(RecordProgram, PlayKeepsEachThingOnOneLine) {
  Write("text.json", WithActions(R"({"type": "input_method", "data": "text_inject:a\nb"},
      {"type": "vcontrol", "data": "zoom", "extra1": "1", "extra2": "x"})")
                         .constData());
  const QString output = Run({"record", "play", "text.json"}).output;
  EXPECT_EQ(Lines(output, "TEXT").value(0).section(' ', 1), QStringLiteral("text TEXT:a\\nb"));
  EXPECT_EQ(Lines(output, "zoom").value(0).section(' ', 1), QStringLiteral("! vcontrol zoom | 1 | x"));
}

TEST_F(RecordProgram, PlayOfNothingEndsAtOnce) {
  Write("empty.json", WithHeader(R"("actions": [])").constData());
  const Outcome outcome = Run({"record", "play", "empty.json"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(outcome.output.contains("0ms ! replay finished\n"));
}

// The times depend on the real clock, so only the lines are checked. The end is reported on the replay's own thread.
TEST_F(RecordProgram, PlayRunsOnTheRealClockToo) {
  WriteTap("tap.json");
  const Outcome outcome = Run({"record", "play", "--live", "--speed", "10", "tap.json"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(Lines(outcome.output, "SLOTPRESS:18:18:1:1:640:360").size(), 1);
  EXPECT_EQ(Lines(outcome.output, "replay finished").size(), 1);
}

// The lines of a timeline as the library sent them.
QByteArray SentBytes(const QString& timeline) {
  QByteArray bytes;
  for (QString line : timeline.split('\n', Qt::SkipEmptyParts)) {
    line.remove(0, line.indexOf(' ') + 1);  // the time
    const QString text = QStringLiteral("text ");
    if (line.startsWith("! ")) continue;
    const bool is_text = line.startsWith(text);
    if (is_text) line = line.mid(text.size()).replace("\\n", "\n");
    bytes += line.toUtf8() + (is_text ? '\0' : '\n');
  }
  return bytes;
}

// A guest that takes the lines of one host, while this thread waits for that host.
class Guest {
 public:
  explicit Guest(const QString& path) : thread_(QThread::create([this, path] { Listen(path); })) {
    thread_->start();
    listens_.acquire();
  }
  // After the host has left.
  QByteArray Lines() {
    EXPECT_TRUE(thread_->wait(2 * kLimitMs));
    return lines_;
  }

 private:
  static constexpr int kLimitMs = 30000;

  void Listen(const QString& path) {
    QLocalServer server;
    EXPECT_TRUE(server.listen(path));
    listens_.release();
    if (!server.waitForNewConnection(kLimitMs)) return;
    QLocalSocket* host = server.nextPendingConnection();
    while (host->waitForReadyRead(kLimitMs)) {
    }
    lines_ = host->readAll();
  }

  QSemaphore listens_;
  QByteArray lines_;  // of the thread, until it has ended
  std::unique_ptr<QThread> thread_;
};

TEST_F(RecordProgram, PlaySendsToGuestsWhatItPlays) {
  Write("typed.json", WithActions(R"~({"timing": 40, "type": "touch", "data": "press_rel:(0.5,0.5)", "extra1": "11"},
      {"timing": 80, "type": "touch", "data": "release", "extra1": "11"},
      {"timing": 10, "type": "input_method", "data": "text_inject:a\nb:c"},
      {"timing": 10, "type": "keyboard", "data": "press:42"},
      {"timing": 10, "type": "keyboard", "data": "release:42"},
      {"timing": 100, "type": "pause"})~")
                          .constData());
  const QByteArray expected = SentBytes(Run({"record", "play", "typed.json"}).output);
  ASSERT_TRUE(expected.contains(QByteArray("TEXT:a\nb:c\0", 11))) << expected.toStdString();
  const QString paths[] = {Folder() + "/first", Folder() + "/second"};
  Guest first(paths[0]);
  Guest second(paths[1]);
  const Outcome outcome =
      Run({"record", "play", "--live", "typed.json", "--guest", "unix:" + paths[0], "--guest", "unix:" + paths[1]});
  EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
  EXPECT_EQ(SentBytes(outcome.output), expected);
  EXPECT_EQ(first.Lines(), expected);
  EXPECT_EQ(second.Lines(), expected);
}

TEST_F(RecordProgram, PlayTellsOfAGuestThatIsNotThere) {
  WriteTap("tap.json");
  const Outcome outcome = Run({"record", "play", "--live", "tap.json", "--guest", "unix:none"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.errors, QString("tavi record play: No lines go to unix:none: there is no such socket\n"));
  EXPECT_EQ(Lines(outcome.output, "replay finished").size(), 1);
}

TEST_F(RecordProgram, MergeWritesOneRecord) {
  WriteTap("a b:times=3.json");
  WriteTap("-tap.json");
  const Outcome outcome = Run({"record", "merge", "-o", "out.json", "a b:times=3.json", "--times", "3", "--delay",
                               "500", "--speed", "2", "--gap", "250", "./-tap.json"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output + outcome.errors, QString());
  const QJsonArray parts = Json("out.json")["merged_actions"].toArray();
  ASSERT_EQ(parts.size(), 2);
  const QJsonObject control{{"file_name", "a b:times=3.json"},
                            {"repeat_times", 3},
                            {"repeat_delay", 500},
                            {"speed_ratio", 2},
                            {"till_next_item_delay", 250}};
  EXPECT_EQ(parts[0].toObject()["control"].toObject(), control);
  EXPECT_EQ(parts[1].toObject()["actions"].toArray().size(), 3);
  // (2 x 500 + 3 x 120 + 250) / 2 + 120
  EXPECT_EQ(Json("out.json")["info"].toObject()["total_running_time"].toInt(), 925);
}

TEST_F(RecordProgram, MergeTellsWhenItCannotWrite) {
  WriteTap("tap.json");
  const Outcome outcome = Run({"record", "merge", "-o", "none/out.json", "tap.json"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.errors,
            QStringLiteral("tavi record merge: cannot write none/out.json: No such file or directory\n"));
}

TEST_F(RecordProgram, DrawWritesAPicture) {
  WriteTap("tap.json");
  const Outcome outcome = Run({"record", "draw", "-o", "tap.svg", "tap.json"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output + outcome.errors, QString());
  QXmlStreamReader xml(Content("tap.svg"));
  ASSERT_TRUE(xml.readNextStartElement());
  EXPECT_EQ(xml.name(), QLatin1String("svg"));
  EXPECT_EQ(xml.namespaceUri(), QLatin1String("http://www.w3.org/2000/svg"));
  while (!xml.atEnd()) xml.readNext();
  EXPECT_FALSE(xml.hasError());

  const Outcome failed = Run({"record", "draw", "-o", "none/tap.svg", "tap.json"});
  EXPECT_EQ(failed.status, 1);
  EXPECT_TRUE(failed.errors.startsWith("tavi record draw: cannot write none/tap.svg: "));
}

// A click at 0.5, 0.5 with the first slot of the pool of taps, 11. Lines to another display are not recorded.
TEST_F(RecordProgram, SimulateMakesARecord) {
  Write("keymap.yaml", kKeymap);
  const QByteArray script = "wait 40; down Space; wait 80; up Space; wait 100; back 2\n";
  const Outcome plain = Run({"simulate", "keymap.yaml", "-"}, script);
  const Outcome outcome =
      Run({"simulate", "--record", "tap.json", "--package", "com.example.other", "keymap.yaml", "-"}, script);
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, plain.output);
  EXPECT_EQ(Json("tap.json")["info"].toObject(), (QJsonObject{{"package_name", "com.example.other"},
                                                              {"resolution_x", 1280},
                                                              {"resolution_y", 720},
                                                              {"create_time", 1577836800220.0},
                                                              {"total_running_time", 120}}));
  const QJsonArray actions = Json("tap.json")["actions"].toArray();
  ASSERT_EQ(actions.size(), 3);
  EXPECT_EQ(actions[1].toObject(),
            (QJsonObject{
                {"timing", 40}, {"type", "touch"}, {"data", "press_rel:(0.5,0.5)"}, {"extra1", "11"}, {"extra2", ""}}));
  EXPECT_EQ(Lines(Run({"record", "info", "tap.json"}).output, "app  "),
            QStringList{"  app           com.example.other (com.example.other)"});
}

TEST_F(RecordProgram, SimulateTellsWhenThereIsNoRecord) {
  Write("keymap.yaml", kKeymap);
  const Outcome nothing = Run({"simulate", "--record", "out.json", "keymap.yaml", "-"}, "wait 5\n");
  EXPECT_EQ(nothing.status, 1);
  EXPECT_TRUE(nothing.errors.endsWith("out.json: not saved: there is nothing to record\n"));
  EXPECT_FALSE(Has("out.json"));
  const Outcome nowhere =
      Run({"simulate", "--record", "none/out.json", "keymap.yaml", "-"}, "down Space; wait 1; up Space\n");
  EXPECT_EQ(nowhere.status, 1);
  EXPECT_TRUE(nowhere.errors.endsWith("none/out.json: cannot be written: No such file or directory\n"));
}

// The library reports success then.
TEST_F(RecordProgram, AFullDiskLeavesTheRecordThatWasThere) {
  Write("keymap.yaml", kKeymap);
  Write("tap.json", "before");
  Outcome outcome;
  {
    const FileSizeLimit full(100);
    outcome = Run({"simulate", "--record", "tap.json", "keymap.yaml", "-"}, "down Space; wait 50; up Space\n");
  }
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.errors, QString("tap.json: cannot be written: it was truncated; the disk may be full\n"));
  EXPECT_EQ(Content("tap.json"), QByteArray("before"));
}

TEST_F(RecordProgram, DrawsToStandardOutputAndNoOtherKindOfPicture) {
  WriteTap("tap.json");
  EXPECT_TRUE(Run({"record", "draw", "-o", "-", "tap.json"}).output.contains("<svg"));
  const Outcome png = Run({"record", "draw", "-o", "tap.png", "tap.json"});
  EXPECT_EQ(png.status, 2);
  EXPECT_TRUE(png.errors.startsWith("tavi record draw: -o draws only SVG and needs a name that ends in .svg"))
      << png.errors.toStdString();
  EXPECT_FALSE(Has("tap.png"));
}

}  // namespace
}  // namespace tavi
