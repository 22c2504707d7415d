#include "simulators/view/staring_wm_relative_input_worker.h"

#include "core/clock.h"
#include "core/numbers.h"
#include "keymap/staring_config_item.h"
#include "slots/mouse_slot_manager.h"

namespace taviinputmanager {

using tavikeymapmanager::StaringConfigItem;

namespace {

// Pixels per count from the item's per cent and the user's factor: linear from 1 per cent at factor 0 to the item's
// value at 1, and from there to 200 per cent at 2.
double EffectiveSensitivity(double base, double factor, double present) {
  if (!(base > 0)) return present;  // an axis without a value keeps its previous one
  const double percent = factor <= 1.0 ? (base - 1) * factor + 1 : (200 - base) * (factor - 1) + base;
  return percent / 100;
}

}  // namespace

StaringWmRelativeInputWorker::StaringWmRelativeInputWorker()
    : finger_(MouseSlotManager::GetInstance()), last_send_ms_(Clock::NowMs()) {
  auto_reset_timer_.setTimerType(Qt::PreciseTimer);
  connect(&auto_reset_timer_, &QTimer::timeout, this, &StaringWmRelativeInputWorker::OnPerioidAutoResetTimerOutOfTime);
}

StaringWmRelativeInputWorker::~StaringWmRelativeInputWorker() = default;

void StaringWmRelativeInputWorker::StartStaring(const StaringConfigItem* item) {
  if (!item) return;
  range_.Prepare({item->rel_x, item->rel_y}, item->range_size);
  base_sensitivity_ = QPointF(item->sensitivity_x, item->sensitivity_y);
  UpdateEffectiveSensitivity();
  if (item->auto_reset_period_ms > 0 && item->auto_reset) auto_reset_timer_.start(item->auto_reset_period_ms);
}

void StaringWmRelativeInputWorker::StopAutoReset() { auto_reset_timer_.stop(); }

void StaringWmRelativeInputWorker::SetHandyStaringSensitivity(double x, double y) {
  handy_factor_x_ = x;
  handy_factor_y_ = y;
  UpdateEffectiveSensitivity();
}

void StaringWmRelativeInputWorker::UpdateEffectiveSensitivity() {
  effective_sensitivity_ = {EffectiveSensitivity(base_sensitivity_.x(), handy_factor_x_, effective_sensitivity_.x()),
                            EffectiveSensitivity(base_sensitivity_.y(), handy_factor_y_, effective_sensitivity_.y())};
}

void StaringWmRelativeInputWorker::OnStaringRelativeInput(const StaringConfigItem* item, int dx, int dy) {
  if (!item) return;
  accumulated_.Add(dx, dy);
  const bool is_down = finger_->HasTouch();
  const qint64 now = Clock::NowMs();
  if (now - last_send_ms_ < (is_down ? item->move_interval_ms : item->press_interval_ms)) return;  // too early to send
  const QPoint& centre = range_.GetCentre();
  if (is_down) {
    const QPoint way = accumulated_.ToPixels(effective_sensitivity_);
    finger_->position = {AddSaturated(centre.x(), way.x()), AddSaturated(centre.y(), way.y())};
  } else {
    finger_->position = centre;
    accumulated_ = {};
  }
  last_send_ms_ = now;
  ApplyStaringRange(item);
}

void StaringWmRelativeInputWorker::ApplyStaringRange(const StaringConfigItem* item) {
  if (!item) return;
  range_.Apply(finger_, item->auto_reset, item->range_mode);
  SendEvent(finger_->UpdateLine());
}

void StaringWmRelativeInputWorker::OnPerioidAutoResetTimerOutOfTime() {
  finger_->Reset();
  last_send_ms_ = Clock::NowMs();
  SendEvent(finger_->UpdateLine());
}

}  // namespace taviinputmanager
