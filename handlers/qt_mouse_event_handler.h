// The base class of the handlers of mouse buttons and moves.
#ifndef HANDLERS_QT_MOUSE_EVENT_HANDLER_H_
#define HANDLERS_QT_MOUSE_EVENT_HANDLER_H_

#include "core/event_handler.h"

class QMouseEvent;

namespace taviinputmanager {

class QtMouseEventHandler : public EventHandler {
 public:
  void HandleMouseEvent(QMouseEvent* event);

  // One function for each kind of event.
  virtual void OnMousePress(QMouseEvent* event) = 0;
  virtual void OnMouseRelease(QMouseEvent* event) = 0;
  virtual void OnMouseMove(QMouseEvent* event) = 0;
};

}  // namespace taviinputmanager

#endif  // HANDLERS_QT_MOUSE_EVENT_HANDLER_H_
