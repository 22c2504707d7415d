// A recording is replayed: the same contacts at the same relative positions and times.
#include "keymap/tavikeymapmanager.h"
#include "tests/record/replay_story.h"

namespace taviinputmanager {
namespace {

// A line of the guest.
struct Sent {
  int ms = 0;
  QString word;
  int slot = -1;
  QPointF place;
  QString rest;  // lines that are not contacts
};

Sent Read(const QString& line) {
  const QStringList parts = line.section("ms ", 1).split(':');
  Sent sent;
  sent.ms = line.section("ms ", 0, 0).toInt();
  sent.word = parts.value(1);
  if (!sent.word.startsWith("SLOT")) {
    sent.word = line.section("ms ", 1).section(':', line.contains("text ") ? 0 : 1);
    return sent;
  }
  sent.slot = parts.value(2).toInt();
  sent.place = {parts.value(6).toDouble(), parts.value(7).toDouble()};
  return sent;
}

class ReplayOfRecording : public ReplayStory {
 protected:
  // A walk that turns, a tap, a drag of the mouse, a key and text.
  ReplayOfRecording() {
    auto* walk = Add<tavikeymapmanager::SwipeholdConfigItem>("Swipehold", "", {0.2, 0.7});
    walk->key_up = Key("W");
    walk->key_left = Key("A");
    walk->key_down = Key("S");
    walk->key_right = Key("D");
    Add<tavikeymapmanager::ComposableConfigItem>("Click", "Q", {0.8, 0.6});
    Host().primary_display = 1;
    Load(1);
  }

  void Record() {
    StartRecord("com.example.game", "Example");
    TakeStory();
    Play(
        "wait 100; down W; wait 200; down Q; wait 33; up Q; wait 71; down D; wait 200; up W; wait 50; up D; wait 101;"
        "mouse down left 640,361; wait 17; move 701,333; wait 20; mouse up left 701,333; wait 40");
    OnInputRawEventData("KBDPR:37:1\n", 1);
    Wait(31);
    OnInputRawEventData("KBDRL:37:0\n", 1);
    Play("wait 10; type a");
    for (const QString& line : TakeLines()) recorded_.append(Read(line));
    StopRecord("com.example.game", Path("session.json"));
    Host().primary_display = -1;
  }

  // The session's lines, with times since its start and slots of the pool.
  QVector<Sent> Replay(double speed) {
    const qint64 start = Time().NowMs() - zero_;
    StartReplay(0, 7, QString(), Path("session.json"), {speed, false});
    Wait(5000);
    QVector<Sent> played;
    for (const QString& line : TakeLines()) {
      if (line.contains(" 1:")) continue;  // the reset at the end, which is for the live display
      played.append(Read(line));
      played.last().ms -= static_cast<int>(start);
    }
    return played;
  }

  // `due`: when each line of the session must come.
  void ExpectSession(const QVector<Sent>& played, const QVector<int>& due, double scale) {
    ASSERT_GT(recorded_.size(), 20);
    ASSERT_EQ(recorded_.size(), played.size());
    QMap<int, int> slot_of;  // of the session: slots of the pool
    for (int i = 0; i < played.size(); ++i) {
      const Sent& then = recorded_[i];
      const Sent& now = played[i];
      SCOPED_TRACE(QStringLiteral("line %1 %2").arg(i).arg(then.word).toStdString());
      EXPECT_EQ(due[i], now.ms);
      EXPECT_EQ(then.word, now.word);
      if (then.slot < 0) continue;
      if (!slot_of.contains(then.slot)) slot_of[then.slot] = now.slot;
      EXPECT_EQ(slot_of[then.slot], now.slot);
      EXPECT_GE(now.slot, 18);
      if (then.word == "SLOTRELEASE") slot_of.remove(then.slot);
      // Six digits of a fraction are half a millionth of the display, and six digits of a position half a hundredth of
      // a pixel.
      EXPECT_NEAR(then.place.x() * scale, now.place.x(), 0.01);
      EXPECT_NEAR(then.place.y() * scale, now.place.y(), 0.01);
    }
  }
  QVector<int> TimesAt(int speed) const {
    QVector<int> times;
    int last = 0;
    int due = 0;
    for (const Sent& sent : recorded_) {
      due += (sent.ms - last) / speed;
      last = sent.ms;
      times.append(due);
    }
    return times;
  }

  QVector<Sent> recorded_;
  const qint64 zero_ = Time().NowMs();
};

TEST_F(ReplayOfRecording, AtNormalSpeedIsTheSession) {
  Record();
  ExpectSession(Replay(1), TimesAt(1), 1);
}

TEST_F(ReplayOfRecording, AtTwiceTheSpeedHalvesEachGap) {
  Record();
  ExpectSession(Replay(2), TimesAt(2), 1);
}

TEST_F(ReplayOfRecording, OnALargerDisplayIsLarger) {
  Record();
  Host().display = QRect(0, 0, 1920, 1080);
  ExpectSession(Replay(1), TimesAt(1), 1.5);
}

TEST_F(ReplayOfRecording, OnATurnedDisplayFollowsItsSides) {
  Record();
  Host().display = QRect(0, 0, 720, 1280);
  const QVector<Sent> played = Replay(1);
  ASSERT_EQ(recorded_.size(), played.size());
  for (int i = 0; i < played.size(); ++i) {
    EXPECT_NEAR(recorded_[i].place.x() * 720 / 1280, played[i].place.x(), 0.01);
    EXPECT_NEAR(recorded_[i].place.y() * 1280 / 720, played[i].place.y(), 0.01);
  }
}

TEST_F(ReplayOfRecording, TellsTheHostWhichAppItWas) {
  Record();
  TakeStory();
  Replay(1);
  QString app;
  QString package;
  GetScriptAppAndPackage(Path("session.json"), app, package);
  EXPECT_EQ("Example", app.toStdString());
  EXPECT_EQ("com.example.game", package.toStdString());
}

// A recording of a replay has the slots of the pool, and plays like the first one.
TEST_F(ReplayOfRecording, CanBeRecordedAgain) {
  Record();
  Host().primary_display = 2;
  StartRecord("com.example.game", "Example");
  const QVector<Sent> first = Replay(1);
  StopRecord("com.example.game", Path("session.json"));
  Host().primary_display = -1;
  StopAllReplay();
  TakeStory();
  const QVector<Sent> second = Replay(1);
  ASSERT_EQ(first.size(), second.size());
  for (int i = 0; i < first.size(); ++i) {
    EXPECT_EQ(first[i].ms, second[i].ms) << i;
    EXPECT_EQ(first[i].word, second[i].word) << i;
    EXPECT_EQ(first[i].slot, second[i].slot) << i;
  }
}

// ---- The input status at the end ----

TEST_F(ReplayOfRecording, EndsViewControl) {
  Add<tavikeymapmanager::StaringConfigItem>("Staring", "F", {0.5, 0.5})->range_size = {0.5, 0.5};
  Load(1);
  Play("down F; up F");
  ASSERT_EQ(InputStatus::Staring, GetInputStatus());
  Save("a.json", {KeyDown(10, 30)});
  Start(7, "a.json");
  TakeStory();
  Wait(10);
  EXPECT_EQ("10ms ! status 2 F", TakeStory().first().toStdString());
  EXPECT_EQ(InputStatus::StaringOff, GetInputStatus());
}

}  // namespace
}  // namespace taviinputmanager
