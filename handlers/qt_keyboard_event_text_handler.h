// Keys as text, while a text field of the guest has the focus.
#ifndef HANDLERS_QT_KEYBOARD_EVENT_TEXT_HANDLER_H_
#define HANDLERS_QT_KEYBOARD_EVENT_TEXT_HANDLER_H_

#include "handlers/qt_keyboard_event_handler.h"

namespace taviinputmanager {

// Consumes every key. Everything is sent on the press, including repeats: navigation and control keys as clicks, so
// that nothing stays down, all others as text.
class QtKeyboardEventTextHandler : public QtKeyboardEventHandler {
 public:
  static QtKeyboardEventTextHandler* GetInstance();

  bool OnKeyPress(QKeyEvent* event) override;
  bool OnKeyRelease(QKeyEvent* event) override;

 private:
  QtKeyboardEventTextHandler() = default;

  void Click(int code);
};

}  // namespace taviinputmanager

#endif  // HANDLERS_QT_KEYBOARD_EVENT_TEXT_HANDLER_H_
