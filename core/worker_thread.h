// Runs a timed worker in parallel to the main thread.
#ifndef CORE_WORKER_THREAD_H_
#define CORE_WORKER_THREAD_H_

#include <atomic>

#include <QList>
#include <QThread>

#include "core/worker_gate.h"

class QTimer;

namespace taviinputmanager {

// One run of one worker: a thread of its own in real time; in virtual time no thread at all, with everything in the
// same order on the main thread.
//
//   auto* worker = new TapWorker(record);            // no parent; the run owns it from the next line on
//   auto* run = new WorkerThread(worker);
//   connect(run, &WorkerThread::started, worker, &TapWorker::Process);
//   connect(this, &Simulator::StopTap, worker, &TapWorker::Stop, Qt::QueuedConnection);
//   connect(worker, &TapWorker::TapPressed, this, &Simulator::OnTapPressed, Qt::QueuedConnection);
//   connect(worker, &TapWorker::TapFinished, run, &WorkerThread::quit, Qt::QueuedConnection);
//   run->DeleteWorkerOn(worker, &TapWorker::TapFinished);
//   run->Start();
//
// Every connection between worker and owner, in both directions, is Qt::QueuedConnection, as an automatic one would be
// across threads; only `started` is automatic. Signals carry Qt value types and plain numbers. The worker creates its
// timer with MakeWorkerTimer.
//
// In real time and in virtual time:
// - The run begins inside Start: the worker works, and its timers tick, even while the main thread blocks. In virtual
//   time a slot that is connected to `started` runs during that call.
// - The worker's signals are delivered when the main thread is back in its event loop. `started` reaches the worker
//   before any request; a slot of the worker runs on the worker's thread.
// - After `quit` was handled no event and no tick reaches the worker. It is deleted on the main thread, before
//   `finished`: in virtual time at once, otherwise when the slot that it may be in has returned.
// - `finished` is emitted once, also for a run that was quit before it began, or that the system has no thread for;
//   such a worker never runs.
// - The run deletes itself after `finished`. What was posted to it before (a functor with the run as its context, and
//   one more posted from there) still runs.
// - At the end of the application, all live runs are quit, and waited for up to a limit. Nothing more of them is
//   delivered.
//
// Threads: created and used on the main thread, and belongs to it.
class WorkerThread : public QThread {
  Q_OBJECT

 public:
  // Takes ownership of `worker`, which must have no parent, and moves it to its thread.
  explicit WorkerThread(QObject* worker);
  ~WorkerThread() override;

  // Call it once, and after all connections: the worker may start before this returns.
  void Start();

  // From the first such signal on the worker gets no ticks. Queued requests still reach it, unless quit comes first;
  // later ones do not. Use it for every worker that ends by itself.
  template <typename Worker, typename... Args>
  void DeleteWorkerOn(Worker* worker, void (Worker::*signal)(Args...)) {
    connect(worker, signal, this, &WorkerThread::RetireWorker, Qt::DirectConnection);
  }

  // A precise timer, owned by the worker `owner`, which calls back on the worker's thread. It is marked with
  // kWorkerTimerProperty, so that a blocking pause of the main thread does not delay it in virtual time either.
  static QTimer* MakeWorkerTimer(QObject* owner);

 Q_SIGNALS:
  // Hides QThread's own, which would still reach a worker whose run was quit while its thread started.
  void started(QPrivateSignal);

 public Q_SLOTS:
  // Ends the run; further calls do nothing. Must not be called from the worker's own code.
  void quit();

 protected:
  void run() override;

 private:
  void RetireWorker();
  void EndWithoutThread();
  void DeleteWorker();

  static QList<WorkerThread*>* LiveRuns();
  static void QuitLiveRuns();

  const bool is_virtual_;
  bool begun_ = false;  // main thread: a thread was started, or in virtual time `started` was emitted
  std::atomic<WorkerRunState> state_{WorkerRunState::kOpen};
  QObject* worker_;  // owned; null once it is deleted
};

}  // namespace taviinputmanager

#endif  // CORE_WORKER_THREAD_H_
