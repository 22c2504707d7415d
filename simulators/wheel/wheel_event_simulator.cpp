#include "simulators/wheel/wheel_event_simulator.h"

#include "core/worker_thread.h"
#include "keymap/wheel_config_item.h"
#include "simulators/once.h"
#include "simulators/wheel/wheel_one_off_worker.h"
#include "slots/multipoint_slot_manager.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::WheelConfigItem;

WheelEventSimulator* WheelEventSimulator::GetInstance() {
  static WheelEventSimulator instance;
  return &instance;
}

void WheelEventSimulator::Press(ConfigItem* item, ConfigKey* /*key*/) {
  const auto* wheel = dynamic_cast<const WheelConfigItem*>(item);
  if (!wheel) return;
  if (wheel->direction == 1) repeat_direction_1_ = true;
  if (wheel->direction == 2) repeat_direction_2_ = true;
  StartRun(*wheel);
}

void WheelEventSimulator::Release(ConfigItem* item, ConfigKey* /*key*/) {
  const auto* wheel = dynamic_cast<const WheelConfigItem*>(item);
  if (!wheel) return;
  if (wheel->direction != 2) repeat_direction_1_ = false;
  if (wheel->direction != 1) repeat_direction_2_ = false;
}

void WheelEventSimulator::Reset() {
  repeat_direction_1_ = false;
  repeat_direction_2_ = false;
  Q_EMIT StopOneOffWheel();
}

bool WheelEventSimulator::IsRepeated(int direction) const {
  return (direction == 1 && repeat_direction_1_) || (direction == 2 && repeat_direction_2_);
}

void WheelEventSimulator::StartRun(const WheelConfigItem& item) {
  MultipointSlotManager* pool = MultipointSlotManager::GetInstance();
  if (!pool->PressAt(item.rel_x, item.rel_y)) return;  // no slot is free
  auto* worker = new WheelOneOffWorker(&item, pool->GetSlotId());
  auto* run = new WorkerThread(worker);
  connect(run, &WorkerThread::started, worker, &WheelOneOffWorker::OneOffProcess);
  connect(this, &WheelEventSimulator::StopOneOffWheel, worker, &WheelOneOffWorker::OneOffStop, Qt::QueuedConnection);
  run->DeleteWorkerOn(worker, &WheelOneOffWorker::OneOffWheelFinished);
  // Queued again: the contact is released before the next run takes a slot.
  const auto end = [this, run, item] {
    run->quit();
    if (IsRepeated(item.direction)) StartRun(item);
  };
  connect(worker, &WheelOneOffWorker::OneOffWheelFinished, run,
          Once([run, end](int) { QMetaObject::invokeMethod(run, end, Qt::QueuedConnection); }), Qt::QueuedConnection);
  connect(worker, &WheelOneOffWorker::OneOffWheelPressed, this, &WheelEventSimulator::OnWheelPressed,
          Qt::QueuedConnection);
  connect(worker, &WheelOneOffWorker::OneOffWheelFinished, this,
          Once([this](int slot_id) { OnWheelFinished(slot_id); }), Qt::QueuedConnection);
  run->Start();
}

void WheelEventSimulator::OnWheelPressed(int slot_id, double x, double y) {
  MultipointSlotManager* pool = MultipointSlotManager::GetInstance();
  if (pool->SetSlot(slot_id, x, y)) SendEvent(pool->UpdateLine());
}

void WheelEventSimulator::OnWheelFinished(int slot_id) {
  MultipointSlotManager* pool = MultipointSlotManager::GetInstance();
  if (pool->ReleaseSlot(slot_id)) SendEvent(pool->UpdateLine());
}

}  // namespace taviinputmanager
