// Touch input of the host.
#ifndef HANDLERS_QT_MULT_POINT_EVENT_HANDLER_H_
#define HANDLERS_QT_MULT_POINT_EVENT_HANDLER_H_

#include "core/event_handler.h"

class QTouchEvent;

namespace taviinputmanager {

// Where touch events enter; the worker of touch points does everything. Main thread.
class QtMultPointEventHandler : public EventHandler {
 public:
  static QtMultPointEventHandler* GetInstance();

  void OnTouchEvent(QTouchEvent* event);

 private:
  QtMultPointEventHandler() = default;
};

}  // namespace taviinputmanager

#endif  // HANDLERS_QT_MULT_POINT_EVENT_HANDLER_H_
