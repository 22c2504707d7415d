// What a keymap may say and its author cannot have meant.
#include "tests/keymapmanager/keymap_text.h"

namespace tavikeymapmanager {
namespace {

struct Row {
  const char* name;
  const char* items;  // from line 3 on
  const char* said;
};

void CheckRows(std::initializer_list<Row> rows) {
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const LoadResult result = ReadItems(row.items);
    EXPECT_EQ(row.said, Said(result));
    EXPECT_FALSE(result.HasErrors());
  }
}

TEST(Warnings, KeysBoundTwice) {
  CheckRows({
      {"two items", "- {key: A, type: Click, point: [0.1, 0.1]}\n- {key: A, type: Click, point: [0.2, 0.1]}\n",
       "4:9 warning: 'A' is bound a second time; it does what line 3 says"},
      {"by another spelling",
       "- {key: Esc, type: Click, point: [0.1, 0.1]}\n- {key: {scan: 1}, type: Click, point: [0.2, 0.1]}\n",
       "4:9 warning: 'Escape' is bound a second time; it does what line 3 says"},
      {"an item and a direction",
       "- {key: W, type: Click, point: [0.1, 0.1]}\n- {key_up: W, type: Swipehold, point: [0.2, 0.1]}\n",
       "4:12 warning: 'W' is bound a second time; it does what line 3 says"},
      {"two directions of one item", "- {key_up: W, key_down: W, type: Swipehold, point: [0.2, 0.1]}\n",
       "3:25 warning: 'W' is bound a second time; it does what line 3 says"},
      {"two buttons of a gamepad",
       "- {key: Pad A+B, type: Click, point: [0.1, 0.1]}\n- {key: Pad A + B, type: Click, point: [0.2, 0.1]}\n",
       "4:9 warning: 'Pad A+B' is bound a second time; it does what line 3 says"},
      {"a chord", "- {key: Q + E, type: Click, point: [0.1, 0.1]}\n- {key: Q + E, type: Click, point: [0.2, 0.1]}\n",
       "4:9 warning: 'Q + E' is bound a second time; it does what line 3 says"},
      {"the letter on keyboard and gamepad",
       "- {key: A, type: Click, point: [0.1, 0.1]}\n- {key: Pad A, type: Click, point: [0.2, 0.1]}\n", ""},
      {"a chord and its last key",
       "- {key: Q + E, type: Click, point: [0.1, 0.1]}\n- {key: E, type: Click, point: [0.2, 0.1]}\n", ""},
      {"a chord and its reverse",
       "- {key: Q + E, type: Click, point: [0.1, 0.1]}\n- {key: E + Q, type: Click, point: [0.2, 0.1]}\n", ""},
      {"a label", "- {key: A, type: Click, point: [0.1, 0.1]}\n- {key: A, type: Tip, point: [0.2, 0.1]}\n", ""},
  });
}

TEST(Warnings, ChordsThatNeverAnswer) {
  CheckRows({
      {"the first key is taken",
       "- {key: Q, type: Click, point: [0.1, 0.1]}\n- {key: Q + E, type: Click, point: [0.2, 0.1]}\n",
       "4:9 warning: this chord never answers: line 3 takes 'Q' alone"},
      {"the first key is taken later",
       "- {key: Q + E, type: Click, point: [0.2, 0.1]}\n- {key_up: Q, type: Swipehold, point: [0.1, 0.1]}\n",
       "3:9 warning: this chord never answers: line 4 takes 'Q' alone"},
      {"with a mouse button", "- {key: Q + Mouse Right, type: Click, point: [0.2, 0.1]}\n",
       "3:9 warning: a chord answers to two keys of the keyboard only"},
      {"of one key", "- {key: Q + Q, type: Click, point: [0.2, 0.1]}\n", "3:9 warning: a chord has two different keys"},
  });
}

TEST(Warnings, DevicesThatStartNoSuchItem) {
  CheckRows({
      {"fire by a key", "- {key: F1, type: Staring, point: [0.5, 0.5]}\n- {key: F, type: Fire, point: [0.1, 0.1]}\n",
       "4:9 warning: only 'Mouse Left' starts a Fire"},
      {"a click by the left button", "- {key: Mouse Left, type: Click, point: [0.1, 0.1]}\n",
       "3:9 warning: 'Mouse Left' starts no Click: it touches, or starts a Fire"},
      {"a click by the right button", "- {key: Mouse Right, type: Click, point: [0.1, 0.1]}\n", ""},
      {"a right walk by a key", "- {key: F, type: RightWalk, point: [0.1, 0.1], walk_radius: 0.1}\n",
       "3:9 warning: only a mouse button starts a RightWalk"},
      {"a wheel on the wheel", "- {key: Wheel Up, type: Wheel, point: [0.1, 0.1]}\n",
       "3:9 warning: the wheel starts no Wheel"},
      {"a zoom on the wheel", "- {key: Wheel Up, type: Zoom, point: [0.1, 0.1]}\n", ""},
      {"staring on a gamepad", "- {key: Pad A, type: Staring, point: [0.1, 0.1]}\n",
       "3:9 warning: a gamepad starts no Staring"},
      {"a macro on a gamepad", "- {key: Pad A, type: Macro, press_commands: []}\n", ""},
      {"a walk on a gamepad", "- {key_up: Pad Up, type: Swipehold, point: [0.1, 0.1]}\n",
       "3:12 warning: a gamepad starts no Swipehold"},
  });
}

TEST(Warnings, ItemsThatNeedAnother) {
  CheckRows({
      {"fire without staring", "- {type: Fire, key: Mouse Left, point: [0.1, 0.1]}\n",
       "3:3 warning: a Fire item answers while view control is on, and no Staring item switches it on"},
      {"spell cancel that is off", "- {type: SpellCancel, key: X, point: [0.1, 0.1]}\n",
       "3:3 warning: without 'cancel_immediately: true' the key does nothing"},
      {"spell aimed by a walk that is not there",
       "- {touch_location: Spell_touch_location_swipehold_dependence, type: Spell, key: Q, point: [0.1, 0.1]}\n",
       "3:20 warning: the walk aims, and no Swipehold item walks"},
      {"spell aimed by an inner walk that is not there",
       "- {type: Swipehold, key_up: W, point: [0.1, 0.1]}\n"
       "- {touch_location: Spell_touch_location_inner_swipehold_dependence, type: Spell, key: Q, point: [0.1, 0.1]}\n",
       "4:20 warning: nothing aims: there is no 'inner_swipehold'"},
      {"inner walk that aims nothing",
       "- {inner_swipehold: {}, type: Spell, key: Q, point: [0.1, 0.1], trigger: Spell_Trigger_Immedaite}\n",
       "3:21 warning: without 'touch_location: Spell_touch_location_inner_swipehold_dependence' this walk does "
       "nothing"},
      {"spell without a circle", "- {type: Spell, key: Q, point: [0.1, 0.1]}\n",
       "3:3 warning: the mouse cannot aim without 'circle_size' and 'swipe_radius' above 0"},
      {"spell that follows the pointer itself", "- {type: Spell, key: Q, point: [0.1, 0.1], mode: Spell_mode_curve}\n",
       ""},
      {"virtual gamepad that is off",
       "- {type: VirtualJoystickButton, key: A, map_text: A}\n- {type: VirtualJoystickButton, key: B, map_text: B}\n",
       "3:3 warning: the guest has no gamepad for this without 'virtual_joystick: true' in 'wheel'"},
  });
}

TEST(Warnings, ButtonsThatTheVirtualGamepadHasNot) {
  EXPECT_EQ("3:63 warning: the virtual gamepad has no button 'Strat'; did you mean 'Start'?",
            Said(Read("format: 1\nwheel: {virtual_joystick: true}\n"
                      "items: [{type: VirtualJoystickButton, key: A, map_text:       Strat}]\n")));
  EXPECT_EQ("", Said(Read("format: 1\nwheel: {virtual_joystick: true}\n"
                          "items: [{type: VirtualJoystickButton, key: A, map_text: \"14\"}]\n")));
}

TEST(Warnings, ABrokenItemIsNotJudged) {
  EXPECT_EQ("3:46 error: unknown field 'pont' of SpellCancel; did you mean 'point'?",
            Said(ReadItems("- {type: SpellCancel, key: X, point: [0, 0], pont: 1}\n")));
}

TEST(Warnings, StandBesideErrors) {
  EXPECT_EQ(
      "4:9 warning: 'A' is bound a second time; it does what line 3 says\n"
      "5:3 error: an item without 'type'",
      Said(
          ReadItems("- {key: A, type: Click, point: [0.1, 0.1]}\n- {key: A, type: Click, point: [0.2, 0.1]}\n- {}\n")));
}

}  // namespace
}  // namespace tavikeymapmanager
