// The base of what a key of the host becomes.
#ifndef HANDLERS_QT_KEYBOARD_EVENT_HANDLER_H_
#define HANDLERS_QT_KEYBOARD_EVENT_HANDLER_H_

#include "core/event_handler.h"

class QKeyEvent;

namespace taviinputmanager {

class QtKeyboardEventHandler : public EventHandler {
 public:
  // Whether the event was used up. A repeat that the handler does not accept is not.
  bool HandleKeyEvent(QKeyEvent* event);

  // One kind of event each, without a look at repeats; whether it was used up.
  virtual bool OnKeyPress(QKeyEvent* event) = 0;
  virtual bool OnKeyRelease(QKeyEvent* event) = 0;
  // Whether the host's repeats of a key that stays down count as presses.
  virtual bool AcceptsAutoRepeat(QKeyEvent* event);
};

}  // namespace taviinputmanager

#endif  // HANDLERS_QT_KEYBOARD_EVENT_HANDLER_H_
