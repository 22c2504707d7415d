// Four keys that move the virtual gamepad's left stick.
#ifndef SIMULATORS_GAMEPAD_VSTICK_LEFT_STICK_SIMULATOR_H_
#define SIMULATORS_GAMEPAD_VSTICK_LEFT_STICK_SIMULATOR_H_

#include "simulators/gamepad/vstick_simulator.h"

namespace taviinputmanager {

class VStickLeftStickSimulator : public VStickSimulator {
  Q_OBJECT

 public:
  static VStickLeftStickSimulator* GetInstance();

 Q_SIGNALS:
  // In radii from the centre; (0, 0) when the stick is released. Nothing is emitted before the first press.
  void sigSwipeholdTargetPointChanged(QPointF& point);

 protected:
  void Report(QPointF& point) override { Q_EMIT sigSwipeholdTargetPointChanged(point); }

 private:
  VStickLeftStickSimulator();
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_GAMEPAD_VSTICK_LEFT_STICK_SIMULATOR_H_
