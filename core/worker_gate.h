// What keeps events and ticks from a worker whose run is over.
#ifndef CORE_WORKER_GATE_H_
#define CORE_WORKER_GATE_H_

#include <atomic>

#include <QObject>

namespace taviinputmanager {

// How far a run has come. It only moves on.
enum class WorkerRunState : int {
  kOpen,      // everything reaches the worker
  kRetiring,  // the worker gave itself up: no tick reaches it any more
  kRetired,   // its deferred delete is due: nothing reaches it any more
  kClosed,    // quit was handled: nothing reaches it any more
  kLeft       // its thread is through with it
};

// From any thread. Returns what `state` was.
WorkerRunState MoveOn(std::atomic<WorkerRunState>* state, WorkerRunState to);

// An event filter of the worker and of its timers. An event loop that was told to exit still delivers all that it has
// collected, so that leaving the loop is not enough.
//
// A deferred delete of the worker ends here as well: the run deletes it. A worker that deleted itself on its own thread
// could go in the middle of a request that the main thread emits to it, and then Qt 5.15 forgets a part of that
// request.
//
// A child of the worker: it moves to the worker's thread with it, and dies with it. `state` is written on any thread
// and must outlive the worker.
class WorkerGate : public QObject {
  Q_OBJECT

 public:
  WorkerGate(QObject* worker, std::atomic<WorkerRunState>* state);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::atomic<WorkerRunState>* state_;
};

}  // namespace taviinputmanager

#endif  // CORE_WORKER_GATE_H_
