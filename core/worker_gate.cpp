#include "core/worker_gate.h"

namespace taviinputmanager {

WorkerGate::WorkerGate(QObject* worker, const std::atomic<WorkerRunState>* state) : QObject(worker), state_(state) {
  worker->installEventFilter(this);
}

bool WorkerGate::eventFilter(QObject* watched, QEvent* /*event*/) {
  const bool is_worker = watched == parent();
  return state_->load() >= (is_worker ? WorkerRunState::kClosed : WorkerRunState::kRetiring);
}

}  // namespace taviinputmanager
