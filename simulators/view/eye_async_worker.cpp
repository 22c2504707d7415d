#include "simulators/view/eye_async_worker.h"

#include "core/clock.h"
#include "core/display_geometry.h"
#include "core/numbers.h"
#include "keymap/eye_config_item.h"
#include "simulators/direction_of_key.h"
#include "slots/eye_slot_manager.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::EyeConfigItem;

namespace {

constexpr int kTickMs = 8;
constexpr double kStepAtFullSpeed = 8;  // pixels per tick at speed 100
constexpr int kPadding = 5;             // pixels: a contact closer than this to the display's edge is released

bool IsBetween(int value, int low, int high) { return low <= value && value <= high; }

}  // namespace

EyeAsyncWorker* EyeAsyncWorker::GetInstance() {
  static EyeAsyncWorker instance;
  return &instance;
}

EyeAsyncWorker::EyeAsyncWorker() : finger_(EyeSlotManager::GetInstance()) {
  timer_.setTimerType(Qt::PreciseTimer);
  connect(&timer_, &QTimer::timeout, this, &EyeAsyncWorker::TimerOutTime);
}

void EyeAsyncWorker::Press(const EyeConfigItem* item, const ConfigKey* key) { Update(item, key, true); }

void EyeAsyncWorker::Release(const EyeConfigItem* item, const ConfigKey* key) { Update(item, key, false); }

void EyeAsyncWorker::Update(const EyeConfigItem* item, const ConfigKey* key, bool pressed) {
  if (!item || !key) return;
  finger_->SetDirectionKey(DirectionOfKey(*item, *key), pressed);
  if (finger_->HasDirection() == timer_.isActive()) return;  // a further key only changes the direction
  if (finger_->HasDirection()) return Start(*item);
  timer_.stop();
  Clock::Sleep(kTickMs);  // the last step takes its full time too
  if (!finger_->HasDirection()) LiftFinger();
}

void EyeAsyncWorker::Start(const EyeConfigItem& item) {
  timer_.start(kTickMs);
  display_ = DisplayGeometry::GetInstance()->GetDisplayRect().size();
  if (!finger_->HasDirection()) return;  // the host released the key during its answer
  step_ = Round(item.speed * kStepAtFullSpeed / 100.0);
  finger_->home = {Truncate(display_.width() * item.rel_x), Truncate(display_.height() * item.rel_y)};
  finger_->position = finger_->home;
  SendEvent(finger_->UpdateLine());
}

void EyeAsyncWorker::TimerOutTime() {
  finger_->Step(step_);
  if (IsInWindow()) return SendEvent(finger_->UpdateLine());
  finger_->position = finger_->home;
  SendEvent(finger_->ReleaseLine());
}

bool EyeAsyncWorker::IsInWindow() const {
  const QPoint& position = finger_->position;
  return IsBetween(position.x(), kPadding, SubtractSaturated(display_.width(), kPadding)) &&
         IsBetween(position.y(), kPadding, SubtractSaturated(display_.height(), kPadding));
}

void EyeAsyncWorker::Stop() {
  timer_.stop();
  LiftFinger();
}

void EyeAsyncWorker::LiftFinger() {
  finger_->Reset();
  SendEvent(finger_->UpdateLine());
}

}  // namespace taviinputmanager
