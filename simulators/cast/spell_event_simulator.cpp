#include "simulators/cast/spell_event_simulator.h"

#include <utility>

#include <QTimer>

#include "core/input_status_manager.h"
#include "keymap/spell_cancel_config_item.h"
#include "keymap/spell_config_item.h"
#include "simulators/cast/spell_immediate_sync_worker.h"
#include "simulators/cast/spell_on_next_sync_worker.h"
#include "simulators/cast/spell_on_press_sync_worker.h"
#include "simulators/cast/spell_on_release_sync_worker.h"
#include "simulators/walk/swipehold_async_worker.h"
#include "simulators/walk/swipehold_event_simulator.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::SpellCancelConfigItem;
using tavikeymapmanager::SpellConfigItem;
using tavikeymapmanager::SwipeholdConfigItem;
namespace keywords = tavikeymapmanager::keywords;

namespace {

constexpr int kFollowMs = 16;  // one frame of the guest
constexpr int kInnerWalk = 1;  // index of the worker for the spell's own slot

bool IsJoystick(const ConfigKey* key) { return key->device == keywords::kDeviceJoystick; }

bool IsStaring() { return InputStatusManager::GetInstance()->GetStatus() == InputStatus::Staring; }

// Chosen by the trigger; an unknown trigger casts on release.
SpellSyncWorker* WorkerOf(const SpellConfigItem& item) {
  if (item.trigger == keywords::kTriggerOnPress) return SpellOnPressSyncWorker::GetInstance();
  if (item.trigger == keywords::kTriggerOnNext) return SpellOnNextSyncWorker::GetInstance();
  if (item.trigger == keywords::kTriggerImmediate) return SpellImmediateSyncWorker::GetInstance();
  return SpellOnReleaseSyncWorker::GetInstance();
}

}  // namespace

SpellEventSimulator::SpellEventSimulator() : follow_timer_(new QTimer(this)) {
  follow_timer_->setTimerType(Qt::PreciseTimer);
  connect(follow_timer_, &QTimer::timeout, this, &SpellEventSimulator::TimerOutTime);
}

SpellEventSimulator::~SpellEventSimulator() = default;

void SpellEventSimulator::Press(ConfigItem* item, ConfigKey* key) {
  if (auto* spell = dynamic_cast<SpellConfigItem*>(item)) return PressSpell(spell, IsJoystick(key));
  if (auto* cancel = dynamic_cast<SpellCancelConfigItem*>(item)) PressCancel(cancel);
}

void SpellEventSimulator::Release(ConfigItem* item, ConfigKey* key) {
  auto* spell = dynamic_cast<SpellConfigItem*>(item);
  if (!spell) return;
  current_worker_ = WorkerOf(*spell);
  current_worker_->Release(spell, IsJoystick(key));  // the timer keeps running, and its ticks do nothing
}

void SpellEventSimulator::PressSpell(SpellConfigItem* item, bool from_joystick) {
  FinishOtherKey(*item);
  ConnectWorkersOnce();
  current_worker_ = WorkerOf(*item);
  current_worker_->Press(item, from_joystick);
  if (FollowsPointer()) follow_timer_->start(kFollowMs);
}

// A second spell key ends a spell that is being aimed.
void SpellEventSimulator::FinishOtherKey(const SpellConfigItem& next) {
  if (!current_worker_) return;
  const SpellConfigItem* in_force = current_worker_->GetSpellItem();
  if (in_force && in_force->key.text == next.key.text) return;
  if (!current_worker_->NeedsFinish()) return;
  follow_timer_->stop();
  current_worker_->Finish();
}

void SpellEventSimulator::PressCancel(SpellCancelConfigItem* item) {
  Q_EMIT sigSpellCancelPressed(*item);
  if (!item->cancel_immediately || !current_worker_) return;
  TakeWorker()->Cancel(item);
}

bool SpellEventSimulator::FollowsPointer() const {
  if (!current_worker_ || IsStaring()) return false;
  const SpellConfigItem* item = current_worker_->GetSpellItem();
  return item && (item->touch_location == keywords::kLocationMouse || item->mode == keywords::kModeCurve);
}

void SpellEventSimulator::TimerOutTime() {
  if (FollowsPointer()) current_worker_->Follow();
}

SpellSyncWorker* SpellEventSimulator::TakeWorker() {
  follow_timer_->stop();
  return std::exchange(current_worker_, nullptr);
}

bool SpellEventSimulator::IsSpellActive() const { return current_worker_ && current_worker_->IsActive(); }

void SpellEventSimulator::OnRelativeInput(int dx, int dy) {
  if (!current_worker_ || !IsStaring()) return;
  const SpellConfigItem* item = current_worker_->GetSpellItem();
  if (item && item->touch_location == keywords::kLocationMouse) current_worker_->OnRelativeInput(dx, dy);
}

void SpellEventSimulator::OnJoystickAxis(JoystickAxisEvent* event) {
  if (current_worker_) current_worker_->OnJoystickAxis(event);
}

bool SpellEventSimulator::OnMouseEvent(QMouseEvent* event) {
  SpellSyncWorker* worker = current_worker_;
  if (!worker || !worker->OnMouseEvent(event)) return false;
  if (worker == current_worker_ && !worker->IsActive()) TakeWorker();
  return true;
}

void SpellEventSimulator::ForceStop() {
  if (SpellSyncWorker* worker = TakeWorker()) worker->ForceStop();
}

void SpellEventSimulator::OnSwipeholdTargetPointChanged(QPointF& point) {
  if (current_worker_) current_worker_->OnSwipeholdTargetPoint(point);
}

void SpellEventSimulator::ConnectWorkersOnce() {
  if (is_connected_) return;
  is_connected_ = true;
  ConnectWorker(SpellImmediateSyncWorker::GetInstance());
  ConnectWorker(SpellOnNextSyncWorker::GetInstance());
  ConnectWorker(SpellOnPressSyncWorker::GetInstance());
  ConnectWorker(SpellOnReleaseSyncWorker::GetInstance());
}

void SpellEventSimulator::ConnectWorker(SpellSyncWorker* worker) {
  connect(worker, &SpellSyncWorker::sigSubscribeSwipehold, this, [this] { SubscribeSwipehold(); });
  connect(worker, &SpellSyncWorker::sigUnSubscribeSwipehold, this, [this] { UnsubscribeSwipehold(); });
  connect(worker, &SpellSyncWorker::sigEntrustToInnerSwipehold, this,
          [this, worker](SpellConfigItem& item) { EntrustToInnerSwipehold(worker, item); });
  connect(
      worker, &SpellSyncWorker::sigCancelEntrustToInnerSwipehold, this,
      [this, worker](SpellConfigItem&, bool not_sync_data) { CancelEntrustToInnerSwipehold(worker, not_sync_data); });
}

void SpellEventSimulator::SubscribeSwipehold() {
  SwipeholdEventSimulator* walk = SwipeholdEventSimulator::GetInstance();
  connect(walk, &SwipeholdEventSimulator::sigSwipeholdTargetPointChanged, this,
          &SpellEventSimulator::OnSwipeholdTargetPointChanged, Qt::UniqueConnection);
  // A walk that is already in progress counts.
  walk->QueryPoint([this](QPointF point) { OnSwipeholdTargetPointChanged(point); });
}

void SpellEventSimulator::UnsubscribeSwipehold() {
  disconnect(SwipeholdEventSimulator::GetInstance(), &SwipeholdEventSimulator::sigSwipeholdTargetPointChanged, this,
             &SpellEventSimulator::OnSwipeholdTargetPointChanged);
}

void SpellEventSimulator::EntrustToInnerSwipehold(SpellSyncWorker* worker, SpellConfigItem& item) {
  inner_walkers_.remove(worker);
  std::unique_ptr<SwipeholdConfigItem> inner(item.InnerSwipeholdItem());
  if (!inner || inner->press_mode == keywords::kPressTransparent) return;  // the spell has none
  inner_walkers_.insert(worker);

  SwipeholdEventSimulator* walk = SwipeholdEventSimulator::GetInstance();
  walk->SetExclusiveInner(item.inner_swipehold_exclusive);
  SwipeholdAsyncWorker* inner_walk = SwipeholdAsyncWorker::GetInstance(kInnerWalk);
  inner_walk->SetItem(inner.get());
  walk->AddWorker(inner_walk, inner.get());
  inner_item_ = std::move(inner);
  walk->EntrustToInner();
}

// The item may have been deleted with its keymap, so the aim says whether it has an inner walk.
void SpellEventSimulator::CancelEntrustToInnerSwipehold(SpellSyncWorker* worker, bool not_sync_data) {
  if (!inner_walkers_.remove(worker)) return;
  SwipeholdEventSimulator* walk = SwipeholdEventSimulator::GetInstance();
  if (not_sync_data) walk->CancelEntrustToInner();
  walk->RemoveWorker(SwipeholdAsyncWorker::GetInstance(kInnerWalk));
  walk->SetExclusiveInner(false);
}

}  // namespace taviinputmanager
