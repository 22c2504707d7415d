// What an event dispatcher is made of: Qt 6.
#ifndef QT_6_QT_EVENT_DISPATCHER_H_
#define QT_6_QT_EVENT_DISPATCHER_H_

#include <QAbstractEventDispatcher>

namespace qt {

class EventDispatcher : public QAbstractEventDispatcher {
 public:
  using Interval = qint64;  // of registerTimer, in milliseconds

 private:
  // Whether events were posted that are not delivered yet. Nobody asks.
  virtual bool HasPosted() const = 0;
};

}  // namespace qt

#endif  // QT_6_QT_EVENT_DISPATCHER_H_
