// The contact for scrolling with the wheel.
#ifndef SLOTS_MOUSE_WHEEL_SLOT_MANAGER_H_
#define SLOTS_MOUSE_WHEEL_SLOT_MANAGER_H_

#include "slots/position_slot_manager.h"

namespace taviinputmanager {

class MouseWheelSlotManager : public PositionSlotManager {
 public:
  static MouseWheelSlotManager* GetInstance() {
    static MouseWheelSlotManager instance;
    return &instance;
  }

 private:
  MouseWheelSlotManager() : PositionSlotManager(10) {}
};

}  // namespace taviinputmanager

#endif  // SLOTS_MOUSE_WHEEL_SLOT_MANAGER_H_
