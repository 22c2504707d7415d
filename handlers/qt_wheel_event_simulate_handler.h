// Applies the keymap to wheel events.
#ifndef HANDLERS_QT_WHEEL_EVENT_SIMULATE_HANDLER_H_
#define HANDLERS_QT_WHEEL_EVENT_SIMULATE_HANDLER_H_

#include "handlers/qt_wheel_event_handler.h"

namespace tavikeymapmanager {
struct ConfigItem;
struct ConfigKey;
struct KeymapConfig;
}  // namespace tavikeymapmanager

namespace taviinputmanager {

class EventSimulator;

class QtWheelEventSimulateHandler : public QtWheelEventHandler {
 public:
  static QtWheelEventSimulateHandler* GetInstance() {
    static QtWheelEventSimulateHandler instance;
    return &instance;
  }

  void SetConfig(tavikeymapmanager::KeymapConfig* config) { config_ = config; }
  // The config is about to be deleted.
  void ForgetConfig() { config_ = nullptr; }
  // A tap of a mapped item blocks the caller for 50 ms. Only the event is used of its arguments.
  void OnWheel(QWheelEvent* event, bool transparent_pointer, double delta, int use_delta) override;
  // The simulator of an item that a notch is mapped to; null for a type that does not work with a wheel.
  static EventSimulator* GetWheelSimulator(const tavikeymapmanager::ConfigItem* item);
  // Whether a gesture of the wheel is in progress; mouse moves are then ignored.
  bool IsWheelWorkerRunning() const;

 private:
  QtWheelEventSimulateHandler();

  tavikeymapmanager::ConfigItem* FindItem(const tavikeymapmanager::ConfigKey& key) const;
  bool PlayMappedItem(const QWheelEvent* event);
  void TurnWithoutKeymap(QWheelEvent* event);
  void SendPlainWheel(const QWheelEvent* event);

  tavikeymapmanager::KeymapConfig* config_ = nullptr;  // owned by the input manager
};

}  // namespace taviinputmanager

#endif  // HANDLERS_QT_WHEEL_EVENT_SIMULATE_HANDLER_H_
