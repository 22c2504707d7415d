#include "simulators/view/gravity_sync_worker.h"

#include "core/display_geometry.h"
#include "core/numbers.h"
#include "keymap/gravity_config_item.h"
#include "simulators/direction_of_key.h"
#include "slots/gravity_fake_slot_manager.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::GravityConfigItem;

namespace {

constexpr int kTickMs = 8;
constexpr double kMostTilt = 40.0;

}  // namespace

GravitySyncWorker* GravitySyncWorker::GetInstance() {
  static GravitySyncWorker instance;
  return &instance;
}

GravitySyncWorker::GravitySyncWorker() : keys_(GravityFakeSlotManager::GetInstance()) {
  timer_.setTimerType(Qt::PreciseTimer);
  connect(&timer_, &QTimer::timeout, this, &GravitySyncWorker::TimerOutTime);
}

void GravitySyncWorker::Press(const GravityConfigItem* item, const ConfigKey* key) {
  if (!item || !key) return;
  if (!keys_->HasDirection()) {
    step_ = item->speed / 100.0;
    keys_->ClearOffset();
    timer_.start(kTickMs);
  }
  keys_->SetDirectionKey(DirectionOfKey(*item, *key), true);
}

void GravitySyncWorker::Release(const GravityConfigItem* item, const ConfigKey* key) {
  if (!item || !key) return;
  keys_->SetDirectionKey(DirectionOfKey(*item, *key), false);
  if (!keys_->HasDirection()) timer_.stop();
  LevelOut();
}

void GravitySyncWorker::TimerOutTime() {
  keys_->Step(step_);
  const QPointF& offset = keys_->GetOffset();
  gravity_.z = qBound(-kMostTilt, gravity_.z + offset.x(), kMostTilt);
  gravity_.x = qBound(-kMostTilt, gravity_.x - offset.y(), kMostTilt);
  if (last_ == gravity_) return;
  last_ = gravity_;
  SendTilt(gravity_);
}

void GravitySyncWorker::LevelOut() {
  keys_->ClearOffset();
  last_ = kNothingSent;
  gravity_ = {0, 0, 0};
  SendTilt(gravity_);
}

void GravitySyncWorker::Stop() {
  keys_->Reset();
  timer_.stop();
  LevelOut();
}

void GravitySyncWorker::SendTilt(const Tilt& tilt) {
  DisplayGeometry::GetInstance()->SetGravity(Truncate(tilt.x), Truncate(tilt.y), Truncate(tilt.z));
}

}  // namespace taviinputmanager
