// The base class of the handlers of key events.
#ifndef HANDLERS_QT_KEYBOARD_EVENT_HANDLER_H_
#define HANDLERS_QT_KEYBOARD_EVENT_HANDLER_H_

#include "core/event_handler.h"

class QKeyEvent;

namespace taviinputmanager {

class QtKeyboardEventHandler : public EventHandler {
 public:
  // Whether the event was consumed. A repeat that the handler does not accept is not.
  bool HandleKeyEvent(QKeyEvent* event);

  // One function for each kind of event, regardless of repeats; returns whether it was consumed.
  virtual bool OnKeyPress(QKeyEvent* event) = 0;
  virtual bool OnKeyRelease(QKeyEvent* event) = 0;
  // Whether the host's key repeats count as presses.
  virtual bool AcceptsAutoRepeat(QKeyEvent* event);
};

}  // namespace taviinputmanager

#endif  // HANDLERS_QT_KEYBOARD_EVENT_HANDLER_H_
