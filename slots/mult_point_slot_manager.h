// The pool of contacts for touch input of the host.
#ifndef SLOTS_MULT_POINT_SLOT_MANAGER_H_
#define SLOTS_MULT_POINT_SLOT_MANAGER_H_

#include "slots/point_pool_slot_manager.h"

namespace taviinputmanager {

// Shares its slots with MacroSlotManager but has separate records.
class MultPointSlotManager : public PointPoolSlotManager {
 public:
  static MultPointSlotManager* GetInstance() {
    static MultPointSlotManager instance;
    return &instance;
  }

 private:
  MultPointSlotManager() = default;
};

}  // namespace taviinputmanager

#endif  // SLOTS_MULT_POINT_SLOT_MANAGER_H_
