// The finger that turns the view by direction keys.
#ifndef SLOTS_EYE_SLOT_MANAGER_H_
#define SLOTS_EYE_SLOT_MANAGER_H_

#include "slots/direction_flags.h"
#include "slots/position_slot_manager.h"

namespace taviinputmanager {

class EyeSlotManager : public PositionSlotManager {
 public:
  static EyeSlotManager* GetInstance();

  // Also forgets the keys and the home.
  void Reset() override;

  bool HasDirection() const { return directions_.IsAny(); }
  void SetDirectionKey(int direction, bool pressed) { directions_.Set(direction, pressed); }
  // Moves the position by `step` pixels along each axis that one key alone holds.
  void Step(int step);

  QPoint home;  // pixels: where the finger starts from

 private:
  EyeSlotManager();

  DirectionFlags directions_;
};

}  // namespace taviinputmanager

#endif  // SLOTS_EYE_SLOT_MANAGER_H_
