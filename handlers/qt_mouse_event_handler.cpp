#include "handlers/qt_mouse_event_handler.h"

#include <QMouseEvent>

namespace taviinputmanager {

void QtMouseEventHandler::HandleMouseEvent(QMouseEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress: return OnMousePress(event);
    case QEvent::MouseButtonRelease: return OnMouseRelease(event);
    case QEvent::MouseMove: return OnMouseMove(event);
    default: return;
  }
}

}  // namespace taviinputmanager
