#include "host/session/replayer.h"

#include <QTimer>

#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

using taviinputmanager::ReplayParam;

namespace {

constexpr int kRefusedAfterMs = 1000;  // a replay that has not started by then never will

}  // namespace

// The callbacks for the library.
struct ReplayerFunctions {
  // Runs on the main thread; queued if the caller is on another.
  template <typename Take>
  static void OnMain(int task_id, const QString& file, Take take) {
    Replayer* replayer = Replayer::GetInstance();
    QMetaObject::invokeMethod(replayer, [=] {
      if (replayer->IsMine(task_id, file)) take(replayer);
    });
  }
  static void Started(int task_id, const QString& file) {
    OnMain(task_id, file, [](Replayer* replayer) { replayer->TakeStarted(); });
  }
  static void Paused(int task_id, const QString& file) {
    OnMain(task_id, file, [](Replayer* replayer) { replayer->TakeState(Replayer::State::kPaused); });
  }
  static void Resumed(int task_id, const QString& file) {
    OnMain(task_id, file, [](Replayer* replayer) { replayer->TakeState(Replayer::State::kPlaying); });
  }
  static void Stopped(int task_id, const QString& file) {
    OnMain(task_id, file, [](Replayer* replayer) { replayer->TakeState(Replayer::State::kNone); });
  }
  static void Finished(int task_id, const QString& file, ReplayParam /*param*/) {
    OnMain(task_id, file, [](Replayer* replayer) { replayer->TakeFinished(); });
  }
  // Host commands mean nothing to a window without apps to start.
  static void VControl(const QString& /*data*/, const QString& /*extra1*/, const QString& /*extra2*/, int /*task_id*/,
                       const QString& /*file*/) {}

  static taviinputmanager::InputReplayerCallbacks* Table() {
    static taviinputmanager::InputReplayerCallbacks table{Started, Paused, Resumed, Stopped, Finished, VControl};
    return &table;
  }
};

Replayer* Replayer::GetInstance() {
  static Replayer instance;
  return &instance;
}

Replayer::Replayer() { taviinputmanager::InitializeReplayCallbacks(ReplayerFunctions::Table()); }

void Replayer::Open(const QString& file, const RecordInfo& info) {
  Stop();
  file_ = file;
  info_ = info;
  TakeState(State::kNone);
}

void Replayer::Play(ReplayParam param) {
  if (file_.isEmpty() || (state_ != State::kNone && state_ != State::kFinished)) return;
  Stop();  // a finished replay stays until then, and keeps its speed
  param_ = param;
  ++task_id_;
  has_finished_early_ = false;
  TakeState(State::kStarting);
  taviinputmanager::StartReplay(0, task_id_, QString(), file_, param_);
  QTimer::singleShot(kRefusedAfterMs, this, [this, task_id = task_id_] { TellIfRefused(task_id); });
}

void Replayer::Pause() {
  if (state_ == State::kPlaying) taviinputmanager::PauseReplay(task_id_, file_);
}

void Replayer::Resume() {
  if (state_ == State::kPaused) taviinputmanager::ResumeReplay(task_id_, file_);
}

void Replayer::Restart() {
  if (state_ == State::kNone || state_ == State::kStarting) return;
  has_finished_early_ = false;
  taviinputmanager::RestartReplay(task_id_, file_, param_);
}

void Replayer::Stop() {
  if (state_ != State::kNone) taviinputmanager::StopReplay(task_id_, file_, true);
}

qint64 Replayer::TotalMs() const {
  const double speed = param_.speed_ratio > 0 ? param_.speed_ratio : 1.0;
  return static_cast<qint64>(static_cast<double>(info_.total_running_time) / speed);
}

qint64 Replayer::PlayedMs() const {
  if (state_ == State::kFinished) return TotalMs();
  return qMin(TotalMs(), before_ms_ + (playing_.isValid() ? playing_.elapsed() : 0));
}

void Replayer::TakeStarted() {
  before_ms_ = 0;
  playing_.invalidate();
  TakeState(has_finished_early_ ? State::kFinished : State::kPlaying);
}

void Replayer::TakeFinished() {
  has_finished_early_ = true;  // unless the replay is started first, which resets it
  TakeState(State::kFinished);
}

void Replayer::TakeState(State state) {
  if (playing_.isValid()) before_ms_ += playing_.elapsed();
  playing_.invalidate();
  if (state == State::kPlaying) playing_.start();
  if (state == State::kNone || state == State::kStarting) before_ms_ = 0;
  state_ = state;
  Q_EMIT Changed();
}

void Replayer::TellIfRefused(int task_id) {
  if (task_id != task_id_ || state_ != State::kStarting) return;
  TakeState(State::kNone);
  Q_EMIT Refused(file_);
}

}  // namespace tavi
