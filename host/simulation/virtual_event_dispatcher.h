// Virtual time for a whole program: timers, pauses and the clock without any waiting.
#ifndef HOST_SIMULATION_VIRTUAL_EVENT_DISPATCHER_H_
#define HOST_SIMULATION_VIRTUAL_EVENT_DISPATCHER_H_

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <utility>

#include "host/system/timed_dispatcher.h"
#include "taviinputmanager/virtual_time.h"

namespace tavi {

// The event dispatcher of a program that runs on virtual time. It is installed before the application object is made,
// which then owns it:
//
//   auto* time = new VirtualEventDispatcher;
//   QCoreApplication::setEventDispatcher(time);
//   QGuiApplication app(argc, argv);  // platform "offscreen", or a QCoreApplication
//   ...
//   time->Advance(100);               // what takes 100 ms is done when it returns
//
// The clock stands still but for Advance, Sleep and event loops that have nothing left to do at the present moment:
// these go on to the next timer instead of waiting for it, and wait for other threads when there is no timer either.
//
// Order, the same at every run:
// - Before each timer all posted events and deferred deletes are delivered, until nothing is left.
// - Timers fire as TimedDispatcher says.
// - A pass is all that is due at one moment. A timer of 0 ms fires once a pass (one started in a pass, in the next),
//   and a pass that fired nothing else takes 1 ms.
//
// Sockets are not served, and windows are told nothing by their platform but through PlatformEvents.
//
// Threads: the main thread; wakeUp, interrupt and NowMs may be called on any, so that other threads can post to the
// main thread as ever.
class VirtualEventDispatcher : public TimedDispatcher, public taviinputmanager::VirtualTime {
  Q_OBJECT
  Q_INTERFACES(taviinputmanager::VirtualTime)

 public:
  static constexpr qint64 kDefaultStartMs = 1577836800000;  // 2020-01-01T00:00:00Z, a midnight

  explicit VirtualEventDispatcher(qint64 start_ms = kDefaultStartMs);

  // Lets `ms` milliseconds pass: fires every timer that falls due on the way or at the end of it, and returns at that
  // moment with nothing left to deliver. Timers of 0 ms get no pass of their own at the very end: that belongs to the
  // next millisecond, so that two steps do what one of their sum does. Where a handler sleeps beyond the end, the time
  // is later, and what fell due after the end is left to the next call.
  void Advance(int ms);
  // Delivers posted events and deferred deletes until nothing is left. Takes no time and fires no timer.
  void Settle();
  // `deliver` is called wherever posted events are delivered. What it delivers may post more.
  void AlsoDeliver(std::function<void()> deliver) { also_deliver_ = std::move(deliver); }
  void SetPointer(const QPoint& pointer) { pointer_ = pointer; }

  // VirtualTime.
  qint64 NowMs() const override { return now_ms_.load(); }
  // Fires the timers marked with kWorkerTimerProperty that fall due on the way or at the end of it, and delivers
  // nothing.
  void Sleep(unsigned long ms) override;
  QPoint Pointer() const override { return pointer_; }

  // QAbstractEventDispatcher.
  bool processEvents(QEventLoop::ProcessEventsFlags flags) override;
  void registerSocketNotifier(QSocketNotifier* /*notifier*/) override {}
  void unregisterSocketNotifier(QSocketNotifier* /*notifier*/) override {}
#ifdef Q_OS_WIN
  bool registerEventNotifier(QWinEventNotifier* /*notifier*/) override { return false; }
  void unregisterEventNotifier(QWinEventNotifier* /*notifier*/) override {}
#endif
  void wakeUp() override;
  void interrupt() override;

 private:
  enum class Scope { kAll, kWorkers };

  static bool IsAny(const Timer& /*timer*/) { return true; }
  static bool IsWorkers(const Timer& timer);
  bool HasPosted() const override { return posted_.load(); }
  qint64 Now() const override { return now_ms_.load(); }
  void RunUntil(qint64 end_ms, Scope scope);
  bool RunPass(qint64 limit_ms, Scope scope);
  bool RunNextPass();
  Timer* EarliestOf(Scope scope, qint64 limit_ms, quint64 idle_before);
  void WaitForOtherThreads();

  std::atomic<qint64> now_ms_;
  QPoint pointer_;
  std::function<void()> also_deliver_ = [] {};
  int loop_depth_ = 0;  // event loops under way

  std::atomic<bool> interrupted_{false};
  std::atomic<bool> posted_{false};  // set under `wake_mutex_`
  std::mutex wake_mutex_;
  std::condition_variable woken_;
};

}  // namespace tavi

#endif  // HOST_SIMULATION_VIRTUAL_EVENT_DISPATCHER_H_
