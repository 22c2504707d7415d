#include "record/replay_worker.h"

#include <algorithm>
#include <utility>

#include <QTimer>

#include "core/clock.h"
#include "core/input_status_manager.h"
#include "core/numbers.h"
#include "core/worker_thread.h"
#include "record/record_format.h"
#include "taviinputmanager/callbacks.h"

namespace taviinputmanager {

ReplayWorker::ReplayWorker(ReplayContext context, const ReplayWorkerParam& param)
    : context_(std::move(context)), param_(param) {
  context_.ApplySpeed(param_.param.speed_ratio);
}

void ReplayWorker::Start() { PlayFromFirst(); }

void ReplayWorker::Restart(int task_id, QString filename) {
  if (IsNamed(task_id, filename)) PlayFromFirst();
}

void ReplayWorker::PlayFromFirst() {
  if (!timer_) {
    timer_ = WorkerThread::MakeWorkerTimer(this);
    connect(timer_, &QTimer::timeout, this, &ReplayWorker::TimerOutTime);
  }
  context_.First();
  ScheduleNext();
  Tell(&InputReplayerCallbacks::started);
}

void ReplayWorker::ScheduleNext() {
  if (context_.current_action.type.isEmpty()) return Finish();
  // A record can contain a negative timing, from a clock that was set back; a timer accepts none.
  timer_->start(std::max(0, context_.next_delay));
  last_start_time_ = Clock::NowMs();
}

void ReplayWorker::Finish() {
  timer_->stop();
  // On this thread, in parallel to the main thread: shared data has its own guards.
  InputStatusManager::GetInstance()->ResetInputStatus(kResetMacro, 0);
  if (param_.callbacks) param_.callbacks->finished(param_.task_id, param_.filename, param_.param);
}

void ReplayWorker::TimerOutTime() {
  RecordAction action;
  if (!context_.CurrentAction(&action)) return;
  if (action.type != record_format::kTypeTimer) {
    Q_EMIT ReplayEventTriggered(action.type, action.data, action.extra1, action.extra2, param_.task_id, param_.filename,
                                param_.param.emulation_mode);
  }
  context_.Next();
  ScheduleNext();
}

void ReplayWorker::Pause(int task_id, QString filename) {
  if (!timer_) return;  // not started: there is no remaining delay to store
  if (context_.current_action.type.isEmpty() || !IsNamed(task_id, filename)) return;
  // A second pause subtracts the same time again.
  context_.ReduceDelay(LowDistance(last_start_time_, Clock::NowMs()));
  timer_->stop();
  Q_EMIT ReplayPaused(param_.task_id, param_.filename);
  Tell(&InputReplayerCallbacks::paused);
}

void ReplayWorker::Resume(int task_id, QString filename) {
  if (!IsNamed(task_id, filename) || !timer_) return;
  ScheduleNext();
  Tell(&InputReplayerCallbacks::resumed);
}

void ReplayWorker::Stop(int task_id, QString filename, bool stop_by_user) {
  if (IsNamed(task_id, filename)) End(stop_by_user);
}

void ReplayWorker::ForceStop() { End(false); }

void ReplayWorker::End(bool stop_by_user) {
  if (!timer_) return;
  timer_->stop();
  Q_EMIT ReplayStopped(param_.task_id, param_.filename, stop_by_user);
  Tell(&InputReplayerCallbacks::stopped);
}

bool ReplayWorker::IsNamed(int task_id, const QString& filename) const {
  return task_id == param_.task_id && filename == param_.filename;
}

void ReplayWorker::Tell(Callback InputReplayerCallbacks::*member) const {
  if (param_.callbacks) (param_.callbacks->*member)(param_.task_id, param_.filename);
}

}  // namespace taviinputmanager
