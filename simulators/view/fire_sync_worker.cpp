#include "simulators/view/fire_sync_worker.h"

#include "core/clock.h"
#include "core/display_geometry.h"
#include "core/input_logger.h"
#include "core/numbers.h"
#include "core/pixels.h"
#include "keymap/spell_cancel_config_item.h"
#include "simulators/view/staring_wm_relative_input_worker.h"
#include "slots/fire_slot_manager.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::FireConfigItem;
using tavikeymapmanager::SpellCancelConfigItem;
namespace keywords = tavikeymapmanager::keywords;

namespace {

QPoint PixelOf(double rel_x, double rel_y) {
  const QRect display = DisplayGeometry::GetInstance()->GetDisplayRect();
  return {Truncate(display.width() * rel_x), Truncate(display.height() * rel_y)};
}

}  // namespace

FireSyncWorker* FireSyncWorker::GetInstance() {
  static FireSyncWorker instance;
  return &instance;
}

FireSyncWorker::FireSyncWorker() {
  cancel_timer_.setTimerType(Qt::PreciseTimer);
  connect(&cancel_timer_, &QTimer::timeout, this, &FireSyncWorker::CancelTimerOutTime);
}

FireSyncWorker::~FireSyncWorker() = default;

void FireSyncWorker::OnFirePress(const ConfigItem* item) {
  if (!item) return;
  if (item->type == keywords::kTypeSpellCancel && fire_item_) {
    if (const auto* cancel = dynamic_cast<const SpellCancelConfigItem*>(item)) CancelFire(*cancel);
  } else if (item->type == keywords::kTypeFire && !fire_item_) {
    if (const auto* fire = dynamic_cast<const FireConfigItem*>(item)) StartFire(*fire);
  }
}

void FireSyncWorker::StartFire(const FireConfigItem& item) {
  const unsigned turn = holds_.Begin();
  fire_item_ = item;
  accumulated_ = {};
  fire_offset_.Start(item.offset_enabled);
  const QPoint button = FirePressPoint(&item);
  if (holds_.IsOver(turn)) return;  // the host released the key during its answer
  FireSlotManager::GetInstance()->position = button;
  SendFinger();
  if (!item.relative_mode || holds_.IsOver(turn)) return;
  Q_EMIT sigSubscribeSpellCancelKey();
  Q_EMIT sigSubscribeWmRelativeInputEvent();
}

void FireSyncWorker::CancelFire(const SpellCancelConfigItem& cancel) {
  InputLogger* log = InputLogger::GetInstance();
  if (log->IsDebugOn()) log->Debug("simulate spell cancel event");
  const unsigned turn = holds_.Current();
  const FireSlotManager* finger = FireSlotManager::GetInstance();
  const bool was_down = finger->HasTouch();
  if (was_down) {
    const FireConfigItem item = *fire_item_;
    SwipeFireFinger(&item, finger->position, PixelOf(cancel.rel_x, cancel.rel_y));
  }
  if (holds_.IsOver(turn)) return;  // released from within the swipe
  EndFire();
  if (!was_down || cancel_timer_.isActive()) return;  // the time of an earlier cancel applies
  if (cancel.cancel_delay_ms >= 1) cancel_timer_.start(cancel.cancel_delay_ms);
  if (cancel.cancel_delay_ms == 0) LiftFinger();
}

void FireSyncWorker::OnFireRelease() {
  EndFire();
  LiftFinger();
}

void FireSyncWorker::EndFire() {
  holds_.Begin();
  const bool is_subscribed = fire_item_ && fire_item_->relative_mode;
  fire_item_.reset();
  if (!is_subscribed) return;
  Q_EMIT sigUnSubscribeSpellCancelKey();
  Q_EMIT sigUnSubscribeWmRelativeInputEvent();
}

QPoint FireSyncWorker::FirePressPoint(const FireConfigItem* item) {
  if (!item) return {};
  const bool has_alternative = item->alt_rel_x != 0 || item->alt_rel_y != 0;
  return has_alternative ? PixelOf(item->alt_rel_x, item->alt_rel_y) : PixelOf(item->rel_x, item->rel_y);
}

void FireSyncWorker::SwipeFireFinger(const FireConfigItem* item, QPoint from, QPoint to) {
  if (!item) return;
  const int steps = item->cancel_swipe_steps;
  if (steps < 1) return;
  const double step_x = (static_cast<double>(to.x()) - from.x()) / steps;
  const double step_y = (static_cast<double>(to.y()) - from.y()) / steps;
  const unsigned turn = holds_.Current();
  for (qint64 i = 1; i <= steps && !holds_.IsOver(turn); ++i) {
    const auto done = static_cast<double>(i);
    FireSlotManager::GetInstance()->position = {Round(from.x() + done * step_x), Round(from.y() + done * step_y)};
    SendFinger();
  }
}

void FireSyncWorker::OnFireRelativeInput(int dx, int dy) {
  if (!fire_item_) return;
  accumulated_.Add(dx, dy);
  const qint64 now = Clock::NowMs();
  if (now - last_send_ms_ < fire_item_->move_interval_ms) return;  // the next line includes these counts too
  last_send_ms_ = now;
  const unsigned turn = holds_.Current();
  const QPoint point = RelativePoint(FireConfigItem(*fire_item_));
  if (holds_.IsOver(turn)) return;
  FireSlotManager::GetInstance()->position = point;
  SendFinger();
}

QPoint FireSyncWorker::RelativePoint(const FireConfigItem& item) {
  const double h = DisplayGeometry::GetInstance()->GetDisplayRect().height();
  const QPointF& sensitivity = StaringWmRelativeInputWorker::GetInstance()->GetEffectiveSensitivity();
  if (item.offset_enabled) {
    fire_offset_.OnMovement(accumulated_, sensitivity, h * item.offset_threshold, h * item.offset_length);
  }
  const QPoint start = FirePressPoint(&item);
  const QPoint offset = fire_offset_.Get();
  const QPoint way = Sum(offset, accumulated_.ToPixels(sensitivity));
  if (item.range_mode == keywords::kFireRangeUnlimited) return Sum(start, way);
  // The offset counts twice: inside the circle around the button, and as a displacement of that circle.
  return Sum(offset, DisplayGeometry::ClampToRadius(start, way, start, h * item.range_radius));
}

void FireSyncWorker::CancelTimerOutTime() {
  cancel_timer_.stop();
  LiftFinger();
}

void FireSyncWorker::LiftFinger() {
  FireSlotManager::GetInstance()->Reset();
  SendFinger();
}

void FireSyncWorker::SendFinger() { SendEvent(FireSlotManager::GetInstance()->UpdateLine()); }

}  // namespace taviinputmanager
