#include "host/simulation/virtual_event_dispatcher.h"

#include <algorithm>

#include <QCoreApplication>
#include <QTimerEvent>
#include <QVariant>

namespace tavi {

VirtualEventDispatcher::VirtualEventDispatcher(qint64 start_ms) : now_(start_ms) {}

void VirtualEventDispatcher::Advance(int ms) { RunUntil(now_ + ms, false); }

void VirtualEventDispatcher::Settle() {
  do {
    woken_ = false;
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  } while (woken_);
}

void VirtualEventDispatcher::Sleep(unsigned long ms) { RunUntil(now_ + static_cast<qint64>(ms), true); }

void VirtualEventDispatcher::RunUntil(qint64 end, bool workers_only) {
  for (;;) {
    if (!workers_only) Settle();
    const Timer* next = nullptr;
    for (const Timer& timer : qAsConst(timers_)) {
      if (workers_only && !timer.object->property(taviinputmanager::kWorkerTimerProperty).toBool()) continue;
      if (!next || timer.due < next->due || (timer.due == next->due && timer.order < next->order)) next = &timer;
    }
    if (!next || next->due > end) break;
    if (next->interval == 0 && next->due == end && end == now_) break;
    now_ = std::max(now_, next->due);
    Fire(next->id);
  }
  now_ = std::max(now_, end);
  if (!workers_only) Settle();
}

void VirtualEventDispatcher::Fire(int id) {
  for (Timer& timer : timers_) {
    if (timer.id != id) continue;
    timer.due += std::max(timer.interval, 1);
    if (timer.due < now_) timer.due = now_ + timer.interval;
    timer.order = ++order_;
    QTimerEvent event(id);
    QCoreApplication::sendEvent(timer.object, &event);
    return;
  }
}

bool VirtualEventDispatcher::processEvents(QEventLoop::ProcessEventsFlags) {
  Settle();
  return true;
}

void VirtualEventDispatcher::registerTimer(int id, int interval, Qt::TimerType type, QObject* object) {
  timers_.append({id, interval, now_ + interval, ++order_, type, object});
}

bool VirtualEventDispatcher::unregisterTimer(int id) {
  const auto at = std::find_if(timers_.begin(), timers_.end(), [id](const Timer& timer) { return timer.id == id; });
  if (at == timers_.end()) return false;
  timers_.erase(at);
  return true;
}

bool VirtualEventDispatcher::unregisterTimers(QObject* object) {
  const auto end =
      std::remove_if(timers_.begin(), timers_.end(), [object](const Timer& t) { return t.object == object; });
  const bool any = end != timers_.end();
  timers_.erase(end, timers_.end());
  return any;
}

QList<QAbstractEventDispatcher::TimerInfo> VirtualEventDispatcher::registeredTimers(QObject* object) const {
  QList<TimerInfo> infos;
  for (const Timer& timer : timers_) {
    if (timer.object == object) infos.append(TimerInfo(timer.id, timer.interval, timer.type));
  }
  return infos;
}

int VirtualEventDispatcher::remainingTime(int id) {
  for (const Timer& timer : qAsConst(timers_)) {
    if (timer.id == id) return static_cast<int>(std::max<qint64>(0, timer.due - now_));
  }
  return -1;
}

}  // namespace tavi
