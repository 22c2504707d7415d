#include "handlers/qt_mult_point_event_handler.h"

namespace taviinputmanager {

QtMultPointEventHandler* QtMultPointEventHandler::GetInstance() {
  static QtMultPointEventHandler instance;
  return &instance;
}

void QtMultPointEventHandler::OnTouchEvent(QTouchEvent* /*event*/) {}

}  // namespace taviinputmanager
