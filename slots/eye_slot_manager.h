// The contact that turns the view with direction keys.
#ifndef SLOTS_EYE_SLOT_MANAGER_H_
#define SLOTS_EYE_SLOT_MANAGER_H_

#include "slots/direction_flags.h"
#include "slots/position_slot_manager.h"

namespace taviinputmanager {

class EyeSlotManager : public PositionSlotManager {
 public:
  static EyeSlotManager* GetInstance();

  // Also resets the keys and the home position.
  void Reset() override;

  bool HasDirection() const { return directions_.IsAny(); }
  void SetDirectionKey(int direction, bool pressed) { directions_.Set(direction, pressed); }
  // Moves the position by `step` pixels along each axis for which only one key is held.
  void Step(int step);

  QPoint home;  // pixels: the start position of the contact

 private:
  EyeSlotManager();

  DirectionFlags directions_;
};

}  // namespace taviinputmanager

#endif  // SLOTS_EYE_SLOT_MANAGER_H_
