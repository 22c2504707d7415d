#include "handlers/qt_keyboard_event_handler.h"

#include <QKeyEvent>

namespace taviinputmanager {

bool QtKeyboardEventHandler::HandleKeyEvent(QKeyEvent* event) {
  if (event->isAutoRepeat() && !AcceptsAutoRepeat(event)) return false;
  switch (event->type()) {
    case QEvent::KeyPress: return OnKeyPress(event);
    case QEvent::KeyRelease: return OnKeyRelease(event);
    default: return false;
  }
}

bool QtKeyboardEventHandler::AcceptsAutoRepeat(QKeyEvent* /*event*/) { return true; }

}  // namespace taviinputmanager
