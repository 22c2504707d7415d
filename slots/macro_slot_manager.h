// The pool of contacts for macros, pinches by key, replays and virtual pointers.
#ifndef SLOTS_MACRO_SLOT_MANAGER_H_
#define SLOTS_MACRO_SLOT_MANAGER_H_

#include "slots/point_pool_slot_manager.h"

namespace taviinputmanager {

// Shares its slots with MultPointSlotManager but has separate records: macros and touch input are not meant to run at
// the same time.
class MacroSlotManager : public PointPoolSlotManager {
 public:
  static MacroSlotManager* GetInstance() {
    static MacroSlotManager instance;
    return &instance;
  }

 private:
  MacroSlotManager() = default;
};

}  // namespace taviinputmanager

#endif  // SLOTS_MACRO_SLOT_MANAGER_H_
