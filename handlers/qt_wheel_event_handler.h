// The base class of the handlers of wheel events.
#ifndef HANDLERS_QT_WHEEL_EVENT_HANDLER_H_
#define HANDLERS_QT_WHEEL_EVENT_HANDLER_H_

#include "core/event_handler.h"

class QWheelEvent;

namespace taviinputmanager {

class QtWheelEventHandler : public EventHandler {
 public:
  // `transparent_pointer`: the guest's pointer may be at another position than the host's. `delta` and `use_delta` are
  // the keymap's wheel_delta and wheel_use_delta.
  virtual void OnWheel(QWheelEvent* event, bool transparent_pointer, double delta, int use_delta) = 0;
};

}  // namespace taviinputmanager

#endif  // HANDLERS_QT_WHEEL_EVENT_HANDLER_H_
