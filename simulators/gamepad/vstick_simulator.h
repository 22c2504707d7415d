// Four keys that are a stick of the virtual gamepad: what both sticks share.
#ifndef SIMULATORS_GAMEPAD_VSTICK_SIMULATOR_H_
#define SIMULATORS_GAMEPAD_VSTICK_SIMULATOR_H_

#include "simulators/walk/swipehold_event_simulator.h"

namespace taviinputmanager {

// The whole machine of a walk, with its first slide, steps and rests, on a worker without a finger: no line is sent,
// and what remains is where the stick is. So a stick needs no free slot.
//
// All items of one stick share its worker and its keys. A reset of input does not let go of them: a stick is let go by
// its keys alone.
class VStickSimulator : public SwipeholdEventSimulator {
  Q_OBJECT

 public:
  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;

 protected:
  // `index` is that of the stick's worker.
  explicit VStickSimulator(int index) : index_(index) {}

  // The stick is at `point`, in radii from its centre; (0, 0) when it is let go.
  virtual void Report(QPointF& point) = 0;
  int VirtualStickIndex() const override { return index_; }

 private:
  SwipeholdAsyncWorker* Worker() const;
  // From the first call on, what the worker says is reported.
  void FollowWorker();

  const int index_;
  bool is_following_ = false;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_GAMEPAD_VSTICK_SIMULATOR_H_
