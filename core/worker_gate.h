// Blocks events and ticks to a worker whose run is over.
#ifndef CORE_WORKER_GATE_H_
#define CORE_WORKER_GATE_H_

#include <atomic>

#include <QObject>

namespace taviinputmanager {

// The progress of a run. It only increases.
enum class WorkerRunState : int {
  kOpen,      // everything reaches the worker
  kRetiring,  // the worker has finished: no tick reaches it anymore
  kRetired,   // its deferred delete is due: nothing reaches it anymore
  kClosed,    // quit was handled: nothing reaches it anymore
  kLeft       // its thread no longer uses it
};

// Any thread. Returns the previous `state`.
WorkerRunState MoveOn(std::atomic<WorkerRunState>* state, WorkerRunState to);

// An event filter of the worker and of its timers. An event loop that was told to exit still delivers all the events
// that it has collected, so leaving the loop is not enough.
//
// It also blocks a deferred delete of the worker: the run deletes it. A worker that deleted itself on its own thread
// could be destroyed while the main thread emits a request to it, and then Qt 5.15 loses a part of that request.
//
// A child of the worker: it moves to the worker's thread with it, and is destroyed with it. `state` is written on any
// thread and must outlive the worker.
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
