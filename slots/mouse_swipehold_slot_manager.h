// The contact of a walk towards a right click.
#ifndef SLOTS_MOUSE_SWIPEHOLD_SLOT_MANAGER_H_
#define SLOTS_MOUSE_SWIPEHOLD_SLOT_MANAGER_H_

#include "slots/position_slot_manager.h"

namespace taviinputmanager {

class MouseSwipeholdSlotManager : public PositionSlotManager {
 public:
  static MouseSwipeholdSlotManager* GetInstance();

  // Milliseconds since the last touch, both times counted from the start of the day: the difference jumps at midnight.
  int ElapsedSinceLastMove() const;
  // Sets the last touch to the current time and returns it.
  int TouchLastMove();

 private:
  MouseSwipeholdSlotManager();

  int last_move_time_ = 0;  // milliseconds since the start of the day; a reset does not change it
};

}  // namespace taviinputmanager

#endif  // SLOTS_MOUSE_SWIPEHOLD_SLOT_MANAGER_H_
