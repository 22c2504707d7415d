#include "slots/macro_held_input.h"

#include <gtest/gtest.h>

namespace taviinputmanager {
namespace {

TEST(MacroHeldInput, ClearsAllButTheButtonsOfVirtualPointers) {
  MacroHeldInput* held = MacroHeldInput::GetInstance();
  held->keys.Add(30);
  held->mouse_buttons.Add(1);
  held->virtual_buttons.Add(2);
  held->joystick_buttons.insert("A");
  held->Clear();
  EXPECT_TRUE(held->keys.IsEmpty());
  EXPECT_TRUE(held->mouse_buttons.IsEmpty());
  EXPECT_TRUE(held->virtual_buttons.Contains(2));
  EXPECT_TRUE(held->joystick_buttons.empty());
}

}  // namespace
}  // namespace taviinputmanager
