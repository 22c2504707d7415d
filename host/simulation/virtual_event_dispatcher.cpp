#include "host/simulation/virtual_event_dispatcher.h"

#include <algorithm>

#include <QCoreApplication>
#include <QScopedValueRollback>
#include <QVariant>

namespace tavi {

VirtualEventDispatcher::VirtualEventDispatcher(qint64 start_ms) : TimedDispatcher(1), now_ms_(start_ms) {}

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
    const Timer* next = EarliestOf(scope, end_ms, NowMs() < end_ms ? NextOrder() : 0);
    if (!next) break;
    now_ms_ = std::max(NowMs(), next->due);
    RunPass(std::min(NowMs(), end_ms), scope);
  }
  now_ms_ = std::max(NowMs(), end_ms);
}

// Fires what is due by `limit_ms`, and returns whether there was anything.
bool VirtualEventDispatcher::RunPass(qint64 limit_ms, Scope scope) {
  const quint64 pass_order = NextOrder();
  const qint64 pass_ms = NowMs();  // a handler that sleeps does not delay its pass
  bool any = false;
  bool only_idle = true;
  for (;;) {
    if (scope == Scope::kAll) Settle();
    Timer* timer = EarliestOf(scope, limit_ms, pass_order);
    if (!timer) break;
    any = true;
    only_idle = only_idle && timer->interval_ms == 0;
    Fire(timer, pass_ms);
  }
  if (any && only_idle) now_ms_ = NowMs() + 1;
  return any;
}

VirtualEventDispatcher::Timer* VirtualEventDispatcher::EarliestOf(Scope scope, qint64 limit_ms, quint64 idle_before) {
  return Earliest(limit_ms, idle_before, scope == Scope::kAll ? IsAny : IsWorkers);
}

bool VirtualEventDispatcher::IsWorkers(const Timer& timer) {
  return timer.object->property(taviinputmanager::kWorkerTimerProperty).toBool();
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
  const Timer* next = EarliestOf(Scope::kAll, kEver, NextOrder());
  if (!next) {
    WaitForOtherThreads();
    return true;
  }
  now_ms_ = std::max(NowMs(), next->due);
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

}  // namespace tavi
