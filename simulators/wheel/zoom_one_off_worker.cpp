#include "simulators/wheel/zoom_one_off_worker.h"

#include <utility>

#include <QTimer>

#include "core/display_geometry.h"
#include "core/guest_command.h"
#include "core/worker_thread.h"
#include "simulators/item_or_default.h"
#include "simulators/wheel/axis_step.h"

namespace taviinputmanager {
namespace {

constexpr int kTickMs = 12;
constexpr int kTogether = 2;  // the direction that ends at the start distance

guest_command::Contact ContactAt(int slot, const QPointF& point) {
  guest_command::Contact contact{slot, kNoPosition, kNoPosition};
  DisplayGeometry::GetInstance()->RelativeToTouch(contact.x, contact.y, point.x(), point.y());
  return contact;
}

bool IsOnDisplay(const guest_command::Contact& contact) { return contact.x != kNoPosition && contact.y != kNoPosition; }

}  // namespace

ZoomOneOffWorker::ZoomOneOffWorker(const tavikeymapmanager::ZoomConfigItem* item, int positive_slot_id,
                                   int negative_slot_id)
    : item_(ItemOrDefault(item)), positive_slot_id_(positive_slot_id), negative_slot_id_(negative_slot_id) {}

void ZoomOneOffWorker::OneOffProcess() {
  const double step = StepOfSpeed(item_.speed);
  steps_ = item_.duration_ms / kTickMs;
  count_ = 0;
  positive_step_ = AxisVector(item_.axis, DirectionSign(item_.direction) * step);
  if (positive_step_.isNull()) return;
  const double distance = item_.start_distance + (item_.direction == kTogether ? steps_ * step : 0.0);
  const QPointF center(item_.rel_x, item_.rel_y);
  positive_point_ = center + AxisVector(item_.axis, distance);
  negative_point_ = center - AxisVector(item_.axis, distance);
  timer_ = WorkerThread::MakeWorkerTimer(this);
  connect(timer_, &QTimer::timeout, this, &ZoomOneOffWorker::OneOffTimerOutTime);
  timer_->start(kTickMs);
}

void ZoomOneOffWorker::OneOffTimerOutTime() {
  Q_EMIT OneOffZoomPressed(BuildCommand());
  positive_point_ += positive_step_;
  negative_point_ -= positive_step_;
  ++count_;
  if (count_ > steps_) Q_EMIT OneOffZoomFinished(positive_slot_id_, negative_slot_id_);
}

// The slot named negative has the point named positive, and vice versa, unless the item swaps them.
QString ZoomOneOffWorker::BuildCommand() const {
  QPointF first = positive_point_;
  QPointF second = negative_point_;
  if (item_.swap_fingers) std::swap(first, second);
  const guest_command::Contact a = ContactAt(negative_slot_id_, first);
  const guest_command::Contact b = ContactAt(positive_slot_id_, second);
  if (!IsOnDisplay(a) || !IsOnDisplay(b)) return {};
  return guest_command::SlotMultiPress({a, b});
}

void ZoomOneOffWorker::OneOffStop() { Q_EMIT OneOffZoomFinished(positive_slot_id_, negative_slot_id_); }

}  // namespace taviinputmanager
