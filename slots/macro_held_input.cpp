#include "slots/macro_held_input.h"

namespace taviinputmanager {

MacroHeldInput* MacroHeldInput::GetInstance() {
  static MacroHeldInput instance;
  return &instance;
}

void MacroHeldInput::Clear() {
  keys.Clear();
  mouse_buttons.Clear();
  joystick_buttons.clear();
}

}  // namespace taviinputmanager
