// Timers for our own event dispatchers.
#ifndef HOST_SYSTEM_TIMED_DISPATCHER_H_
#define HOST_SYSTEM_TIMED_DISPATCHER_H_

#include <limits>
#include <map>

#include "qt/event_dispatcher.h"

namespace tavi {

// Timers fire in the order of their due times, and of their last start or timeout if those are equal. On a timeout, the
// due time advances by the interval before the timer event is sent; if the new time has passed as well, it becomes one
// interval from now. A timer does not fire inside its own handler. All timers are precise.
//
// Times are in ticks of the dispatcher's clock. The dispatcher's thread only.
class TimedDispatcher : public qt::EventDispatcher {
 public:
  // QAbstractEventDispatcher.
  void registerTimer(int id, Interval interval_ms, Qt::TimerType type, QObject* object) override;
  bool unregisterTimer(int id) override;
  bool unregisterTimers(QObject* object) override;
  QList<TimerInfo> registeredTimers(QObject* object) const override;
  int remainingTime(int id) override;

 protected:
  static constexpr qint64 kEver = std::numeric_limits<qint64>::max();

  struct Timer {
    int id = 0;
    Interval interval_ms = 0;
    Qt::TimerType type = Qt::CoarseTimer;
    QObject* object = nullptr;
    qint64 due = 0;
    quint64 order = 0;  // counts all starts and timeouts
    bool in_handler = false;
  };
  using TimerTest = bool (*)(const Timer& timer);

  explicit TimedDispatcher(qint64 ticks_of_ms) : ticks_of_ms_(ticks_of_ms) {}

  // The time in ticks.
  virtual qint64 Now() const = 0;

  // The first timer that passes the test and is due by `limit`; those of 0 ms count only if they were started before
  // `idle_before`. Null if there is none.
  Timer* Earliest(qint64 limit, quint64 idle_before, TimerTest test);
  // `pass` is the time at which this round of timeouts began.
  void Fire(Timer* timer, qint64 pass);
  // The order of the next start or timeout.
  quint64 NextOrder() const { return next_order_; }

 private:
  const qint64 ticks_of_ms_;
  std::map<int, Timer> timers_;  // by id
  quint64 next_order_ = 1;
};

}  // namespace tavi

#endif  // HOST_SYSTEM_TIMED_DISPATCHER_H_
