// The contact for walking with a gamepad's left stick.
#ifndef SLOTS_JOYSTICK_LEFT_STICK_SLOT_MANAGER_H_
#define SLOTS_JOYSTICK_LEFT_STICK_SLOT_MANAGER_H_

#include "slots/position_slot_manager.h"

namespace taviinputmanager {

class JoystickLeftStickSlotManager : public PositionSlotManager {
 public:
  static JoystickLeftStickSlotManager* GetInstance() {
    static JoystickLeftStickSlotManager instance;
    return &instance;
  }

 private:
  JoystickLeftStickSlotManager() : PositionSlotManager(8) {}
};

}  // namespace taviinputmanager

#endif  // SLOTS_JOYSTICK_LEFT_STICK_SLOT_MANAGER_H_
