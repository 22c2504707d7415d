#include "record/replay_manager.h"

#include <utility>

#include "core/input_status_manager.h"
#include "core/worker_thread.h"
#include "record/record_actions.h"
#include "record/record_file_utils.h"
#include "record/record_format.h"
#include "record/replay_context.h"
#include "record/replay_event_handler.h"
#include "record/replay_worker.h"
#include "taviinputmanager/callbacks.h"

namespace taviinputmanager {

using namespace record_format;  // NOLINT(google-build-using-namespace): words of files, and nothing else

ReplayManager* ReplayManager::GetInstance() {
  static ReplayManager instance;
  return &instance;
}

void ReplayManager::StartReplay(int unused, int task_id, const QString& /*unused_name*/, const QString& filename,
                                ReplayParam param) {
  requests_.Perform([=] { Play(unused, task_id, filename, param); });
}

void ReplayManager::Play(int unused, int task_id, const QString& filename, const ReplayParam& param) {
  ReplayContext context;
  if (!RecordFileUtils::GetInstance()->LoadRecord(filename, &context)) return;
  HoldRecord(filename);

  auto* worker = new ReplayWorker(std::move(context), {task_id, unused, filename, param, callbacks_});
  auto* run = new WorkerThread(worker);
  connect(run, &WorkerThread::started, worker, &ReplayWorker::Start);
  connect(this, &ReplayManager::ReplayNeedPause, worker, &ReplayWorker::Pause, Qt::QueuedConnection);
  connect(this, &ReplayManager::ReplayNeedResume, worker, &ReplayWorker::Resume, Qt::QueuedConnection);
  connect(this, &ReplayManager::ReplayNeedStop, worker, &ReplayWorker::Stop, Qt::QueuedConnection);
  connect(this, &ReplayManager::ReplayNeedForceStop, worker, &ReplayWorker::ForceStop, Qt::QueuedConnection);
  connect(this, &ReplayManager::ReplayNeedRestart, worker, &ReplayWorker::Restart, Qt::QueuedConnection);
  connect(worker, &ReplayWorker::ReplayStopped, run, &WorkerThread::quit, Qt::QueuedConnection);
  run->DeleteWorkerOn(worker, &ReplayWorker::ReplayStopped);
  connect(worker, &ReplayWorker::ReplayStopped, this, &ReplayManager::OnReplayStopped, Qt::QueuedConnection);
  connect(worker, &ReplayWorker::ReplayEventTriggered, this, &ReplayManager::OnReplayEventTriggered,
          Qt::QueuedConnection);
  connect(worker, &ReplayWorker::ReplayPaused, this, &ReplayManager::OnReplayPaused, Qt::QueuedConnection);
  run->Start();

  // All replays share one handler: those that are already running lose what they hold.
  ReplayEventHandler::GetInstance()->Reset();
}

void ReplayManager::HoldRecord(const QString& filename) {
  const FileHandle file = HoldFile(filename);
  if (file != kNoFile) open_files_.insert(filename, file);
}

void ReplayManager::PauseReplay(int task_id, const QString& filename) {
  requests_.Perform([=] { Q_EMIT ReplayNeedPause(task_id, filename); });
}

void ReplayManager::ResumeReplay(int task_id, const QString& filename) {
  requests_.Perform([=] {
    ReplayEventHandler::GetInstance()->ResumeHeldInput();
    Q_EMIT ReplayNeedResume(task_id, filename);
  });
}

void ReplayManager::RestartReplay(int task_id, const QString& filename, ReplayParam /*param*/) {
  requests_.Perform([=] {
    ReplayEventHandler::GetInstance()->Reset();
    Q_EMIT ReplayNeedRestart(task_id, filename);
  });
}

void ReplayManager::StopReplay(int task_id, const QString& filename, bool stop_by_user) {
  requests_.Perform([=] { Q_EMIT ReplayNeedStop(task_id, filename, stop_by_user); });
}

void ReplayManager::StopAllReplay() {
  requests_.Perform([this] { Q_EMIT ReplayNeedForceStop(); });
}

void ReplayManager::UpdateReplayDisplayId(int display) {
  requests_.Perform([display] { InputStatusManager::GetInstance()->SetReplayDisplayId(display); });
}

void ReplayManager::OnReplayEventTriggered(QString type, QString data, QString extra1, QString extra2, int task_id,
                                           QString filename, bool emulation_mode) {
  ReplayEventHandler* handler = ReplayEventHandler::GetInstance();
  if (type == kTypeMouse) return handler->OnMouseAction(data, extra1, extra2);
  if (type == kTypeKeyboard) return handler->OnKeyboardAction(data, extra1, extra2);
  if (type == kTypeVControl) {
    if (callbacks_) callbacks_->vcontrol(data, extra1, extra2, task_id, filename);
    return;
  }
  if (type == kTypeTouch) return handler->OnTouchAction(data, extra1, extra2, emulation_mode);
  if (type == kTypeInputMethod) return handler->OnInputMethodAction(data, extra1, extra2);
  if (type == kTypeJoystick) return handler->OnJoystickAction(data, extra1, extra2);
}

void ReplayManager::OnReplayPaused(int /*task_id*/, QString /*filename*/) {
  InputStatusManager::GetInstance()->ResetInputStatus(kResetFull, 0);
}

void ReplayManager::OnReplayStopped(int /*task_id*/, QString filename, bool stop_by_user) {
  if (stop_by_user) InputStatusManager::GetInstance()->ReleaseReplayInput();
  const FileHandle file = open_files_.value(filename, kNoFile);
  if (file != kNoFile) ReleaseFile(file);
  open_files_.remove(filename);
}

}  // namespace taviinputmanager
