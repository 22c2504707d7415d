// The contact on a shooter's fire button.
#ifndef SLOTS_FIRE_SLOT_MANAGER_H_
#define SLOTS_FIRE_SLOT_MANAGER_H_

#include "slots/position_slot_manager.h"

namespace taviinputmanager {

class FireSlotManager : public PositionSlotManager {
 public:
  static FireSlotManager* GetInstance() {
    static FireSlotManager instance;
    return &instance;
  }

 private:
  FireSlotManager() : PositionSlotManager(3) {}
};

}  // namespace taviinputmanager

#endif  // SLOTS_FIRE_SLOT_MANAGER_H_
