#include "simulators/wheel/zoom_event_simulator.h"

#include "core/guest_command.h"
#include "core/worker_thread.h"
#include "keymap/zoom_config_item.h"
#include "simulators/once.h"
#include "simulators/wheel/zoom_one_off_worker.h"
#include "slots/macro_slot_manager.h"
#include "slots/zoom_slot_manager.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::ZoomConfigItem;

ZoomEventSimulator* ZoomEventSimulator::GetInstance() {
  static ZoomEventSimulator instance;
  return &instance;
}

void ZoomEventSimulator::Press(ConfigItem* item, ConfigKey* /*key*/) {
  const auto* zoom = dynamic_cast<const ZoomConfigItem*>(item);
  if (!zoom) return;
  if (ZoomSlotManager::GetInstance()->busy) return;  // the last pinch has not finished yet
  ZoomSlotManager::GetInstance()->busy = true;
  StartRun(*zoom);
  repeat_ = true;
}

void ZoomEventSimulator::Release(ConfigItem* /*item*/, ConfigKey* /*key*/) { repeat_ = false; }

void ZoomEventSimulator::Reset() { Q_EMIT StopOneOffZoom(); }

// If the pool does not have two slots, `busy` stays set on purpose: no key pinches until the slot manager is reset.
void ZoomEventSimulator::StartRun(const ZoomConfigItem& item) {
  MacroSlotManager* pool = MacroSlotManager::GetInstance();
  const int first = pool->FindFree();
  if (first == SlotManager::kNoSlot) return;
  pool->Reserve(first);
  const int second = pool->FindFree();
  if (second == SlotManager::kNoSlot) return pool->Free(first);
  pool->Reserve(second);
  Run(item, second, first);
}

void ZoomEventSimulator::Run(const ZoomConfigItem& item, int positive_slot_id, int negative_slot_id) {
  auto* worker = new ZoomOneOffWorker(&item, positive_slot_id, negative_slot_id);
  auto* run = new WorkerThread(worker);
  connect(run, &WorkerThread::started, worker, &ZoomOneOffWorker::OneOffProcess);
  connect(this, &ZoomEventSimulator::StopOneOffZoom, worker, &ZoomOneOffWorker::OneOffStop, Qt::QueuedConnection);
  run->DeleteWorkerOn(worker, &ZoomOneOffWorker::OneOffZoomFinished);
  // Queued again: the contacts are released and return their slots before the next pinch takes two.
  const auto end = [this, run, item] {
    run->quit();
    if (repeat_) StartRun(item);
  };
  connect(worker, &ZoomOneOffWorker::OneOffZoomFinished, run,
          Once([run, end](int, int) { QMetaObject::invokeMethod(run, end, Qt::QueuedConnection); }),
          Qt::QueuedConnection);
  connect(worker, &ZoomOneOffWorker::OneOffZoomPressed, this, &ZoomEventSimulator::OnZoomPressed, Qt::QueuedConnection);
  connect(worker, &ZoomOneOffWorker::OneOffZoomFinished, this,
          Once([this](int positive, int negative) { OnZoomFinished(positive, negative); }), Qt::QueuedConnection);
  run->Start();
}

void ZoomEventSimulator::OnZoomPressed(const QString& cmd) { SendEvent(cmd); }

void ZoomEventSimulator::OnZoomFinished(int positive_slot_id, int negative_slot_id) {
  MacroSlotManager::GetInstance()->Free(positive_slot_id);
  MacroSlotManager::GetInstance()->Free(negative_slot_id);
  ZoomSlotManager::GetInstance()->Reset();
  SendEvent(guest_command::SlotMultiRelease({positive_slot_id, negative_slot_id}));
}

}  // namespace taviinputmanager
