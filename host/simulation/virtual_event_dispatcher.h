// A clock that moves only when it is told to, and the event loop that runs on it.
#ifndef HOST_SIMULATION_VIRTUAL_EVENT_DISPATCHER_H_
#define HOST_SIMULATION_VIRTUAL_EVENT_DISPATCHER_H_

#include <atomic>

#include <QAbstractEventDispatcher>
#include <QPoint>
#include <QVector>

#include "taviinputmanager/virtual_time.h"

namespace tavi {

class VirtualEventDispatcher : public QAbstractEventDispatcher, public taviinputmanager::VirtualTime {
  Q_OBJECT
  Q_INTERFACES(taviinputmanager::VirtualTime)

 public:
  explicit VirtualEventDispatcher(qint64 start_ms = 1600000000000);

  void Advance(int ms);
  void Settle();
  void SetPointer(const QPoint& pointer) { pointer_ = pointer; }

  qint64 NowMs() const override { return now_; }
  void Sleep(unsigned long ms) override;
  QPoint Pointer() const override { return pointer_; }

  bool processEvents(QEventLoop::ProcessEventsFlags flags) override;
  bool hasPendingEvents() override { return false; }
  void registerSocketNotifier(QSocketNotifier*) override {}
  void unregisterSocketNotifier(QSocketNotifier*) override {}
  void registerTimer(int id, int interval, Qt::TimerType type, QObject* object) override;
  bool unregisterTimer(int id) override;
  bool unregisterTimers(QObject* object) override;
  QList<TimerInfo> registeredTimers(QObject* object) const override;
  int remainingTime(int id) override;
  void wakeUp() override { woken_ = true; }
  void interrupt() override {}
  void flush() override {}

 private:
  struct Timer {
    int id;
    int interval;
    qint64 due;
    qint64 order;
    Qt::TimerType type;
    QObject* object;
  };
  void RunUntil(qint64 end, bool workers_only);
  void Fire(int id);

  qint64 now_;
  qint64 order_ = 0;
  QPoint pointer_;
  QVector<Timer> timers_;
  std::atomic<bool> woken_{false};
};

}  // namespace tavi

#endif  // HOST_SIMULATION_VIRTUAL_EVENT_DISPATCHER_H_
