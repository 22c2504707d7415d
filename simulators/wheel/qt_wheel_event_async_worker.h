// A wheel movement as a one-finger swipe.
#ifndef SIMULATORS_WHEEL_QT_WHEEL_EVENT_ASYNC_WORKER_H_
#define SIMULATORS_WHEEL_QT_WHEEL_EVENT_ASYNC_WORKER_H_

#include "core/event_handler.h"

class QTimer;
class QWheelEvent;

namespace tavikeymapmanager {
struct KeymapConfig;
}

namespace taviinputmanager {

//   turn      8 ms     8 ms          8 ms      8 ms
//   press --- move --- move  ... --- move --- release                 20 moves
//   a turn meanwhile sets length and direction of the remaining moves
//
// Main thread, despite its name.
class QtWheelEventAsyncWorker : public EventHandler {
  Q_OBJECT

 public:
  static QtWheelEventAsyncWorker* GetInstance() {
    static QtWheelEventAsyncWorker instance;
    return &instance;
  }

  // `config` may be null.
  virtual void OnWheel(QWheelEvent* event, tavikeymapmanager::KeymapConfig* config);
  bool IsRunning() const;

 public Q_SLOTS:
  void TimerOutTime();

 private:
  QtWheelEventAsyncWorker();

  QTimer* timer_;  // a child
  int ticks_ = 0;  // remaining moves; positive is downwards
  int step_ = 0;   // pixels per move
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_WHEEL_QT_WHEEL_EVENT_ASYNC_WORKER_H_
