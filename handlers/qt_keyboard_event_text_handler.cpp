#include "handlers/qt_keyboard_event_text_handler.h"

namespace taviinputmanager {

QtKeyboardEventTextHandler* QtKeyboardEventTextHandler::GetInstance() {
  static QtKeyboardEventTextHandler instance;
  return &instance;
}

bool QtKeyboardEventTextHandler::OnKeyPress(QKeyEvent* /*event*/) { return true; }

bool QtKeyboardEventTextHandler::OnKeyRelease(QKeyEvent* /*event*/) { return true; }

}  // namespace taviinputmanager
