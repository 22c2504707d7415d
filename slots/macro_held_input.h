// What running macros hold down, except contacts.
#ifndef SLOTS_MACRO_HELD_INPUT_H_
#define SLOTS_MACRO_HELD_INPUT_H_

#include <set>

#include <QString>

#include "core/code_set.h"

namespace taviinputmanager {

// In this folder because the sweep clears it. Main thread, except RequestClear.
class MacroHeldInput {
 public:
  // Clears it first if that was requested, so call this for each use.
  static MacroHeldInput* GetInstance();

  // Clears keys, mouse and gamepad buttons; the buttons of virtual pointers stay.
  void Clear();
  // Any thread: clears before the next use on the main thread.
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
