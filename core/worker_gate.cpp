#include "core/worker_gate.h"

#include <QEvent>

namespace taviinputmanager {

WorkerRunState MoveOn(std::atomic<WorkerRunState>* state, WorkerRunState to) {
  WorkerRunState before = state->load();
  while (before < to && !state->compare_exchange_weak(before, to)) {
  }
  return before;
}

WorkerGate::WorkerGate(QObject* worker, std::atomic<WorkerRunState>* state) : QObject(worker), state_(state) {
  worker->installEventFilter(this);
}

bool WorkerGate::eventFilter(QObject* watched, QEvent* event) {
  const bool is_worker = watched == parent();
  if (is_worker && event->type() == QEvent::DeferredDelete) {
    MoveOn(state_, WorkerRunState::kRetired);
    return true;
  }
  return state_->load() >= (is_worker ? WorkerRunState::kRetired : WorkerRunState::kRetiring);
}

}  // namespace taviinputmanager
