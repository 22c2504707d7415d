#include "simulators/wheel/wheel_one_off_worker.h"

#include <QTimer>

#include "core/worker_thread.h"
#include "simulators/item_or_default.h"
#include "simulators/wheel/axis_step.h"

namespace taviinputmanager {
namespace {

constexpr int kTickMs = 8;

}  // namespace

WheelOneOffWorker::WheelOneOffWorker(const tavikeymapmanager::WheelConfigItem* item, int slot_id)
    : item_(ItemOrDefault(item)), slot_id_(slot_id) {}

void WheelOneOffWorker::OneOffProcess() {
  delta_ = AxisVector(item_.axis, DirectionSign(item_.direction) * StepOfSpeed(item_.speed));
  if (delta_.isNull()) return;
  position_ = QPointF(item_.rel_x, item_.rel_y);
  count_ = 0;
  steps_ = item_.duration_ms / kTickMs;
  timer_ = WorkerThread::MakeWorkerTimer(this);
  connect(timer_, &QTimer::timeout, this, &WheelOneOffWorker::OneOffTimerOutTime);
  timer_->start(kTickMs);
}

void WheelOneOffWorker::OneOffTimerOutTime() {
  Q_EMIT OneOffWheelPressed(slot_id_, position_.x(), position_.y());
  position_ += delta_;
  ++count_;
  if (count_ > steps_) Q_EMIT OneOffWheelFinished(slot_id_);
}

void WheelOneOffWorker::OneOffStop() { Q_EMIT OneOffWheelFinished(slot_id_); }

}  // namespace taviinputmanager
