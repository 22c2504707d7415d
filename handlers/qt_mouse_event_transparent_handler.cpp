#include "handlers/qt_mouse_event_transparent_handler.h"

#include <QMouseEvent>

#include "core/clock.h"
#include "core/pixels.h"
#include "handlers/mouse_transparent_manager.h"
#include "qt/mouse_events.h"

namespace taviinputmanager {

QtMouseEventTransparentHandler::QtMouseEventTransparentHandler() : last_relative_send_ms_(Clock::NowMs()) {}

void QtMouseEventTransparentHandler::UpdatePosition(int x, int y) {
  MouseTransparentManager* pointer = MouseTransparentManager::GetInstance();
  pointer->SetPosition(x, y);
  SendEvent(pointer->MoveLine());
}

void QtMouseEventTransparentHandler::OnRelativeInput(int dx, int dy, int interval_ms, double factor) {
  MouseTransparentManager* pointer = MouseTransparentManager::GetInstance();
  pointer->AddRelative(dx * factor, dy * factor);
  const qint64 now = Clock::NowMs();
  if (now - last_relative_send_ms_ < interval_ms) return;  // the next line includes this movement too
  last_relative_send_ms_ = now;
  SendEvent(pointer->MoveLine());
}

void QtMouseEventTransparentHandler::OnMousePress(QMouseEvent* event) {
  SendEvent(MouseTransparentManager::GetInstance()->ButtonPressLine(static_cast<int>(event->button())));
}

void QtMouseEventTransparentHandler::OnMouseRelease(QMouseEvent* event) {
  SendEvent(MouseTransparentManager::GetInstance()->ButtonReleaseLine(static_cast<int>(event->button())));
}

void QtMouseEventTransparentHandler::OnMouseMove(QMouseEvent* event) {
  const QPoint position = RoundedPoint(qt::PlaceOf(*event));
  UpdatePosition(position.x(), position.y());
}

}  // namespace taviinputmanager
