#include "simulators/cast/spell_sync_worker.h"

#include <QTimer>

#include "core/clock.h"
#include "core/display_geometry.h"
#include "core/input_logger.h"
#include "core/numbers.h"
#include "keymap/spell_cancel_config_item.h"
#include "keymap/spell_config_item.h"
#include "simulators/cast/spell_aim.h"
#include "simulators/walk/left_stick_walk_sync_worker.h"
#include "simulators/walk/right_walk_sync_worker.h"
#include "slots/spell_slot_manager.h"

// A cast from press to release. The aiming is in spell_sync_worker_aim.cpp.

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
  const unsigned cast = CurrentCast();
  const QPoint button = PressPoint(item);
  const QPoint target = from_joystick ? button : CalculateTargetPoint(item);
  if (IsCastOver(cast)) return;
  if (from_joystick || spell_aim::IsAimedByWalk(*item)) {
    MoveFinger(target);
  } else {
    SwipeToTarget(item, button, target);
  }
  if (!IsCastOver(cast)) ChangeSpellState(kSpellAiming, item);
}

void SpellSyncWorker::CastOnRelease(SpellConfigItem* item) {
  if (!spell_item_) return;
  if (!tavikeymapmanager::IsSameKey(spell_item_->key, item->key)) return;
  const unsigned cast = CurrentCast();
  ChangeSpellState(kSpellCast);
  if (IsCastOver(cast)) return;
  DropItem();
  LiftFinger();
  AfterCast(item);
}

void SpellSyncWorker::FinishAiming() {
  if (!spell_item_) return;
  const Item item = spell_item_;
  const unsigned cast = CurrentCast();
  MoveFinger(PressPoint(item.get()));
  if (IsCastOver(cast)) return;
  ChangeSpellState(kSpellFinished);
  LiftFinger();
}

void SpellSyncWorker::Cancel(SpellCancelConfigItem* item) {
  InputLogger* log = InputLogger::GetInstance();
  if (log->IsDebugOn()) log->Debug("simulate spell cancel event");
  if (!spell_item_) return;

  const Item in_force = spell_item_;
  const unsigned cast = CurrentCast();
  const QPoint from = SpellSlotManager::GetInstance()->position;
  if (!from.isNull()) {
    const QRect display = DisplayGeometry::GetInstance()->GetDisplayRect();
    const QPoint to(Truncate(display.width() * item->rel_x), Truncate(display.height() * item->rel_y));
    if (!IsCastOver(cast)) SwipeToCancel(in_force.get(), from, to);
  }
  if (IsCastOver(cast)) return;
  DropItem();  // the state stays, and with it the connections of the aim
  if (!from.isNull()) LiftAfter(item->cancel_delay_ms);
}

void SpellSyncWorker::LiftAfter(int delay_ms) {
  if (cancel_timer_->isActive()) return;  // an earlier cancel releases for both
  if (delay_ms >= 1) {
    cancel_timer_->start(delay_ms);
  } else if (delay_ms == 0) {
    LiftFinger();
  }
}

void SpellSyncWorker::CancelTimerOutTime() {
  cancel_timer_->stop();
  LiftFinger();
}

void SpellSyncWorker::ForceStop() {
  ChangeSpellState(kSpellFinished);  // which sends nothing
  LiftFinger();
}

bool SpellSyncWorker::IsActive() const { return spell_item_ != nullptr; }

void SpellSyncWorker::StoreItem(const SpellConfigItem& item) {
  casts_.Begin();
  spell_item_ = std::make_shared<SpellConfigItem>(item);
}

void SpellSyncWorker::DropItem() {
  casts_.Begin();
  spell_item_.reset();
}

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
    Q_EMIT sigSubscribeSwipehold();  // the host's answer may have cast at once, and the item is deleted then
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

void SpellSyncWorker::StepTo(const QPoint& point, int pause_ms, unsigned cast) {
  if (!IsCastOver(cast)) MoveFinger(point);
  if (!IsCastOver(cast)) Clock::Sleep(pause_ms);
}

void SpellSyncWorker::SwipeToTarget(const SpellConfigItem* item, const QPoint& from, const QPoint& to) {
  if (!item) return;
  const unsigned cast = CurrentCast();
  if (item->mode == keywords::kModeCurve && item->curve_enabled) {
    StepTo(from, 0, cast);
    SwipeAlongCurve(*item, from, to, cast);
  } else {
    StepTo(from, item->press_hold_ms, cast);
  }
  for (int i = 1; i < item->swipe_steps; ++i) {
    StepTo(spell_aim::StepBetween(from, to, i, item->swipe_steps), item->swipe_step_ms, cast);
  }
  StepTo(to, 0, cast);
}

void SpellSyncWorker::SwipeAlongCurve(const SpellConfigItem& item, const QPoint& from, const QPoint& to,
                                      unsigned cast) {
  const QSize display = DisplayGeometry::GetInstance()->GetDisplayRect().size();
  for (int i = 1; i < item.curve_steps; ++i) {
    StepTo(spell_aim::CurvePoint(item, from, to, i, display), item.curve_step_ms, cast);
  }
}

void SpellSyncWorker::SwipeToCancel(const SpellConfigItem* item, const QPoint& from, const QPoint& to) {
  if (!item || item->swipe_steps < 1) return;
  // With the rounding of a fire contact's swipe, where half pixels may be rounded to the other side than in a cast's.
  const double step_x = (static_cast<double>(to.x()) - from.x()) / item->swipe_steps;
  const double step_y = (static_cast<double>(to.y()) - from.y()) / item->swipe_steps;
  const unsigned cast = CurrentCast();
  for (qint64 i = 1; i <= item->swipe_steps; ++i) {
    const auto done = static_cast<double>(i);
    StepTo({Round(from.x() + done * step_x), Round(from.y() + done * step_y)}, item->swipe_step_ms, cast);
  }
}

}  // namespace taviinputmanager
