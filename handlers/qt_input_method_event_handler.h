// Text that an input method commits.
#ifndef HANDLERS_QT_INPUT_METHOD_EVENT_HANDLER_H_
#define HANDLERS_QT_INPUT_METHOD_EVENT_HANDLER_H_

#include "core/event_handler.h"

class QInputMethodEvent;

namespace taviinputmanager {

// Forwards committed text. Text that is still being composed stays on the host.
class QtInputMethodEventHandler : public EventHandler {
 public:
  static QtInputMethodEventHandler* GetInstance();

  void OnInputMethod(QInputMethodEvent* event);

 private:
  QtInputMethodEventHandler() = default;
};

}  // namespace taviinputmanager

#endif  // HANDLERS_QT_INPUT_METHOD_EVENT_HANDLER_H_
