// The host's mouse as the guest's mouse.
#ifndef HANDLERS_QT_MOUSE_EVENT_TRANSPARENT_HANDLER_H_
#define HANDLERS_QT_MOUSE_EVENT_TRANSPARENT_HANDLER_H_

#include <QtGlobal>

#include "handlers/qt_mouse_event_handler.h"

namespace taviinputmanager {

class QtMouseEventTransparentHandler : public QtMouseEventHandler {
 public:
  static QtMouseEventTransparentHandler* GetInstance() {
    static QtMouseEventTransparentHandler instance;
    return &instance;
  }

  // Moves the guest's pointer to a window position.
  void UpdatePosition(int x, int y);
  // Moves it by relative counts times `factor`. Every call adds to the movement; a line is sent at most once in
  // `interval_ms`.
  void OnRelativeInput(int dx, int dy, int interval_ms, double factor);

  void OnMousePress(QMouseEvent* event) override;
  void OnMouseRelease(QMouseEvent* event) override;
  void OnMouseMove(QMouseEvent* event) override;

 private:
  QtMouseEventTransparentHandler();

  qint64 last_relative_send_ms_;  // since the epoch
};

}  // namespace taviinputmanager

#endif  // HANDLERS_QT_MOUSE_EVENT_TRANSPARENT_HANDLER_H_
