#include "simulators/gamepad/vstick_simulator.h"

#include "simulators/walk/swipehold_async_worker.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::SwipeholdConfigItem;

SwipeholdAsyncWorker* VStickSimulator::Worker() const { return SwipeholdAsyncWorker::GetInstance(index_); }

void VStickSimulator::FollowWorker() {
  if (is_following_) return;
  is_following_ = true;
  connect(Worker(), &SwipeholdAsyncWorker::sigSwipeholdTargetPointChanged, this,
          [this](QPointF& point) { Report(point); });
}

void VStickSimulator::Press(ConfigItem* item, ConfigKey* key) {
  FollowWorker();
  auto* stick = dynamic_cast<SwipeholdConfigItem*>(item);
  if (!stick) return;  // not four keys
  Worker()->Press(stick, key);
}

void VStickSimulator::Release(ConfigItem* item, ConfigKey* key) {
  auto* stick = dynamic_cast<SwipeholdConfigItem*>(item);
  if (!stick) return;  // not four keys
  Worker()->SetItem(stick);
  Worker()->Release(stick, key);
}

}  // namespace taviinputmanager
