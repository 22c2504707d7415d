// Virtual time for a whole program: timers, pauses and the clock without any waiting.
#ifndef HOST_SIMULATION_VIRTUAL_EVENT_DISPATCHER_H_
#define HOST_SIMULATION_VIRTUAL_EVENT_DISPATCHER_H_

#include <atomic>
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <utility>

#include "qt/event_dispatcher.h"
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
// - Timers fire by due time, equal ones by the time of their last start or timeout. On a timeout, before it is told,
//   the due time moves on by the interval, and if it is past even then, to one interval from now. A timer does not fire
//   inside its own handler.
// - A pass is all that is due at one moment. A timer of 0 ms fires once a pass (one started in a pass, in the next),
//   and a pass that fired nothing else takes 1 ms.
//
// Sockets are not served, and windows are told nothing by their platform but through PlatformEvents.
//
// Threads: the main thread; wakeUp, interrupt and NowMs may be called on any, so that other threads can post to the
// main thread as ever.
class VirtualEventDispatcher : public qt::EventDispatcher, public taviinputmanager::VirtualTime {
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
  void registerTimer(int id, Interval interval_ms, Qt::TimerType type, QObject* object) override;
  bool unregisterTimer(int id) override;
  bool unregisterTimers(QObject* object) override;
  QList<TimerInfo> registeredTimers(QObject* object) const override;
  int remainingTime(int id) override;
  void wakeUp() override;
  void interrupt() override;

 private:
  struct Timer {
    int id = 0;
    Interval interval_ms = 0;
    Qt::TimerType type = Qt::CoarseTimer;
    QObject* object = nullptr;
    qint64 due_ms = 0;
    quint64 order = 0;  // of all starts and timeouts
    bool in_handler = false;
  };
  enum class Scope { kAll, kWorkers };

  bool HasPosted() const override { return posted_.load(); }
  void RunUntil(qint64 end_ms, Scope scope);
  bool RunPass(qint64 limit_ms, Scope scope);
  bool RunNextPass();
  Timer* Earliest(qint64 limit_ms, Scope scope, quint64 idle_before);
  void Fire(Timer* timer, qint64 pass_ms);
  void WaitForOtherThreads();

  std::atomic<qint64> now_ms_;
  QPoint pointer_;
  std::function<void()> also_deliver_ = [] {};
  std::map<int, Timer> timers_;  // by id
  quint64 next_order_ = 1;
  int loop_depth_ = 0;  // event loops under way

  std::atomic<bool> interrupted_{false};
  std::atomic<bool> posted_{false};  // set under `wake_mutex_`
  std::mutex wake_mutex_;
  std::condition_variable woken_;
};

}  // namespace tavi

#endif  // HOST_SIMULATION_VIRTUAL_EVENT_DISPATCHER_H_
