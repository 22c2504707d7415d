// The contact for turning the view with a gamepad's right stick.
#ifndef SLOTS_JOYSTICK_RIGHT_STICK_SLOT_MANAGER_H_
#define SLOTS_JOYSTICK_RIGHT_STICK_SLOT_MANAGER_H_

#include "slots/position_slot_manager.h"

namespace taviinputmanager {

class JoystickRightStickSlotManager : public PositionSlotManager {
 public:
  static JoystickRightStickSlotManager* GetInstance() {
    static JoystickRightStickSlotManager instance;
    return &instance;
  }

 private:
  JoystickRightStickSlotManager() : PositionSlotManager(9) {}
};

}  // namespace taviinputmanager

#endif  // SLOTS_JOYSTICK_RIGHT_STICK_SLOT_MANAGER_H_
