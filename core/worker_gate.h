// What keeps events and ticks from a worker whose run is over.
#ifndef CORE_WORKER_GATE_H_
#define CORE_WORKER_GATE_H_

#include <atomic>

#include <QObject>

namespace taviinputmanager {

// How far a run has come. It only moves on.
enum class WorkerRunState : int {
  kOpen,      // everything reaches the worker
  kRetiring,  // the worker deletes itself: no tick reaches it any more
  kClosed     // quit was handled: nothing reaches it any more
};

// An event filter of the worker and of its timers. An event loop that was told to exit still delivers all that it has
// collected, so that leaving the loop is not enough.
//
// A child of the worker: it moves to the worker's thread with it, and dies with it. `state` is written on any thread
// and must outlive the worker.
class WorkerGate : public QObject {
  Q_OBJECT

 public:
  WorkerGate(QObject* worker, const std::atomic<WorkerRunState>* state);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  const std::atomic<WorkerRunState>* state_;
};

}  // namespace taviinputmanager

#endif  // CORE_WORKER_GATE_H_
