// The parts of an event dispatcher: Qt 6.
#ifndef QT_6_QT_EVENT_DISPATCHER_H_
#define QT_6_QT_EVENT_DISPATCHER_H_

#include <QAbstractEventDispatcher>

namespace qt {

class EventDispatcher : public QAbstractEventDispatcher {
 public:
  using Interval = qint64;  // of registerTimer, in milliseconds

 private:
  // Whether there are undelivered posted events. Never called.
  virtual bool HasPosted() const = 0;
};

}  // namespace qt

#endif  // QT_6_QT_EVENT_DISPATCHER_H_
