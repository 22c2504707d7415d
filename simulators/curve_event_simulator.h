// A finger that follows a stored curve.
#ifndef SIMULATORS_CURVE_EVENT_SIMULATOR_H_
#define SIMULATORS_CURVE_EVENT_SIMULATOR_H_

#include "simulators/event_simulator.h"

namespace taviinputmanager {

class CurveEventSimulator : public EventSimulator {
 public:
  static CurveEventSimulator* GetInstance();

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  // One run of the curve for a wheel notch.
  virtual void Wheel(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key);
  // Ends every run and lifts the finger.
  void Reset();

 private:
  CurveEventSimulator() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_CURVE_EVENT_SIMULATOR_H_
