// Touch input of the host.
#ifndef HANDLERS_QT_MULT_POINT_EVENT_HANDLER_H_
#define HANDLERS_QT_MULT_POINT_EVENT_HANDLER_H_

#include "core/event_handler.h"

class QTouchEvent;

namespace taviinputmanager {

// The entry point of touch events; MultPointSyncWorker does the work. Main thread.
class QtMultPointEventHandler : public EventHandler {
 public:
  static QtMultPointEventHandler* GetInstance();

  void OnTouchEvent(QTouchEvent* event);

 private:
  QtMultPointEventHandler() = default;
};

}  // namespace taviinputmanager

#endif  // HANDLERS_QT_MULT_POINT_EVENT_HANDLER_H_
