// A key that pinches.
#ifndef SIMULATORS_WHEEL_ZOOM_EVENT_SIMULATOR_H_
#define SIMULATORS_WHEEL_ZOOM_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

namespace tavikeymapmanager {
struct ZoomConfigItem;
}

namespace taviinputmanager {

// One pinch at a time; while its key is held, a pinch that ends is followed by another, on two other slots.
class ZoomEventSimulator : public EventSimulator {
  Q_OBJECT

 public:
  static ZoomEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // Ends the pinch. A key that is still held starts its next one.
  void Reset();

 Q_SIGNALS:
  void StopOneOffZoom();

 private Q_SLOTS:
  void OnZoomPressed(const QString& cmd);
  void OnZoomFinished(int positive_slot_id, int negative_slot_id);

 private:
  ZoomEventSimulator() = default;

  void StartRun(const tavikeymapmanager::ZoomConfigItem& item);
  void Run(const tavikeymapmanager::ZoomConfigItem& item, int positive_slot_id, int negative_slot_id);

  bool repeat_ = false;  // the key is still held
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_WHEEL_ZOOM_EVENT_SIMULATOR_H_
