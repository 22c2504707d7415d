#include "simulators/workers/spell_sync_worker.h"

#include <QTimer>

#include "core/clock.h"
#include "core/display_geometry.h"
#include "core/input_logger.h"
#include "core/numbers.h"
#include "keymap/spell_cancel_config_item.h"
#include "keymap/spell_config_item.h"
#include "simulators/workers/left_stick_walk_sync_worker.h"
#include "simulators/workers/right_walk_sync_worker.h"
#include "simulators/workers/spell_aim.h"
#include "slots/spell_slot_manager.h"

// A cast from press to lift. The ways of aiming are in the file beside this one.

namespace taviinputmanager {

using tavikeymapmanager::SpellCancelConfigItem;
using tavikeymapmanager::SpellConfigItem;
namespace keywords = tavikeymapmanager::keywords;

SpellSyncWorker::SpellSyncWorker() : cancel_timer_(new QTimer(this)) {
  cancel_timer_->setTimerType(Qt::PreciseTimer);
  connect(cancel_timer_, &QTimer::timeout, this, &SpellSyncWorker::CancelTimerOutTime);
}

SpellSyncWorker::~SpellSyncWorker() = default;

void SpellSyncWorker::PressAndAim(SpellConfigItem* item, bool from_joystick) {
  StoreItem(*item);
  SetFromJoystick(from_joystick);
  if (from_joystick) {
    MoveFinger(PressPoint(item));
  } else if (spell_aim::IsAimedByWalk(*item)) {
    MoveFinger(CalculateTargetPoint(item));
  } else {
    const QPoint target = CalculateTargetPoint(item);
    SwipeToTarget(item, PressPoint(item), target);
  }
  ChangeSpellState(kSpellAiming, item);
}

void SpellSyncWorker::CastOnRelease(SpellConfigItem* item) {
  if (!spell_item_) return;
  if (!tavikeymapmanager::IsSameKey(spell_item_->key, item->key)) return;
  ChangeSpellState(kSpellCast);
  DropItem();
  LiftFinger();
  AfterCast(item);
}

void SpellSyncWorker::FinishAiming() {
  if (!spell_item_) return;
  MoveFinger(PressPoint(spell_item_.get()));
  ChangeSpellState(kSpellFinished);
  LiftFinger();
}

void SpellSyncWorker::Cancel(SpellCancelConfigItem* item) {
  InputLogger* log = InputLogger::GetInstance();
  if (log->IsDebugOn()) log->Debug("simulate spell cancel event");
  if (!spell_item_) return;

  const QPoint from = SpellSlotManager::GetInstance()->position;
  if (!from.isNull()) {
    const QRect display = DisplayGeometry::GetInstance()->GetDisplayRect();
    const QPoint to(Truncate(display.width() * item->rel_x), Truncate(display.height() * item->rel_y));
    SwipeToCancel(spell_item_.get(), from, to);
    LiftAfter(item->cancel_delay_ms);
  }
  DropItem();  // the state stays, and with it what the aim subscribed to
}

void SpellSyncWorker::LiftAfter(int delay_ms) {
  if (cancel_timer_->isActive()) return;  // an earlier cancel lifts for both
  if (delay_ms >= 1) {
    cancel_timer_->start(delay_ms);
  } else if (delay_ms == 0) {
    LiftFinger();
  }
}

void SpellSyncWorker::CancelTimerOutTime() {
  LiftFinger();
  cancel_timer_->stop();
}

void SpellSyncWorker::ForceStop() {
  LiftFinger();
  ChangeSpellState(kSpellFinished);
}

bool SpellSyncWorker::IsActive() const { return spell_item_ != nullptr; }

void SpellSyncWorker::StoreItem(const SpellConfigItem& item) { spell_item_ = std::make_unique<SpellConfigItem>(item); }

void SpellSyncWorker::DropItem() { spell_item_.reset(); }

void SpellSyncWorker::ChangeSpellState(int state, SpellConfigItem* pressed) {
  if (state != kSpellAiming && state != kSpellCast && state != kSpellFinished) return;
  spell_state_ = static_cast<SpellState>(state);
  if (state == kSpellAiming) return BeginAim(pressed);
  EndAim(state == kSpellCast);
  if (state == kSpellFinished) DropItem();
}

void SpellSyncWorker::BeginAim(SpellConfigItem* pressed) {
  if (!spell_item_) return;  // nothing to aim
  accumulated_ = RelativeCounts();
  spell_offset_.Start(spell_item_->offset_enabled);
  if (spell_item_->touch_location == keywords::kLocationSwipehold) {
    Q_EMIT sigSubscribeSwipehold();  // the answer may cast at once, and the item is gone then
  } else if (spell_item_->touch_location == keywords::kLocationInnerSwipehold) {
    Q_EMIT sigEntrustToInnerSwipehold(pressed ? *pressed : *spell_item_);
  }
}

void SpellSyncWorker::EndAim(bool not_sync_data) {
  if (!spell_item_) return;
  if (spell_item_->touch_location == keywords::kLocationSwipehold) {
    Q_EMIT sigUnSubscribeSwipehold();
  } else if (spell_item_->touch_location == keywords::kLocationInnerSwipehold) {
    Q_EMIT sigCancelEntrustToInnerSwipehold(*spell_item_, not_sync_data);
  }
}

void SpellSyncWorker::AfterCast(const SpellConfigItem* item) {
  if (!item || !item->stop_walk_after_cast) return;
  if (from_joystick_) return LeftStickWalkSyncWorker::GetInstance()->StopWalk();
  RightWalkSyncWorker::GetInstance()->StopWalk();
}

void SpellSyncWorker::MoveFinger(const QPoint& point) {
  auto* slot = SpellSlotManager::GetInstance();
  slot->position = point;
  SendEvent(slot->UpdateLine());
}

void SpellSyncWorker::LiftFinger() {
  auto* slot = SpellSlotManager::GetInstance();
  slot->Reset();
  SendEvent(slot->UpdateLine());
}

void SpellSyncWorker::SwipeToTarget(const SpellConfigItem* item, const QPoint& from, const QPoint& to) {
  if (!item) return;
  MoveFinger(from);
  if (item->mode == keywords::kModeCurve && item->curve_enabled) {
    SwipeAlongCurve(*item, from, to);
  } else {
    Clock::Sleep(item->press_hold_ms);
  }
  for (int i = 1; i < item->swipe_steps; ++i) {
    MoveFinger(spell_aim::StepBetween(from, to, i, item->swipe_steps));
    Clock::Sleep(item->swipe_step_ms);
  }
  MoveFinger(to);
}

void SpellSyncWorker::SwipeAlongCurve(const SpellConfigItem& item, const QPoint& from, const QPoint& to) {
  const QSize display = DisplayGeometry::GetInstance()->GetDisplayRect().size();
  for (int i = 1; i < item.curve_steps; ++i) {
    MoveFinger(spell_aim::CurvePoint(item, from, to, i, display));
    Clock::Sleep(item.curve_step_ms);
  }
}

void SpellSyncWorker::SwipeToCancel(const SpellConfigItem* item, const QPoint& from, const QPoint& to) {
  if (!item || item->swipe_steps < 1) return;
  // By a step of one length, as a fire finger's swipe: half pixels may fall to the other side than in a cast's.
  const double step_x = (static_cast<double>(to.x()) - from.x()) / item->swipe_steps;
  const double step_y = (static_cast<double>(to.y()) - from.y()) / item->swipe_steps;
  for (qint64 i = 1; i <= item->swipe_steps; ++i) {
    MoveFinger({Round(from.x() + i * step_x), Round(from.y() + i * step_y)});
    Clock::Sleep(item->swipe_step_ms);
  }
}

}  // namespace taviinputmanager
