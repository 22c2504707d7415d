// Short records that are played in loops, and a host that makes a request in every line and callback.
#include <random>
#include <utility>

#include "tests/record/replay_threads.h"
#include "tests/support/from_environment.h"
#include "tests/support/model_guest.h"

namespace taviinputmanager {
namespace {

using replay_threads::TheEar;
using replay_threads::Told;

// TAVI_REPLAY_LOOPS and TAVI_REPLAY_SEED choose another run. The threads are not synchronized: no two runs are equal.
class ReplayLoops : public testing::Test {
 protected:
  static constexpr int kUsualLoops = 2000;
  static constexpr unsigned kUsualSeed = 1;
  static constexpr int kLoopsATurn = 20;
  static constexpr int kDisplay = 1;  // of live input and of replays: all of it is recorded
  static constexpr int kReplays = 6;

  ReplayLoops() {
    replay_threads::Program::Host().primary_display = kDisplay;
    UpdateReplayDisplayId(kDisplay);
    SetInputEventSyncFunc(reinterpret_cast<void*>(&HearMirrored));
    for (int i = 0; i < kReplays; ++i) files_.append(SaveShortRecord(i));
    TheEar().React([this](const Told& told) { ReactTo(told); });
  }
  ~ReplayLoops() override { TheEar().React({}); }

  // Lasts some milliseconds, with fingers and keys that it releases or leaves down.
  QString SaveShortRecord(int i) const {
    return folder_.Save(QString::number(i),
                        {TouchDown(1, i, "(0.25,0.5)"), KeyDown(0, 30 + i), Step(0, "vcontrol", "shot"),
                         Step(1, "touch", "press_multi_rel:(0.1,0.1):(0.2,0.2)", "18:19"), KeyUp(1, 30 + i),
                         Step(0, "touch", "release_multi", "18:19"), TouchUp(1, i % 2), KeyDown(0, 17)});
  }

  static void HearMirrored(const QString&, const QVector<QString>& targets) { EXPECT_FALSE(targets.isEmpty()); }

  // Any thread.
  int Below(int limit) {
    const std::lock_guard<std::mutex> lock(random_mutex_);
    return static_cast<int>(random_() % static_cast<unsigned>(limit));
  }
  bool OneIn(int n) { return Below(n) == 0; }

  // From inside a callback, on either thread, and from inside the lines on a replay's thread.
  void ReactTo(const Told& told) {
    if (told.what.contains(':') && told.thread == main_thread_) return;
    if (told.what == "finished") {
      ++finished_;
      if (!OneIn(8)) RestartReplay(told.task_id, told.more, {});
    }
    if (OneIn(told.what.contains(':') ? 20 : 3)) RequestSomething();
  }
  void RequestSomething() {
    const int id = 1 + Below(kReplays);
    const QString& file = files_.at(id - 1);
    switch (Below(10)) {
      case 0:
      case 1: return PauseReplay(id, file);
      case 2:
      case 3:
      case 4: return ResumeReplay(id, file);
      case 5: return RestartReplay(id, file, {});
      case 6: return StopReplay(id, file, OneIn(2));
      case 7: return UpdateReplayDisplayId(kDisplay);
      case 8: return OneIn(20) ? StopAllReplay() : void();
      default:
        if (CountThreads() < most_threads_) StartReplay(0, id, QString(), file, {1.0 + Below(2), OneIn(2)});
    }
  }

  // Actions that only the main thread may perform, outside of all callbacks.
  void DoSomethingOfTheMainThread() {
    switch (Below(12)) {
      case 0:
      case 1: return StartRecord("com.example.game", "Game");
      case 2: return PauseRecord();
      case 3: return ResumeRecord();
      case 4:
      case 5: return SaveRecording();
      case 6: return StartRecordMacroInstruction("macro");
      case 7:
      case 8: return StopRecordMacroInstruction("macro");
      case 9: return OneIn(2) ? StartSync("other", {}, {}) : StopSync("other");
      case 10: return OneIn(4) ? OnResetInputStatus(OneIn(2), 0) : UpdateDisplayId(kDisplay);
      default: return StartMissingReplays();
    }
  }
  void StartMissingReplays() {
    for (int id = 1; id <= kReplays && CountThreads() < most_threads_; ++id) {
      StartReplay(0, id, QString(), files_.at(id - 1), {});
    }
  }
  // A recording starts with its marker and has no other; one that a resume began has none.
  void SaveRecording() {
    const QString path = folder_.Path("recording.json");
    StopRecord("com.example.game", path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return;  // nothing to save so far
    const QJsonArray actions = QJsonDocument::fromJson(file.readAll()).object()["actions"].toArray();
    EXPECT_FALSE(actions.isEmpty());
    for (int i = 1; i < actions.size(); ++i) {
      const QString data = actions[i].toObject()["data"].toString();
      EXPECT_FALSE(data.isEmpty() || data.contains("detect_app")) << data.toStdString();
    }
    recorded_ += actions.size();
    file.close();
    QFile::remove(path);
  }

  void PlayUntil(int loops) {
    ASSERT_TRUE(program_.RunUntil([this, loops] {
      if (OneIn(2)) DoSomethingOfTheMainThread();
      if (OneIn(4)) RequestSomething();  // otherwise all could be idle at once, and nothing would wake one
      return finished_ >= loops;
    })) << finished_
        << " loops; replays: " << CountThreads() - threads_;
  }
  // Counts the host's calls, and discards them: a long run must not fill the memory.
  void Listen() {
    program_.told += TheEar().Take();
    for (const Told& told : std::as_const(program_.told)) {
      if (told.what.contains(':')) {
        guest_.Read(told.what);
      } else {
        ++calls_[told.what];
      }
    }
    program_.told.clear();
  }
  // Including those of the last callbacks.
  bool EndAllReplays() {
    return program_.RunUntil([this, quiet_turns = 0]() mutable {
      quiet_turns = CountThreads() == threads_ ? quiet_turns + 1 : 0;
      if (quiet_turns == 0) StopAllReplay();
      return quiet_turns == 3;
    });
  }
  // All replays end, and everything they left down is released.
  void ComeToRest() {
    TheEar().React({});
    ASSERT_TRUE(EndAllReplays());
    SaveRecording();
    Listen();
    StartReplay(0, 1, QString(), files_.first(), {});
    ASSERT_TRUE(program_.RunUntilTold("finished"));
    StopReplay(1, files_.first(), true);
    ASSERT_TRUE(program_.RunUntilTold("1:SLOTRELEASEALL"));
    ASSERT_TRUE(EndAllReplays());
    Listen();
  }

  std::mutex random_mutex_;
  std::mt19937 random_{static_cast<unsigned>(FromEnvironment("TAVI_REPLAY_SEED", kUsualSeed))};
  std::atomic<int> finished_{0};
  QStringList files_;
  ReplayFolder folder_;
  const Qt::HANDLE main_thread_ = QThread::currentThreadId();
  replay_threads::Program program_;
  const int threads_ = CountThreads();
  const int most_threads_ = threads_ + kReplays;
  ModelGuest guest_;
  QMap<QString, int> calls_;
  qint64 recorded_ = 0;
};

TEST_F(ReplayLoops, StandRequestsFromEveryCallback) {
  const int loops = FromEnvironment("TAVI_REPLAY_LOOPS", kUsualLoops);
  std::cout << "TAVI_REPLAY_LOOPS=" << loops << std::endl;
  while (finished_ < loops) {
    ASSERT_NO_FATAL_FAILURE(PlayUntil(finished_ + kLoopsATurn));
    Listen();
  }
  ASSERT_NO_FATAL_FAILURE(ComeToRest());
  for (const char* what : {"started", "paused", "resumed", "stopped", "finished", "vcontrol", "status"}) {
    EXPECT_GT(calls_[what], 0) << what;
  }
  EXPECT_GT(recorded_, 0);
  EXPECT_EQ("", guest_.WhatIsDown().toStdString());
  EXPECT_EQ("", guest_.Unreadable().join('\n').toStdString());
}

}  // namespace
}  // namespace taviinputmanager
