#include "simulators/curve/curve_async_worker.h"

#include <QTimer>

#include "core/worker_thread.h"
#include "simulators/item_or_default.h"
#include "slots/curve_slot_manager.h"

namespace taviinputmanager {
namespace {

constexpr int kTickMs = 8;

}  // namespace

CurveAsyncWorker::CurveAsyncWorker(const tavikeymapmanager::CurveConfigItem* item)
    : item_(ItemOrDefault(item)), points_(item_) {
  CurveSlotManager::GetInstance()->SetOrigin({item_.rel_x, item_.rel_y});
}

bool CurveAsyncWorker::HasKey(const QString& device, int scancode) const {
  return device == item_.key.device && scancode == item_.key.scancode;
}

void CurveAsyncWorker::Process() {
  count_ = 0;
  if (!timer_) {
    timer_ = WorkerThread::MakeWorkerTimer(this);
    connect(timer_, &QTimer::timeout, this, &CurveAsyncWorker::TimerOutTime);
  }
  timer_->start(item_.curve_first_delay_ms < 1 ? kTickMs : item_.curve_first_delay_ms);
}

void CurveAsyncWorker::TimerOutTime() {
  if (count_ >= points_.Count()) {
    Q_EMIT CurveFinished(false);  // the timer keeps running
    return;
  }
  if (const auto point = points_.At(count_)) Q_EMIT CurvePointPressed(point->x(), point->y());
  timer_->start(kTickMs);
  ++count_;
}

void CurveAsyncWorker::Stop(const QString& device, int scancode) {
  if (HasKey(device, scancode)) Q_EMIT CurveFinished(true);  // the timer keeps running
}

}  // namespace taviinputmanager
