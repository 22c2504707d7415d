// What a host may do on the thread of a replay, and in parallel on the main thread.
#include <utility>

#include <QSemaphore>

#include "tests/record/replay_threads.h"

namespace taviinputmanager {
namespace {

using replay_threads::TheEar;
using replay_threads::Told;

class ReplayCalls : public testing::Test {
 protected:
  // At the first call of `what` in the host.
  static void Once(const QString& what, std::function<void()> call) {
    TheEar().React([what, call = std::move(call), is_done = std::make_shared<std::atomic<bool>>()](const Told& told) {
      if (told.what == what && !is_done->exchange(true)) call();
    });
  }
  // Plays `file`, and makes the call when it has finished. The main thread sleeps until then: whatever was posted to it
  // before the call is still queued.
  void CallAtTheEndOf(const QString& file, std::function<void()> call) {
    Once("finished", [this, call = std::move(call)] {
      call();
      has_called_.release();
    });
    StartReplay(0, 7, QString(), file, {});
    ASSERT_TRUE(program_.RunUntilTold("started"));
    ASSERT_TRUE(has_called_.tryAcquire(1, kTooLongMs));
  }

  static constexpr int kTooLongMs = 60000;

  QSemaphore has_called_;
  ReplayFolder folder_;
  replay_threads::Program program_;
  const int threads_ = CountThreads();
};

TEST_F(ReplayCalls, ARestartFromFinishedMakesALoop) {
  const QString file = folder_.Save("a.json", {KeyDown(1, 30), KeyUp(0, 30)});
  TheEar().React([](const Told& told) {
    if (told.what == "finished") RestartReplay(told.task_id, told.more, {});
  });
  StartReplay(0, 7, QString(), file, {});
  ASSERT_TRUE(program_.RunUntilTold("finished", 20));
  TheEar().React({});
  EXPECT_GE(program_.Count("started"), 20);
  EXPECT_GE(program_.Count("2:KBDPR:30:1"), 19);
}

// The key of the last action is queued to the main thread when the replay has finished. It is played first, and then
// cleared: a resume has nothing to press again.
TEST_F(ReplayCalls, ARestartForgetsWhatIsHeldBehindTheActionsBeforeIt) {
  CallAtTheEndOf(folder_.Save("a.json", {KeyDown(20, 30)}), [] { RestartReplay(8, "of nobody", {}); });
  ASSERT_TRUE(program_.RunUntilTold("2:KBDPR:30:1"));
  ASSERT_TRUE(program_.RunUntil([turns = 2]() mutable { return turns-- <= 0; }));
  ResumeReplay(8, "of nobody");
  ASSERT_TRUE(program_.RunUntil([] { return true; }));
  EXPECT_EQ(1, program_.Count("2:KBDPR:30:1"));
}

TEST_F(ReplayCalls, AResumeFromPausedPressesAgainOnTheMainThread) {
  const QString file = folder_.Save("a.json", {KeyDown(1, 30), KeyUp(60000, 30)});
  Once("paused", [file] { ResumeReplay(7, file); });
  StartReplay(0, 7, QString(), file, {});
  ASSERT_TRUE(program_.RunUntilTold("2:KBDPR:30:1"));
  PauseReplay(7, file);
  ASSERT_TRUE(program_.RunUntilTold("resumed"));
  ASSERT_EQ(2, program_.Count("2:KBDPR:30:1"));
  for (const Told& told : program_.Of("2:")) EXPECT_EQ(QThread::currentThreadId(), told.thread);
}

TEST_F(ReplayCalls, RequestsKeepTheirOrder) {
  const QString file = folder_.Save("a.json", {KeyDown(60000, 30)});
  Once("started", [file] {
    PauseReplay(7, file);
    ResumeReplay(7, file);
    RestartReplay(7, file, {});
    StopReplay(7, file, false);
  });
  StartReplay(0, 7, QString(), file, {});
  ASSERT_TRUE(program_.RunUntilTold("stopped"));
  QStringList order;
  for (const Told& told : std::as_const(program_.told)) {
    if (told.task_id == 7) order.append(told.what);
  }
  EXPECT_EQ("started paused resumed started stopped", order.join(' ').toStdString());
}

// A replay that was started in another's callback does not depend on that one's thread.
TEST_F(ReplayCalls, AStartedReplayOutlivesTheOneThatStartedIt) {
  const QString first = folder_.Save("a.json", {KeyDown(1, 30)});
  const QString second = folder_.Save("b.json", {KeyDown(1, 17), KeyUp(60000, 17)});
  Once("finished", [second] { StartReplay(0, 8, QString(), second, {}); });
  StartReplay(0, 7, QString(), first, {});
  ASSERT_TRUE(program_.RunUntilTold("2:KBDPR:17:1"));
  StopReplay(7, first, false);
  ASSERT_TRUE(program_.RunUntil([this] { return CountThreads() == threads_ + 1; }));
  StopReplay(8, second, false);
  EXPECT_TRUE(program_.RunUntil([this] { return CountThreads() == threads_; }));
}

TEST_F(ReplayCalls, AllEndWhenOneHasFinished) {
  const QString first = folder_.Save("a.json", {KeyDown(1, 30)});
  const QString second = folder_.Save("b.json", {KeyDown(60000, 17)});
  Once("finished", [] { StopAllReplay(); });
  StartReplay(0, 8, QString(), second, {});
  ASSERT_TRUE(program_.RunUntilTold("started"));
  StartReplay(0, 7, QString(), first, {});
  EXPECT_TRUE(program_.RunUntilTold("stopped", 2));
  EXPECT_TRUE(program_.RunUntil([this] { return CountThreads() == threads_; }));
}

// The last action still goes to the display that it was due for.
TEST_F(ReplayCalls, AChangeOfDisplayTakesItsPlaceInTheOrder) {
  const QString file = folder_.Save("a.json", {KeyDown(20, 30)});
  CallAtTheEndOf(file, [file] {
    UpdateReplayDisplayId(3);
    RestartReplay(7, file, {});
  });
  ASSERT_TRUE(program_.RunUntilTold("3:KBDPR:30:1"));
  EXPECT_EQ(1, program_.Count("2:KBDPR:30:1"));
}

// ---- The main thread continues during the host's callback for the end ----

// Where the host blocks, and how many lines of the reset are recorded by then: slots 18 to 25 are released one by one,
// and a line is recorded after it was sent and mirrored.
struct Place {
  const char* name;
  const char* what;
  int recorded;
};
void PrintTo(const Place& place, std::ostream* out) { *out << place.what; }
constexpr Place kPlaces[] = {
    {"Status", "status", 0},
    {"Line", "1:SLOTRELEASE:20", 2},
    {"MirroredLine", "mirrored SLOTRELEASE:20", 2},
    {"Finished", "finished", 8},
};

class HeldUpEnd : public ReplayCalls, public testing::WithParamInterface<Place> {
 protected:
  HeldUpEnd() {
    replay_threads::Program::Host().primary_display = 1;
    SetInputEventSyncFunc(reinterpret_cast<void*>(&HearMirrored));
    StartSync("other", {}, {});
  }

  static void HearMirrored(const QString& command, const QVector<QString>&) {
    TheEar().Hear("mirrored " + command.chopped(1));
  }
  // The actions of a record without its start marker, one per line.
  static std::string ActionsOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QStringList actions;
    const QJsonArray all = QJsonDocument::fromJson(file.readAll()).object()["actions"].toArray();
    for (int i = 1; i < all.size(); ++i) {
      const QJsonObject action = all[i].toObject();
      actions.append((action["data"].toString() + ' ' + action["extra1"].toString()).trimmed());
    }
    return actions.join('\n').toStdString();
  }
  static void Record(const QString& mark) {
    StartRecord("com.example.game", "Game");
    AddVControlCommand(mark, "1", {});
  }

  QSemaphore entered_;
  QSemaphore leave_;
};

INSTANTIATE_TEST_SUITE_P(At, HeldUpEnd, testing::ValuesIn(kPlaces), [](const auto& info) { return info.param.name; });

TEST_P(HeldUpEnd, DoesNotHoldUpTheMainThread) {
  const QString file = folder_.Save("a.json", {Step(1, "timer", "")});
  Once(GetParam().what, [this] {
    entered_.release();
    leave_.acquire();
  });
  Record("before");
  StartReplay(0, 7, QString(), file, {});
  ASSERT_TRUE(program_.RunUntilTold("started"));
  ASSERT_TRUE(entered_.tryAcquire(1, kTooLongMs));
  StopRecord("com.example.game", folder_.Path("first.json"));
  Record("after");
  PauseRecord();
  OnResetInputStatus(true, 0);
  ResumeRecord();
  StopSync("other");
  EXPECT_EQ(RecordStatus::Recording, GetRecordStatus());
  EXPECT_EQ(InputStatus::Normal, GetInputStatus());
  leave_.release();
  ASSERT_TRUE(program_.RunUntilTold("finished"));
  StopRecord("com.example.game", folder_.Path("second.json"));

  QStringList first{"before 1"};
  QStringList second{"after 1"};
  for (int i = 0; i < 8; ++i) {
    (i < GetParam().recorded ? first : second).append(QStringLiteral("release %1").arg(18 + i));
  }
  EXPECT_EQ(first.join('\n').toStdString(), ActionsOf(folder_.Path("first.json")));
  EXPECT_EQ(second.join('\n').toStdString(), ActionsOf(folder_.Path("second.json")));
}

// ---- Programs that end while a replay asks for more ----

class LeavingMainWithRequests : public testing::Test {
 protected:
  LeavingMainWithRequests() { testing::FLAGS_gtest_death_test_style = "threadsafe"; }

  // Ends the process: with 0 if everything was correct. The replay's requests were never delivered.
  [[noreturn]] static void Leave() {
    int threads = 0;
    {
      QSemaphore has_asked;
      ReplayFolder folder;
      const QString file = folder.Save("a.json", {KeyDown(5, 30)});
      replay_threads::Program program;
      threads = CountThreads();
      TheEar().React([&](const Told& told) {
        if (told.what != "finished") return;
        RestartReplay(7, file, {});
        StartReplay(0, 8, QString(), file, {});
        PauseReplay(7, file);
        ResumeReplay(7, file);
        StopReplay(7, file, true);
        StopAllReplay();
        UpdateReplayDisplayId(3);
        has_asked.release();
      });
      StartReplay(0, 7, QString(), file, {});
      if (!program.RunUntilTold("started") || !has_asked.tryAcquire(1, 60000)) std::exit(1);
    }
    std::exit(ThreadsComeDownTo(threads) ? 0 : 2);
  }
};

TEST_F(LeavingMainWithRequests, IsSafe) { EXPECT_EXIT(Leave(), testing::ExitedWithCode(0), ""); }

}  // namespace
}  // namespace taviinputmanager
