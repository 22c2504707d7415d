#include "handlers/qt_mult_point_event_handler.h"

#include "handlers/mult_point_sync_worker.h"

namespace taviinputmanager {

QtMultPointEventHandler* QtMultPointEventHandler::GetInstance() {
  static QtMultPointEventHandler instance;
  return &instance;
}

void QtMultPointEventHandler::OnTouchEvent(QTouchEvent* event) {
  MultPointSyncWorker::GetInstance()->OnTouchEvent(event);
}

}  // namespace taviinputmanager
