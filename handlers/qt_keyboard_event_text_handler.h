// Keys as text, while the guest has a text field focused.
#ifndef HANDLERS_QT_KEYBOARD_EVENT_TEXT_HANDLER_H_
#define HANDLERS_QT_KEYBOARD_EVENT_TEXT_HANDLER_H_

#include "handlers/qt_keyboard_event_handler.h"

namespace taviinputmanager {

// Uses up every key. All goes out on the press, the host's repeats included: keys that move or control as clicks, so
// that nothing stays down, everything else as text.
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
