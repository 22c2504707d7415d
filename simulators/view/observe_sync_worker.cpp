#include "simulators/view/observe_sync_worker.h"

#include "core/clock.h"
#include "core/display_geometry.h"
#include "core/numbers.h"
#include "slots/mouse_slot_manager.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ObserveConfigItem;

namespace {

constexpr int kLiftMs = 40;  // games need the view contact to be up for a while before they accept another one

}  // namespace

ObserveSyncWorker* ObserveSyncWorker::GetInstance() {
  static ObserveSyncWorker instance;
  return &instance;
}

ObserveSyncWorker::ObserveSyncWorker() {
  observe_timer_.setTimerType(Qt::PreciseTimer);
  connect(&observe_timer_, &QTimer::timeout, this, &ObserveSyncWorker::ObserveTimerOutTime);
}

ObserveSyncWorker::~ObserveSyncWorker() = default;

void ObserveSyncWorker::ObserveTimerOutTime() {}

void ObserveSyncWorker::OnObservePress(const ConfigItem* item) {
  if (observe_item_) return;  // one key at a time
  if (!item || item->type != tavikeymapmanager::keywords::kTypeObserve) return;
  const auto* observe = dynamic_cast<const ObserveConfigItem*>(item);
  if (!observe) return;
  observe_item_ = *observe;
  const QRect display = DisplayGeometry::GetInstance()->GetDisplayRect();
  observe_centre_ = {Round(display.width() * observe->rel_x), Round(display.height() * observe->rel_y)};
  LiftFinger();
  Clock::Sleep(kLiftMs);
  if (observe_item_) Q_EMIT sigSubscribeWmRelativeInputEvent();  // otherwise the host released the key meanwhile
}

void ObserveSyncWorker::OnObserveRelativeInput(int dx, int dy) {
  if (!observe_item_) return;
  accumulated_.Add(dx, dy);
  const qint64 now = Clock::NowMs();
  if (now - last_send_ms_ < observe_item_->move_interval_ms) return;  // the next line includes these counts too
  MouseSlotManager* finger = MouseSlotManager::GetInstance();
  if (finger->HasTouch()) {
    MoveFinger();
  } else {
    finger->position = observe_centre_;
  }
  last_send_ms_ = now;
  SendEvent(finger->UpdateLine());
}

void ObserveSyncWorker::MoveFinger() {
  const int ix = MultiplyWrapped(observe_item_->sensitivity_x, accumulated_.x);
  const int iy = MultiplyWrapped(observe_item_->sensitivity_y, accumulated_.y);
  QPoint& position = MouseSlotManager::GetInstance()->position;
  position = {AddSaturated(position.x(), Round(ix * observe_item_->sensitivity / 100.0)),
              AddSaturated(position.y(), Round(iy * observe_item_->sensitivity / 100.0))};
  accumulated_ = {};
}

void ObserveSyncWorker::OnObserveRelease() {
  observe_item_.reset();
  Q_EMIT sigUnSubscribeWmRelativeInputEvent();
  LiftFinger();
}

void ObserveSyncWorker::LiftFinger() {
  MouseSlotManager* finger = MouseSlotManager::GetInstance();
  finger->Reset();
  SendEvent(finger->UpdateLine());
}

}  // namespace taviinputmanager
