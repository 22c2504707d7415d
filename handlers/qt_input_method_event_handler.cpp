#include "handlers/qt_input_method_event_handler.h"

#include <QInputMethodEvent>

#include "core/guest_command.h"

namespace taviinputmanager {

QtInputMethodEventHandler* QtInputMethodEventHandler::GetInstance() {
  static QtInputMethodEventHandler instance;
  return &instance;
}

void QtInputMethodEventHandler::OnInputMethod(QInputMethodEvent* event) {
  if (event->commitString().isEmpty()) return;  // still composing
  SendText(guest_command::Text(event->commitString()));
}

}  // namespace taviinputmanager
