// Replays on real threads in real time: order, positions, that nothing comes too early, and the threads of the calls.
#include "tests/record/replay_threads.h"

#include <random>
#include <set>
#include <utility>

#include "tests/support/model_guest.h"

namespace taviinputmanager {
namespace {

using replay_threads::Told;

class RealReplay : public testing::Test {
 protected:
  // A swipe of three points, a key and a host command.
  QString SaveSession() {
    return folder_.Save("session.json",
                        {TouchDown(20, 2, "(0.25,0.5)"), TouchDown(41, 2, "(0.5,0.25)"), TouchUp(15, 2),
                         Step(10, "vcontrol", "shot"), KeyDown(21, 30), KeyUp(11, 30), KeyDown(60000, 17)});
  }
  // Plays it to its last key.
  void PlaySession(double speed) {
    StartReplay(0, 7, QString(), SaveSession(), {speed, false});
    ASSERT_TRUE(program_.RunUntilTold("2:KBDRL:30:0"));
  }
  QStringList Lines() const {
    QStringList lines;
    for (const Told& told : program_.Of("2:")) lines.append(told.what);
    return lines;
  }
  // The time from `started` to the key. Both times are truncated, and `started` is called once the timer runs.
  qint64 TimeToTheKey() const { return program_.Of("2:KBDRL").first().ms - program_.Of("started").first().ms + 2; }

  ReplayFolder folder_;
  replay_threads::Program program_;
};

TEST_F(RealReplay, AtNormalSpeed) {
  PlaySession(1);
  EXPECT_EQ((QStringList{"2:SLOTPRESS:18:18:1:1:320:360", "2:SLOTPRESS:18:18:1:1:640:180", "2:SLOTRELEASE:18",
                         "2:KBDPR:30:1", "2:KBDRL:30:0"}),
            Lines());
  EXPECT_GE(TimeToTheKey(), 20 + 41 + 15 + 10 + 21 + 11);
}

TEST_F(RealReplay, AtTwiceTheSpeed) {
  PlaySession(2);
  EXPECT_EQ((QStringList{"2:SLOTPRESS:18:18:1:1:320:360", "2:SLOTPRESS:18:18:1:1:640:180", "2:SLOTRELEASE:18",
                         "2:KBDPR:30:1", "2:KBDRL:30:0"}),
            Lines());
  EXPECT_GE(TimeToTheKey(), 10 + 20 + 7 + 5 + 10 + 5);
}

TEST_F(RealReplay, AtAnotherResolution) {
  program_.Host().display = QRect(0, 0, 1920, 1080);
  PlaySession(1);
  EXPECT_EQ((QStringList{"2:SLOTPRESS:18:18:1:1:480:540", "2:SLOTPRESS:18:18:1:1:960:270", "2:SLOTRELEASE:18",
                         "2:KBDPR:30:1", "2:KBDRL:30:0"}),
            Lines());
}

TEST_F(RealReplay, APauseKeepsTheRestOfTheDelay) {
  const QString file = folder_.Save("a.json", {KeyDown(400, 30), KeyUp(60000, 30)});
  StartReplay(0, 7, QString(), file, {});
  ASSERT_TRUE(program_.RunUntilTold("started"));
  PauseReplay(7, file);
  ASSERT_TRUE(program_.RunUntilTold("paused"));
  ResumeReplay(7, file);
  ASSERT_TRUE(program_.RunUntilTold("2:KBDPR:30:1"));
  const qint64 paused = program_.Of("resumed").first().ms - program_.Of("paused").first().ms;
  const qint64 played = program_.Of("2:KBDPR").first().ms - program_.Of("started").first().ms - paused;
  EXPECT_GE(played, 400 - 4);  // for truncated times
}

// ---- Threads ----

TEST_F(RealReplay, TheHostIsToldOnTheReplaysThreadButOfItsOwnCommands) {
  const QString file = folder_.Save("a.json", {Step(1, "vcontrol", "shot"), KeyDown(1, 30)});
  StartReplay(0, 7, QString(), file, {});
  ASSERT_TRUE(program_.RunUntilTold("finished"));
  RestartReplay(7, file, {});
  PauseReplay(7, file);
  ResumeReplay(7, file);
  ASSERT_TRUE(program_.RunUntilTold("finished", 2));
  ASSERT_TRUE(program_.RunUntilTold("2:KBDPR:30:1", 2));
  StopReplay(7, file, true);
  ASSERT_TRUE(program_.RunUntilTold("2:SLOTRELEASEALL"));
  ASSERT_TRUE(program_.RunUntilTold("stopped"));  // called beside that line

  const Qt::HANDLE main_thread = QThread::currentThreadId();
  const Qt::HANDLE thread = program_.Of("started").first().thread;
  EXPECT_NE(main_thread, thread);
  for (const char* what : {"started", "paused", "resumed", "stopped", "finished"}) {
    EXPECT_FALSE(program_.Of(what).isEmpty()) << what;
    for (const Told& told : program_.Of(what)) {
      EXPECT_EQ(thread, told.thread) << what;
      EXPECT_EQ(7, told.task_id) << what;
      EXPECT_EQ(file.toStdString(), told.more.toStdString()) << what;
    }
  }
  EXPECT_EQ(2, program_.Of("vcontrol").size());
  for (const Told& told : program_.Of("vcontrol")) EXPECT_EQ(main_thread, told.thread);
  for (const Told& told : program_.Of("2:")) EXPECT_EQ(main_thread, told.thread);
  // The sweep of macro slots at the natural end; the pause sweeps the others.
  EXPECT_FALSE(program_.Of("1:SLOTRELEASE:25").isEmpty());
  for (const Told& told : program_.Of("1:SLOTRELEASE:25")) EXPECT_EQ(thread, told.thread);
  for (const Told& told : program_.Of("1:SLOTRELEASE:17")) EXPECT_EQ(main_thread, told.thread);
}

TEST_F(RealReplay, EachReplayHasAThreadAndGivesItBack) {
  const QString file = folder_.Save("a.json", {KeyDown(60000, 30)});
  const int threads = CountThreads();
  for (int id = 0; id < 3; ++id) StartReplay(0, id, QString(), file, {});
  ASSERT_TRUE(program_.RunUntilTold("started", 3));
  std::set<Qt::HANDLE> different;
  for (const Told& told : program_.Of("started")) different.insert(told.thread);
  EXPECT_EQ(3U, different.size());
  EXPECT_EQ(threads + 3, CountThreads());
  StopReplay(1, file, false);
  ASSERT_TRUE(program_.RunUntil([&] { return CountThreads() == threads + 2; }));
  StopAllReplay();
  ASSERT_TRUE(program_.RunUntil([&] { return CountThreads() == threads; }));
  EXPECT_TRUE(program_.RunUntilTold("stopped", 3));
}

TEST_F(RealReplay, AStopRightAfterTheStartIsNotLost) {
  const QString file = folder_.Save("a.json", {KeyDown(60000, 30)});
  const int threads = CountThreads();
  for (int i = 0; i < 20; ++i) {
    StartReplay(0, i, QString(), file, {});
    StopReplay(i, file, false);
  }
  ASSERT_TRUE(program_.RunUntilTold("stopped", 20));
  ASSERT_TRUE(program_.RunUntil([&] { return CountThreads() == threads; }));
  EXPECT_EQ(20, program_.Count("started"));
}

// ---- Everything at once ----

constexpr int kStressSeed = 20;
constexpr int kStressSteps = 2000;

class RealReplayStress : public RealReplay {
 protected:
  RealReplayStress() {
    // A short one, so that it also ends by itself, and one that continues. Some actions are due at once; but not more
    // than the main thread can handle, because it delivers everything posted before it continues.
    QJsonArray steps;
    for (int i = 0; i < 4; ++i) {
      steps.append(TouchDown(4 + i % 3, i, QStringLiteral("(0.%1,0.5)").arg(i + 1)));
      if (i % 2) steps.append(TouchUp(4, i));
      steps.append(i % 2 ? KeyUp(0, 30) : KeyDown(0, 30));
      steps.append(Step(4, "touch", "press_multi_rel:(0.1,0.1):(0.2,0.2)", "18:19"));
      steps.append(Step(4, "touch", "release_multi", "18:19"));
      steps.append(Step(0, "vcontrol", "shot"));
    }
    files_.append(folder_.Save("a.json", steps));
    files_.append(folder_.Save("b.json", steps, {{"repeat_times", 1000000}, {"repeat_delay", 1}}));
  }

  void RequestSomething() {
    const int id = Below(2);
    const QString& file = files_[id];
    switch (Below(11)) {
      case 0:
      case 1:
        if (CountThreads() >= most_threads_) return;
        return StartReplay(0, id, QString(), file, {0.5 + 0.25 * Below(4), Below(2) == 1});
      case 2:
      case 3: return PauseReplay(id, file);
      case 4:
      case 5:
      case 6: return ResumeReplay(id, file);
      case 7: return RestartReplay(id, file, {});
      case 8:
      case 9: return StopReplay(id, file, Below(2) == 1);
      default:
        if (Below(10) == 0) StopAllReplay();
    }
  }
  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

  std::mt19937 random_{kStressSeed};
  QStringList files_;
  const int threads_ = CountThreads();
  const int most_threads_ = threads_ + 2;
};

TEST_F(RealReplayStress, RequestsInAnyOrderLeaveNothingBehind) {
  for (int i = 0; i < kStressSteps; ++i) {
    RequestSomething();
    if (Below(3) == 0) {
      program_.RunUntil([turns = Below(4)]() mutable { return turns-- <= 0; });
    }
  }
  StartReplay(0, 0, QString(), files_[0], {});
  ASSERT_TRUE(program_.RunUntilTold("finished"));
  StopAllReplay();
  ASSERT_TRUE(program_.RunUntil([this] { return CountThreads() == threads_; }));
  for (const char* what : {"started", "paused", "resumed", "stopped", "finished", "vcontrol"}) {
    EXPECT_GT(program_.Count(what), 0) << what;
  }

  // One more that the user stops releases whatever was left.
  const int sweeps = program_.Count("2:SLOTRELEASEALL");
  StartReplay(0, 9, QString(), SaveSession(), {});
  StopReplay(9, folder_.Path("session.json"), true);
  ASSERT_TRUE(program_.RunUntilTold("2:SLOTRELEASEALL", sweeps + 1));
  ASSERT_TRUE(program_.RunUntil([this] { return CountThreads() == threads_; }));
  ModelGuest guest;
  for (const Told& told : std::as_const(program_.told)) {
    if (told.what.contains(':')) guest.Read(told.what);
  }
  EXPECT_EQ("", guest.WhatIsDown().toStdString());
  EXPECT_EQ("", guest.Unreadable().join('\n').toStdString());
}

// ---- Programs that end while replays run ----

class LeavingMainWithReplays : public testing::Test {
 protected:
  LeavingMainWithReplays() { testing::FLAGS_gtest_death_test_style = "threadsafe"; }

  // Ends the process: with 0 if everything was correct.
  [[noreturn]] static void Leave() {
    int threads = 0;
    {
      ReplayFolder folder;
      replay_threads::Program program;
      threads = CountThreads();
      const QString busy = folder.Save("a.json", {TouchDown(1, 1, "(0.5,0.5)"), TouchUp(0, 1), KeyDown(1, 30)},
                                       {{"repeat_times", 1000000000}});
      const QString short_one = folder.Save("b.json", {KeyDown(0, 17)});
      for (int id = 0; id < 8; ++id) StartReplay(0, id, QString(), busy, {});
      StartReplay(0, 8, QString(), short_one, {});
      if (!program.RunUntilTold("2:KBDPR:30:1", 200) || !program.RunUntilTold("finished")) std::exit(1);
      PauseReplay(0, busy);
      StopReplay(1, busy, true);
      RestartReplay(8, short_one, {});
      StartReplay(0, 9, QString(), busy, {});
      StartReplay(0, 10, QString(), busy, {});
      StopAllReplay();
      StartReplay(0, 11, QString(), busy, {});
    }
    std::exit(ThreadsComeDownTo(threads) ? 0 : 2);
  }
};

TEST_F(LeavingMainWithReplays, IsSafe) { EXPECT_EXIT(Leave(), testing::ExitedWithCode(0), ""); }

}  // namespace
}  // namespace taviinputmanager
