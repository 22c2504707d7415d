#include "host/system/timed_dispatcher.h"

#include <algorithm>
#include <iterator>
#include <tuple>

#include <QCoreApplication>
#include <QTimerEvent>

namespace tavi {

void TimedDispatcher::registerTimer(int id, Interval interval_ms, Qt::TimerType type, QObject* object) {
  timers_[id] = {id, interval_ms, type, object, Now() + interval_ms * ticks_of_ms_, next_order_++};
}

bool TimedDispatcher::unregisterTimer(int id) { return timers_.erase(id) > 0; }

bool TimedDispatcher::unregisterTimers(QObject* object) {
  const size_t before = timers_.size();
  for (auto it = timers_.begin(); it != timers_.end();) {
    it = it->second.object == object ? timers_.erase(it) : std::next(it);
  }
  return timers_.size() < before;
}

QList<QAbstractEventDispatcher::TimerInfo> TimedDispatcher::registeredTimers(QObject* object) const {
  QList<TimerInfo> found;
  for (const auto& entry : timers_) {
    const Timer& timer = entry.second;
    if (timer.object == object) found.append(TimerInfo(timer.id, static_cast<int>(timer.interval_ms), timer.type));
  }
  return found;
}

// Rounded up to whole milliseconds.
int TimedDispatcher::remainingTime(int id) {
  const auto found = timers_.find(id);
  if (found == timers_.end()) return -1;
  const qint64 ticks = std::max<qint64>(found->second.due - Now(), 0);
  return static_cast<int>((ticks + ticks_of_ms_ - 1) / ticks_of_ms_);
}

TimedDispatcher::Timer* TimedDispatcher::Earliest(qint64 limit, quint64 idle_before, TimerTest test) {
  Timer* first = nullptr;
  for (auto& entry : timers_) {
    Timer& timer = entry.second;
    if (timer.due > limit) continue;
    if (timer.interval_ms == 0 && timer.order >= idle_before) continue;
    if (first && std::tie(first->due, first->order) < std::tie(timer.due, timer.order)) continue;
    if (test(timer)) first = &timer;
  }
  return first;
}

void TimedDispatcher::Fire(Timer* timer, qint64 pass) {
  const qint64 interval = timer->interval_ms * ticks_of_ms_;
  timer->due += interval;
  if (timer->due < pass) timer->due = pass + interval;
  timer->order = next_order_++;
  if (timer->in_handler) return;
  timer->in_handler = true;
  QTimerEvent event(timer->id);
  QCoreApplication::sendEvent(timer->object, &event);
  // The handler may have stopped the timer, or deleted its object.
  const auto found = timers_.find(event.timerId());
  if (found != timers_.end()) found->second.in_handler = false;
}

}  // namespace tavi
