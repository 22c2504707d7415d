// Four keys that move a stick of the virtual gamepad: the common part of both sticks.
#ifndef SIMULATORS_GAMEPAD_VSTICK_SIMULATOR_H_
#define SIMULATORS_GAMEPAD_VSTICK_SIMULATOR_H_

#include "simulators/walk/swipehold_event_simulator.h"

namespace taviinputmanager {

// Uses the complete state machine of a walk, with its first slide, steps and rests, on a worker without a contact: no
// line is sent, only the position of the stick remains. So a stick needs no free slot.
//
// All items of one stick share its worker and its keys. A reset of input does not release them: only its keys release a
// stick.
class VStickSimulator : public SwipeholdEventSimulator {
  Q_OBJECT

 public:
  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;

 protected:
  // `index` is the index of the stick's worker.
  explicit VStickSimulator(int index) : index_(index) {}

  // The stick is at `point`, in radii from its centre; (0, 0) when it is released.
  virtual void Report(QPointF& point) = 0;
  int VirtualStickIndex() const override { return index_; }

 private:
  SwipeholdAsyncWorker* Worker() const;
  // From the first call on, the worker's signals are forwarded.
  void FollowWorker();

  const int index_;
  bool is_following_ = false;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_GAMEPAD_VSTICK_SIMULATOR_H_
