// What running macros hold down, beyond fingers.
#ifndef SLOTS_MACRO_HELD_INPUT_H_
#define SLOTS_MACRO_HELD_INPUT_H_

#include <set>

#include <QString>

#include "core/code_set.h"

namespace taviinputmanager {

// Stands beside the slot managers because the sweep clears it. Main thread, but for RequestClear.
class MacroHeldInput {
 public:
  // Cleared first where that was requested, so ask for it at each use.
  static MacroHeldInput* GetInstance();

  // Forgets keys, mouse and gamepad buttons; the buttons of virtual pointers stay.
  void Clear();
  // Any thread: does so before the main thread looks again.
  static void RequestClear();

  CodeSet keys;
  CodeSet mouse_buttons;
  CodeSet virtual_buttons;             // of the macros' own pointers
  std::set<QString> joystick_buttons;  // by name

 private:
  MacroHeldInput() = default;
};

}  // namespace taviinputmanager

#endif  // SLOTS_MACRO_HELD_INPUT_H_
