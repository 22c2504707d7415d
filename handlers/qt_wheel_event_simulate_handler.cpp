#include "handlers/qt_wheel_event_simulate_handler.h"

namespace taviinputmanager {

QtWheelEventSimulateHandler* QtWheelEventSimulateHandler::GetInstance() {
  static QtWheelEventSimulateHandler instance;
  return &instance;
}

void QtWheelEventSimulateHandler::OnWheel(QWheelEvent* /*event*/, bool /*transparent_pointer*/, double /*delta*/,
                                          int /*use_delta*/) {}

bool QtWheelEventSimulateHandler::IsWheelWorkerRunning() const { return false; }

}  // namespace taviinputmanager
