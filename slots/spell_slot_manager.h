// The contact of a cast. Its slot is shared with the inner walk, which aims the same cast.
#ifndef SLOTS_SPELL_SLOT_MANAGER_H_
#define SLOTS_SPELL_SLOT_MANAGER_H_

#include "slots/position_slot_manager.h"

namespace taviinputmanager {

class SpellSlotManager : public PositionSlotManager {
 public:
  static SpellSlotManager* GetInstance() {
    static SpellSlotManager instance;
    return &instance;
  }

 private:
  SpellSlotManager() : PositionSlotManager(6) {}
};

}  // namespace taviinputmanager

#endif  // SLOTS_SPELL_SLOT_MANAGER_H_
