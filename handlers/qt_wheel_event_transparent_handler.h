// The host's wheel as the guest's wheel.
#ifndef HANDLERS_QT_WHEEL_EVENT_TRANSPARENT_HANDLER_H_
#define HANDLERS_QT_WHEEL_EVENT_TRANSPARENT_HANDLER_H_

#include "handlers/qt_wheel_event_handler.h"

namespace taviinputmanager {

class QtWheelEventTransparentHandler : public QtWheelEventHandler {
 public:
  static QtWheelEventTransparentHandler* GetInstance();

  void OnWheel(QWheelEvent* event, bool transparent_pointer, double delta, int use_delta) override;

 private:
  QtWheelEventTransparentHandler() = default;
};

}  // namespace taviinputmanager

#endif  // HANDLERS_QT_WHEEL_EVENT_TRANSPARENT_HANDLER_H_
