#include "core/worker_thread.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>
#include <QVariant>

#include "core/clock.h"
#include "taviinputmanager/virtual_time.h"

namespace taviinputmanager {

namespace {

// How long the end of the application waits for all runs together. Workers react within microseconds; only a host that
// blocks in a callback of a replay can exhaust it.
constexpr int kExitWaitMs = 2000;

// Main thread: whether the application will call QuitLiveRuns at its end.
bool exit_is_watched = false;

}  // namespace

WorkerThread::WorkerThread(QObject* worker) : is_virtual_(Clock::IsVirtual()), worker_(worker) {
  new WorkerGate(worker, &state_);
  if (!is_virtual_) worker->moveToThread(this);
  // Connected first, so that the worker is destroyed when other receivers get `finished`.
  connect(this, &QThread::finished, this, &WorkerThread::DeleteWorker, Qt::QueuedConnection);
  LiveRuns()->append(this);
  if (exit_is_watched) return;
  qAddPostRoutine(&WorkerThread::QuitLiveRuns);
  exit_is_watched = true;
}

WorkerThread::~WorkerThread() {
  DeleteWorker();
  LiveRuns()->removeOne(this);
}

void WorkerThread::Start() {
  if (begun_ || state_.load() >= WorkerRunState::kClosed) return;  // quit came first
  if (is_virtual_) {
    begun_ = true;
    Q_EMIT started(QPrivateSignal());  // last, because the worker may lead to the end of this run
    return;
  }
  start(QThread::InheritPriority);
  begun_ = isRunning() || isFinished();
  // The system has no thread left. The caller still uses the worker, which is deleted when it has returned.
  if (!begun_) QMetaObject::invokeMethod(this, &WorkerThread::quit, Qt::QueuedConnection);
}

QTimer* WorkerThread::MakeWorkerTimer(QObject* owner) {
  auto* timer = new QTimer(owner);
  timer->setTimerType(Qt::PreciseTimer);
  timer->setProperty(kWorkerTimerProperty, true);
  auto* gate = owner->findChild<WorkerGate*>(QString(), Qt::FindDirectChildrenOnly);
  if (gate) timer->installEventFilter(gate);
  return timer;
}

void WorkerThread::quit() {
  if (MoveOn(&state_, WorkerRunState::kClosed) >= WorkerRunState::kClosed) return;  // has already ended
  // Connected last, so that all other receivers get `finished` first. Posted again, so that whatever was posted to this
  // object before is delivered before its deletion.
  connect(this, &QThread::finished, this, &QObject::deleteLater, Qt::QueuedConnection);
  if (begun_ && !is_virtual_) {
    QThread::quit();  // run() does the rest
  } else {
    EndWithoutThread();
  }
}

void WorkerThread::run() {
  if (state_.load() < WorkerRunState::kClosed) Q_EMIT started(QPrivateSignal());
  exec();
  const auto timers = worker_->findChildren<QTimer*>();
  for (QTimer* timer : timers) timer->stop();  // which no other thread may do
  worker_->moveToThread(thread());
  MoveOn(&state_, WorkerRunState::kLeft);
}

void WorkerThread::RetireWorker() {
  MoveOn(&state_, WorkerRunState::kRetiring);
  worker_->deleteLater();
}

void WorkerThread::EndWithoutThread() {
  DeleteWorker();
  QMetaObject::invokeMethod(this, "finished", Qt::QueuedConnection);
}

void WorkerThread::DeleteWorker() {
  // Its thread no longer uses it, or never did. ThreadSanitizer does not see how Qt waits for a thread; it sees this.
  static_cast<void>(state_.load());
  delete worker_;
  worker_ = nullptr;
}

// Never destroyed: an application object with static lifetime may be destroyed after all other static objects.
QList<WorkerThread*>* WorkerThread::LiveRuns() {
  static auto* const runs = new QList<WorkerThread*>;
  return runs;
}

void WorkerThread::QuitLiveRuns() {
  exit_is_watched = false;  // Qt calls a post routine once
  const QList<WorkerThread*> runs = *LiveRuns();
  for (WorkerThread* run : runs) run->quit();
  const QDeadlineTimer limit(kExitWaitMs);
  for (WorkerThread* run : runs) {
    if (run->wait(limit)) delete run;  // one that is still running is left alone
  }
}

}  // namespace taviinputmanager
