// What a turn of the wheel becomes by the keymap.
#ifndef HANDLERS_QT_WHEEL_EVENT_SIMULATE_HANDLER_H_
#define HANDLERS_QT_WHEEL_EVENT_SIMULATE_HANDLER_H_

#include "handlers/qt_wheel_event_handler.h"

namespace tavikeymapmanager {
struct KeymapConfig;
}

namespace taviinputmanager {

class QtWheelEventSimulateHandler : public QtWheelEventHandler {
 public:
  static QtWheelEventSimulateHandler* GetInstance();

  void SetConfig(tavikeymapmanager::KeymapConfig* config) { config_ = config; }
  // The config is about to go.
  void ForgetConfig() { config_ = nullptr; }
  void OnWheel(QWheelEvent* event, bool transparent_pointer, double delta, int use_delta) override;
  // Whether a gesture of the wheel is under way; the mouse then moves nothing.
  bool IsWheelWorkerRunning() const;

 private:
  QtWheelEventSimulateHandler() = default;

  tavikeymapmanager::KeymapConfig* config_ = nullptr;  // the input manager's
};

}  // namespace taviinputmanager

#endif  // HANDLERS_QT_WHEEL_EVENT_SIMULATE_HANDLER_H_
