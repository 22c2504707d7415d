// A key that swipes with one contact, like a wheel.
#ifndef SIMULATORS_WHEEL_WHEEL_EVENT_SIMULATOR_H_
#define SIMULATORS_WHEEL_WHEEL_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

namespace tavikeymapmanager {
struct WheelConfigItem;
}

namespace taviinputmanager {

// Each press starts a run of its own; while a key of its direction is held, a run that ends is followed by another.
class WheelEventSimulator : public EventSimulator {
  Q_OBJECT

 public:
  static WheelEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // Ends every run; none is repeated.
  void Reset();

 Q_SIGNALS:
  void StopOneOffWheel();

 private Q_SLOTS:
  void OnWheelPressed(int slot_id, double x, double y);
  void OnWheelFinished(int slot_id);

 private:
  WheelEventSimulator() = default;

  void StartRun(const tavikeymapmanager::WheelConfigItem& item);
  bool IsRepeated(int direction) const;

  bool repeat_direction_1_ = false;  // a key with that direction is still held
  bool repeat_direction_2_ = false;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_WHEEL_WHEEL_EVENT_SIMULATOR_H_
