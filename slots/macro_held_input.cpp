#include "slots/macro_held_input.h"

#include "slots/clear_request.h"

namespace taviinputmanager {

namespace {

ClearRequest clear_request;

}  // namespace

MacroHeldInput* MacroHeldInput::GetInstance() {
  static MacroHeldInput instance;
  if (clear_request.Take()) instance.Clear();
  return &instance;
}

void MacroHeldInput::RequestClear() { clear_request.Make(); }

void MacroHeldInput::Clear() {
  keys.Clear();
  mouse_buttons.Clear();
  joystick_buttons.clear();
}

}  // namespace taviinputmanager
