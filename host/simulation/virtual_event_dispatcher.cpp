#include "host/simulation/virtual_event_dispatcher.h"

#include <algorithm>
#include <limits>
#include <tuple>

#include <QCoreApplication>
#include <QScopedValueRollback>
#include <QTimerEvent>
#include <QVariant>

namespace tavi {

namespace {

constexpr qint64 kEver = std::numeric_limits<qint64>::max();

}  // namespace

VirtualEventDispatcher::VirtualEventDispatcher(qint64 start_ms) : now_ms_(start_ms) {}

void VirtualEventDispatcher::Advance(int ms) { RunUntil(NowMs() + std::max(ms, 0), Scope::kAll); }

void VirtualEventDispatcher::Sleep(unsigned long ms) { RunUntil(NowMs() + static_cast<qint64>(ms), Scope::kWorkers); }

void VirtualEventDispatcher::Settle() {
  do {
    // One call delivers only what was posted before it began; wakeUp reports what was posted since.
    do {
      posted_ = false;
      also_deliver_();
      QCoreApplication::sendPostedEvents();
    } while (posted_);
    // Nobody else delivers a deferred delete from outside any event loop. From inside one, Qt's own rule applies: the
    // object exists until the handler that deleted it has returned.
    if (loop_depth_ == 0) QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  } while (posted_);
}

// For all timers, or in a blocking sleep only for those of the workers; nothing is delivered then.
void VirtualEventDispatcher::RunUntil(qint64 end_ms, Scope scope) {
  for (;;) {
    if (scope == Scope::kAll) Settle();
    // A pass with only 0 ms timers takes a millisecond.
    const Timer* next = Earliest(end_ms, scope, NowMs() < end_ms ? next_order_ : 0);
    if (!next) break;
    now_ms_ = std::max(NowMs(), next->due_ms);
    RunPass(std::min(NowMs(), end_ms), scope);
  }
  now_ms_ = std::max(NowMs(), end_ms);
}

// Fires what is due by `limit_ms`, and returns whether there was anything.
bool VirtualEventDispatcher::RunPass(qint64 limit_ms, Scope scope) {
  const quint64 pass_order = next_order_;
  const qint64 pass_ms = NowMs();  // a handler that sleeps does not delay its pass
  bool any = false;
  bool only_idle = true;
  for (;;) {
    if (scope == Scope::kAll) Settle();
    Timer* timer = Earliest(limit_ms, scope, pass_order);
    if (!timer) break;
    any = true;
    only_idle = only_idle && timer->interval_ms == 0;
    Fire(timer, pass_ms);
  }
  if (any && only_idle) now_ms_ = NowMs() + 1;
  return any;
}

// The first timer that is due by `limit_ms`; those of 0 ms count only if they were started before `idle_before`.
VirtualEventDispatcher::Timer* VirtualEventDispatcher::Earliest(qint64 limit_ms, Scope scope, quint64 idle_before) {
  Timer* first = nullptr;
  for (auto& entry : timers_) {
    Timer& timer = entry.second;
    if (timer.due_ms > limit_ms) continue;
    if (timer.interval_ms == 0 && timer.order >= idle_before) continue;
    if (first && std::tie(first->due_ms, first->order) < std::tie(timer.due_ms, timer.order)) continue;
    if (scope == Scope::kWorkers && !timer.object->property(taviinputmanager::kWorkerTimerProperty).toBool()) continue;
    first = &timer;
  }
  return first;
}

void VirtualEventDispatcher::Fire(Timer* timer, qint64 pass_ms) {
  timer->due_ms += timer->interval_ms;
  if (timer->due_ms < pass_ms) timer->due_ms = pass_ms + timer->interval_ms;
  timer->order = next_order_++;
  if (timer->in_handler) return;
  timer->in_handler = true;
  QTimerEvent event(timer->id);
  QCoreApplication::sendEvent(timer->object, &event);
  // The handler may have stopped the timer, or deleted its object.
  const auto found = timers_.find(event.timerId());
  if (found != timers_.end()) found->second.in_handler = false;
}

bool VirtualEventDispatcher::processEvents(QEventLoop::ProcessEventsFlags flags) {
  const QScopedValueRollback<int> depth(loop_depth_, loop_depth_ + 1);
  // A wake-up that came before this check must not be slept through.
  const bool was_woken = interrupted_.exchange(false) || posted_;
  const bool any = RunPass(NowMs(), Scope::kAll) || was_woken;
  if (any || interrupted_ || !flags.testFlag(QEventLoop::WaitForMoreEvents)) return any;
  return RunNextPass();
}

bool VirtualEventDispatcher::RunNextPass() {
  const Timer* next = Earliest(kEver, Scope::kAll, next_order_);
  if (!next) {
    WaitForOtherThreads();
    return true;
  }
  now_ms_ = std::max(NowMs(), next->due_ms);
  return RunPass(NowMs(), Scope::kAll);
}

void VirtualEventDispatcher::WaitForOtherThreads() {
  std::unique_lock<std::mutex> lock(wake_mutex_);
  woken_.wait(lock, [this] { return posted_.load(); });
}

void VirtualEventDispatcher::wakeUp() {
  {
    const std::lock_guard<std::mutex> lock(wake_mutex_);
    posted_ = true;
  }
  woken_.notify_all();
}

void VirtualEventDispatcher::interrupt() {
  interrupted_ = true;
  wakeUp();
}

void VirtualEventDispatcher::registerTimer(int id, Interval interval_ms, Qt::TimerType type, QObject* object) {
  timers_[id] = {id, interval_ms, type, object, NowMs() + interval_ms, next_order_++};
}

bool VirtualEventDispatcher::unregisterTimer(int id) { return timers_.erase(id) > 0; }

bool VirtualEventDispatcher::unregisterTimers(QObject* object) {
  const size_t before = timers_.size();
  for (auto it = timers_.begin(); it != timers_.end();) {
    it = it->second.object == object ? timers_.erase(it) : std::next(it);
  }
  return timers_.size() < before;
}

QList<QAbstractEventDispatcher::TimerInfo> VirtualEventDispatcher::registeredTimers(QObject* object) const {
  QList<TimerInfo> found;
  for (const auto& entry : timers_) {
    const Timer& timer = entry.second;
    if (timer.object == object) found.append(TimerInfo(timer.id, static_cast<int>(timer.interval_ms), timer.type));
  }
  return found;
}

int VirtualEventDispatcher::remainingTime(int id) {
  const auto found = timers_.find(id);
  if (found == timers_.end()) return -1;
  return static_cast<int>(std::max<qint64>(found->second.due_ms - NowMs(), 0));
}

}  // namespace tavi
