// Runs a timed worker beside the main thread.
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
// Every connection between worker and owner, both ways, is Qt::QueuedConnection, which is what an automatic one would
// be across threads; `started` alone is left automatic. Signals carry Qt value types and plain numbers. The worker
// makes its timer by MakeWorkerTimer.
//
// In real time and in virtual time alike:
// - The run begins inside Start: the worker works, and its timers tick, also while the main thread blocks. In virtual
//   time a slot that `started` is connected to runs in that very call.
// - What the worker signals waits until the main thread is back in its event loop. `started` reaches the worker before
//   any request; a slot of it runs where the worker lives.
// - After `quit` was handled no event and no tick reaches the worker. It is deleted on the main thread: in virtual time
//   at once, else when the slot that it may be in has returned, ahead of `finished`.
// - `finished` comes once, also for a run that was quit before it began, or that the system has no thread for; such a
//   worker never runs.
// - The run deletes itself after `finished`. What was posted to it before (a functor with the run as its context, and
//   one more posted from there) still runs.
// - When the application goes, all live runs are quit, and waited for within a limit. Nothing of them is delivered any
//   more.
//
// Threads: made and used on the main thread, and lives there.
class WorkerThread : public QThread {
  Q_OBJECT

 public:
  // Takes ownership of `worker`, which has no parent, and moves it to where it will run.
  explicit WorkerThread(QObject* worker);
  ~WorkerThread() override;

  // Once, and after all connections: the worker may be at work before this returns.
  void Start();

  // From the first such signal on the worker gets no tick. Requests that were on their way still reach it, unless quit
  // comes first; later ones do not. To be used for every worker that ends its own life.
  template <typename Worker, typename... Args>
  void DeleteWorkerOn(Worker* worker, void (Worker::*signal)(Args...)) {
    connect(worker, signal, this, &WorkerThread::RetireWorker, Qt::DirectConnection);
  }

  // A precise timer, owned by the worker `owner`, called where that worker runs. It is marked with
  // kWorkerTimerProperty, so that a blocking pause of the main thread does not hold it up in virtual time either.
  static QTimer* MakeWorkerTimer(QObject* owner);

 Q_SIGNALS:
  // In place of QThread's own, which would still reach a worker whose run was quit as its thread came up.
  void started(QPrivateSignal);

 public Q_SLOTS:
  // Ends the run; further calls do nothing. Not from inside the worker's own code.
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
