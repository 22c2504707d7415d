#include "simulators/curve/curve_event_simulator.h"

#include <algorithm>
#include <utility>

#include <QMutexLocker>

#include "core/worker_thread.h"
#include "keymap/curve_config_item.h"
#include "simulators/curve/curve_async_worker.h"
#include "slots/curve_slot_manager.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::CurveConfigItem;

CurveEventSimulator* CurveEventSimulator::GetInstance() {
  static CurveEventSimulator instance;
  return &instance;
}

void CurveEventSimulator::Press(ConfigItem* item, ConfigKey* /*key*/) {
  const auto* curve = dynamic_cast<const CurveConfigItem*>(item);
  if (curve) StartRun(*curve, false);
}

void CurveEventSimulator::Wheel(ConfigItem* item, ConfigKey* /*key*/) {
  if (HasRuns()) return;
  const auto* curve = dynamic_cast<const CurveConfigItem*>(item);
  if (curve) StartRun(*curve, true);
}

void CurveEventSimulator::Release(ConfigItem* /*item*/, ConfigKey* key) {
  bool found = false;
  {
    const QMutexLocker lock(&mutex_);
    const auto rest = std::remove_if(workers_.begin(), workers_.end(), [key](const CurveAsyncWorker* worker) {
      return worker->HasKey(key->device, key->scancode);
    });
    found = rest != workers_.end();
    workers_.erase(rest, workers_.end());
  }
  if (!found) return OnCurveFinished();  // the run has ended, and left the contact down
  Q_EMIT StopCurve(key->device, key->scancode);
}

void CurveEventSimulator::Reset() {
  {
    const QMutexLocker lock(&mutex_);
    while (!workers_.isEmpty()) {
      const ConfigKey key = workers_.takeFirst()->GetKey();
      Q_EMIT StopCurve(key.device, key.scancode);  // the stops come later: all receivers are queued
    }
  }
  OnCurveFinished();
}

void CurveEventSimulator::StartRun(const CurveConfigItem& item, bool lifts_at_end) {
  auto* worker = new CurveAsyncWorker(&item);
  auto* run = new WorkerThread(worker);
  connect(run, &WorkerThread::started, worker, &CurveAsyncWorker::Process);
  connect(this, &CurveEventSimulator::StopCurve, worker, &CurveAsyncWorker::Stop, Qt::QueuedConnection);
  const auto on_point = [this, worker](double x, double y) {
    if (IsLive(worker)) OnCurvePointPressed(x, y);
  };
  connect(worker, &CurveAsyncWorker::CurvePointPressed, this, on_point, Qt::QueuedConnection);
  // A busy main thread may find the end reported more than once; worker and run are deleted after the first.
  const auto on_finished = [this, worker, run, lifts_at_end, is_over = false](bool force_stop) mutable {
    if (!std::exchange(is_over, true)) return EndRun(worker, run, force_stop || lifts_at_end);
    if (force_stop || lifts_at_end) OnCurveFinished();
  };
  connect(worker, &CurveAsyncWorker::CurveFinished, this, on_finished, Qt::QueuedConnection);
  // Also called without a reported end: the system may have had no thread for the run.
  connect(
      worker, &QObject::destroyed, this, [this, worker] { TakeOffList(worker); }, Qt::DirectConnection);
  run->Start();
  const QMutexLocker lock(&mutex_);
  workers_.append(worker);
}

bool CurveEventSimulator::TakeOffList(CurveAsyncWorker* worker) {
  const QMutexLocker lock(&mutex_);
  return workers_.removeOne(worker);
}

void CurveEventSimulator::EndRun(CurveAsyncWorker* worker, WorkerThread* run, bool lifts) {
  const bool was_live = TakeOffList(worker);
  run->quit();
  if (lifts || !was_live) OnCurveFinished();
}

bool CurveEventSimulator::IsLive(CurveAsyncWorker* worker) {
  const QMutexLocker lock(&mutex_);
  return workers_.contains(worker);
}

bool CurveEventSimulator::HasRuns() {
  const QMutexLocker lock(&mutex_);
  return !workers_.isEmpty();
}

void CurveEventSimulator::OnCurvePointPressed(double rel_x, double rel_y) {
  CurveSlotManager* finger = CurveSlotManager::GetInstance();
  finger->SetOffset(rel_x, rel_y);
  SendEvent(finger->UpdateLine());
}

void CurveEventSimulator::OnCurveFinished() {
  CurveSlotManager* finger = CurveSlotManager::GetInstance();
  finger->Reset();
  SendEvent(finger->ReleaseLine());
}

}  // namespace taviinputmanager
