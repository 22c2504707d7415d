#include "simulators/bunch_tap_worker.h"

#include <QTimer>

#include "core/numbers.h"
#include "core/worker_thread.h"

namespace taviinputmanager {

std::optional<int> BunchTapWorker::PeriodOfFrequency(int taps_per_second) {
  if (taps_per_second <= 0) return std::nullopt;
  return Truncate(500.0 / taps_per_second);
}

BunchTapWorker::BunchTapWorker(std::optional<int> period_ms, std::optional<int> taps)
    : period_ms_(period_ms), taps_(taps) {}

void BunchTapWorker::Begin(const std::function<void()>& on_timeout) {
  count_ = 0;
  if (!timer_) {
    timer_ = WorkerThread::MakeWorkerTimer(this);
    connect(timer_, &QTimer::timeout, this, on_timeout);
  }
  Beat();
  if (period_ms_) timer_->start(*period_ms_);
}

void BunchTapWorker::Beat() {
  count_ = AddWrapped(count_, 1);
  if (count_ % 2 != 0) {
    EmitPressed();
  } else {
    EmitReleased();
  }
  if (taps_ && count_ / 2 == *taps_) EmitFinished();
}

void BunchTapWorker::StopTimer() {
  if (timer_) timer_->stop();
}

}  // namespace taviinputmanager
