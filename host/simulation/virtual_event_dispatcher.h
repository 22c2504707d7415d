// Virtual time for a whole program: timers, pauses and the clock, without any waiting.
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

// The event dispatcher of a program on virtual time. Install it before creating the application object, which then owns
// it:
//
//   auto* time = new VirtualEventDispatcher;
//   QCoreApplication::setEventDispatcher(time);
//   QGuiApplication app(argc, argv);  // platform "offscreen", or a QCoreApplication
//   ...
//   time->Advance(100);               // what takes 100 ms is done when it returns
//
// Time passes only in Advance, in Sleep, and in event loops that have nothing left to do at the current time: these
// skip to the next timer instead of waiting for it, and wait for other threads if there is no timer either.
//
// The order is the same in every run:
// - Before each timer all posted events and deferred deletes are delivered, until nothing is left.
// - Timers fire in the order of TimedDispatcher.
// - A pass is everything that is due at one moment. A timer of 0 ms fires once per pass (if started in a pass, in the
//   next one), and a pass that fired nothing else takes 1 ms.
//
// Sockets are not served, and the platform sends nothing to windows except through PlatformEvents.
//
// Threads: the main thread; wakeUp, interrupt and NowMs may be called on any thread, so that other threads can post to
// the main thread as usual.
class VirtualEventDispatcher : public TimedDispatcher, public taviinputmanager::VirtualTime {
  Q_OBJECT
  Q_INTERFACES(taviinputmanager::VirtualTime)

 public:
  static constexpr qint64 kDefaultStartMs = 1577836800000;  // 2020-01-01T00:00:00Z, a midnight

  explicit VirtualEventDispatcher(qint64 start_ms = kDefaultStartMs);

  // Advances the time by `ms` milliseconds: fires every timer that is due on the way or at the end, and returns at that
  // time with nothing left to deliver. Timers of 0 ms get no pass of their own at the very end: it belongs to the next
  // millisecond, so that two steps do the same as one of their sum. If a handler sleeps beyond the end, the time is
  // later, and timers due after the end are left to the next call.
  void Advance(int ms);
  // Delivers posted events and deferred deletes until nothing is left. Takes no time and fires no timer.
  void Settle();
  // `deliver` is called whenever posted events are delivered. What it delivers may post more.
  void AlsoDeliver(std::function<void()> deliver) { also_deliver_ = std::move(deliver); }
  void SetPointer(const QPoint& pointer) { pointer_ = pointer; }

  // VirtualTime.
  qint64 NowMs() const override { return now_ms_.load(); }
  // Fires the timers marked with kWorkerTimerProperty that are due on the way or at the end, and delivers nothing.
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
  int loop_depth_ = 0;  // nested event loops

  std::atomic<bool> interrupted_{false};
  std::atomic<bool> posted_{false};  // set under `wake_mutex_`
  std::mutex wake_mutex_;
  std::condition_variable woken_;
};

}  // namespace tavi

#endif  // HOST_SIMULATION_VIRTUAL_EVENT_DISPATCHER_H_
