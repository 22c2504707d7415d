// Passes host keys through as keys.
#ifndef HANDLERS_QT_KEYBOARD_EVENT_TRANSPARENT_HANDLER_H_
#define HANDLERS_QT_KEYBOARD_EVENT_TRANSPARENT_HANDLER_H_

#include "handlers/qt_keyboard_event_handler.h"

namespace taviinputmanager {

// Sends every press and release, whether or not they are paired. The guest generates repeats itself.
class QtKeyboardEventTransparentHandler : public QtKeyboardEventHandler {
 public:
  static QtKeyboardEventTransparentHandler* GetInstance() {
    static QtKeyboardEventTransparentHandler instance;
    return &instance;
  }

  // A macro presses or releases a key; `code` serves as all of its codes.
  void SetVirtualKey(int code, bool press);

  bool OnKeyPress(QKeyEvent* event) override;
  bool OnKeyRelease(QKeyEvent* event) override;
  bool AcceptsAutoRepeat(QKeyEvent* event) override;

 private:
  QtKeyboardEventTransparentHandler() = default;

  void Press(int scancode);
  void Release(int scancode);
};

}  // namespace taviinputmanager

#endif  // HANDLERS_QT_KEYBOARD_EVENT_TRANSPARENT_HANDLER_H_
