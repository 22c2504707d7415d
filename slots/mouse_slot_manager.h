// The contact of the left mouse button, and of the view while the mouse is captured.
#ifndef SLOTS_MOUSE_SLOT_MANAGER_H_
#define SLOTS_MOUSE_SLOT_MANAGER_H_

#include "slots/position_slot_manager.h"

namespace taviinputmanager {

// The singleton is for the real mouse. Each virtual pointer of a macro has an object of its own, with a slot from the
// macro pool.
class MouseSlotManager : public PositionSlotManager {
 public:
  static MouseSlotManager* GetInstance() {
    static MouseSlotManager instance(kRealMouseSlot);
    return &instance;
  }

  explicit MouseSlotManager(int slot_id) : PositionSlotManager(slot_id) {}

 private:
  static constexpr int kRealMouseSlot = 1;
};

}  // namespace taviinputmanager

#endif  // SLOTS_MOUSE_SLOT_MANAGER_H_
