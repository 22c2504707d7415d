// Keys as text, while the guest has a text field focused.
#ifndef HANDLERS_QT_KEYBOARD_EVENT_TEXT_HANDLER_H_
#define HANDLERS_QT_KEYBOARD_EVENT_TEXT_HANDLER_H_

#include "handlers/qt_keyboard_event_handler.h"

namespace taviinputmanager {

class QtKeyboardEventTextHandler : public QtKeyboardEventHandler {
 public:
  static QtKeyboardEventTextHandler* GetInstance();

  // Both use up every key.
  bool OnKeyPress(QKeyEvent* event) override;
  bool OnKeyRelease(QKeyEvent* event) override;

 private:
  QtKeyboardEventTextHandler() = default;
};

}  // namespace taviinputmanager

#endif  // HANDLERS_QT_KEYBOARD_EVENT_TEXT_HANDLER_H_
