// The parts of an event dispatcher: Qt 5.
#ifndef QT_5_QT_EVENT_DISPATCHER_H_
#define QT_5_QT_EVENT_DISPATCHER_H_

#include <QAbstractEventDispatcher>

class QWinEventNotifier;

namespace qt {

class EventDispatcher : public QAbstractEventDispatcher {
 public:
  using Interval = int;  // of registerTimer, in milliseconds

  bool hasPendingEvents() override { return HasPosted(); }
  void flush() override {}
  // These two override base class functions on Windows only. Windows handles are not supported.
  virtual bool registerEventNotifier(QWinEventNotifier* /*notifier*/) { return false; }
  virtual void unregisterEventNotifier(QWinEventNotifier* /*notifier*/) {}

 private:
  // Whether there are undelivered posted events.
  virtual bool HasPosted() const = 0;
};

}  // namespace qt

#endif  // QT_5_QT_EVENT_DISPATCHER_H_
