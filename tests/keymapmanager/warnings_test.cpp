// Keymaps that are valid but cannot be intended.
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
       "4:9 warning: 'A' is bound twice; line 3 takes precedence"},
      {"by another spelling",
       "- {key: Esc, type: Click, point: [0.1, 0.1]}\n- {key: {scan: 1}, type: Click, point: [0.2, 0.1]}\n",
       "4:9 warning: 'Escape' is bound twice; line 3 takes precedence"},
      {"an item and a direction",
       "- {key: W, type: Click, point: [0.1, 0.1]}\n- {key_up: W, type: Swipehold, point: [0.2, 0.1]}\n",
       "4:12 warning: 'W' is bound twice; line 3 takes precedence"},
      {"two directions of one item", "- {key_up: W, key_down: W, type: Swipehold, point: [0.2, 0.1]}\n",
       "3:25 warning: 'W' is bound twice; line 3 takes precedence"},
      {"two buttons of a gamepad",
       "- {key: Pad A+B, type: Click, point: [0.1, 0.1]}\n- {key: Pad A + B, type: Click, point: [0.2, 0.1]}\n",
       "4:9 warning: 'Pad A+B' is bound twice; line 3 takes precedence"},
      {"a chord", "- {key: Q + E, type: Click, point: [0.1, 0.1]}\n- {key: Q + E, type: Click, point: [0.2, 0.1]}\n",
       "4:9 warning: 'Q + E' is bound twice; line 3 takes precedence"},
      {"the letter on keyboard and gamepad",
       "- {key: A, type: Click, point: [0.1, 0.1]}\n- {key: Pad A, type: Click, point: [0.2, 0.1]}\n",
       "4:9 warning: 'Pad A' has no effect in a keymap for keyboard and mouse; put it in the gamepad keymap"},
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
       "4:9 warning: this chord never works: line 3 uses 'Q' alone"},
      {"the first key is taken later",
       "- {key: Q + E, type: Click, point: [0.2, 0.1]}\n- {key_up: Q, type: Swipehold, point: [0.1, 0.1]}\n",
       "3:9 warning: this chord never works: line 4 uses 'Q' alone"},
      {"with a mouse button", "- {key: Q + Mouse Right, type: Click, point: [0.2, 0.1]}\n",
       "3:9 warning: a chord must consist of two keyboard keys"},
      {"of one key", "- {key: Q + Q, type: Click, point: [0.2, 0.1]}\n",
       "3:9 warning: the two keys of a chord must differ"},
  });
}

TEST(Warnings, DevicesThatStartNoSuchItem) {
  CheckRows({
      {"fire by a key", "- {key: F1, type: Staring, point: [0.5, 0.5]}\n- {key: F, type: Fire, point: [0.1, 0.1]}\n",
       "4:9 warning: only 'Mouse Left' can start a Fire"},
      {"a click by the left button", "- {key: Mouse Left, type: Click, point: [0.1, 0.1]}\n",
       "3:9 warning: 'Mouse Left' cannot start Click items: it touches, or starts a Fire"},
      {"a click by the right button", "- {key: Mouse Right, type: Click, point: [0.1, 0.1]}\n", ""},
      {"a right walk by a key", "- {key: F, type: RightWalk, point: [0.1, 0.1], walk_radius: 0.1}\n",
       "3:9 warning: only a mouse button can start a RightWalk"},
      {"a wheel on the wheel", "- {key: Wheel Up, type: Wheel, point: [0.1, 0.1], duration_ms: 80}\n",
       "3:9 warning: the wheel cannot start Wheel items"},
      {"a zoom on the wheel", "- {key: Wheel Up, type: Zoom, point: [0.1, 0.1], duration_ms: 80}\n", ""},
      {"staring on a gamepad", "- {key: Pad A, type: Staring, point: [0.1, 0.1]}\n",
       "3:9 warning: a gamepad cannot start Staring items"},
      {"a macro on a gamepad", "- {key: Pad A, type: Macro, press_commands: []}\n", ""},
      {"a walk on a gamepad", "- {key_up: Pad Up, type: Swipehold, point: [0.1, 0.1]}\n",
       "3:12 warning: a gamepad cannot start Swipehold items"},
  });
}

TEST(Warnings, DevicesThatShareNoKeymap) {
  const std::string pad_among_keys =
      "warning: 'Pad A' has no effect in a keymap for keyboard and mouse; put it in the gamepad keymap";
  const std::string key_among_pads =
      "warning: 'W' has no effect in a gamepad keymap; put it in the one for keyboard and mouse";
  EXPECT_EQ("4:9 " + pad_among_keys, Said(ReadItems("- {key: W, type: Click, point: [0.1, 0.1]}\n"
                                                    "- {key: Pad A, type: Click, point: [0.1, 0.1]}\n"
                                                    "- {key: Mouse Right, type: Click, point: [0.1, 0.1]}\n")));
  EXPECT_EQ("3:9 " + key_among_pads, Said(ReadItems("- {key: W, type: Click, point: [0.1, 0.1]}\n"
                                                    "- {key: Pad A, type: Click, point: [0.1, 0.1]}\n"
                                                    "- {key: Pad B, type: Click, point: [0.1, 0.1]}\n")));
  // As many of both: the first determines the kind of keymap.
  EXPECT_EQ("4:9 " + key_among_pads, Said(ReadItems("- {key: Pad A, type: Click, point: [0.1, 0.1]}\n"
                                                    "- {key: W, type: Click, point: [0.1, 0.1]}\n")));
}

// A slide ticks every 8 ms, a pinch every 12; a run shorter than a tick has one touch and no move.
TEST(Warnings, RunsThatTapWithoutAPause) {
  CheckRows({
      {"a slide without a length", "- {type: Wheel, key: A, point: [0.1, 0.1], direction: 1, speed: 10}\n",
       "3:3 warning: this Wheel taps without a pause and moves nothing: 'duration_ms' is 0, but must be 8 or more"},
      {"a slide shorter than a tick",
       "- {duration_ms: 7, type: Wheel, key: A, point: [0.1, 0.1], direction: 1, speed: 10}\n",
       "3:17 warning: this Wheel taps without a pause and moves nothing: 'duration_ms' is 7, but must be 8 or more"},
      {"a slide of a tick", "- {duration_ms: 8, type: Wheel, key: A, point: [0.1, 0.1], direction: 1, speed: 10}\n",
       ""},
      {"a pinch shorter than a tick",
       "- {duration_ms: 11, type: Zoom, key: A, point: [0.1, 0.1], direction: 1, speed: 10}\n",
       "3:17 warning: this Zoom taps without a pause and moves nothing: 'duration_ms' is 11, but must be 12 or more"},
      {"a pinch of a tick", "- {duration_ms: 12, type: Zoom, key: A, point: [0.1, 0.1], direction: 1, speed: 10}\n",
       ""},
  });
}

TEST(Warnings, ItemsThatStopAllInput) {
  CheckRows({
      // 1000 + (101 - 1) * 10 = 2000 ms
      {"a cast of two seconds",
       "- {type: Spell, mode: Spell_mode_curve, key: Q, point: [0.1, 0.1], press_hold_ms: 1000, swipe_steps: 101, "
       "swipe_step_ms: 10}\n",
       ""},
      {"and a millisecond",
       "- {type: Spell, mode: Spell_mode_curve, key: Q, point: [0.1, 0.1], press_hold_ms: 1001, swipe_steps: 101, "
       "swipe_step_ms: 10}\n",
       "3:3 warning: this Spell blocks all input for 2001 ms: its steps and delays add up"},
      // the slow start, (51 - 1) * 50 = 2500 ms, replaces the rest
      {"a cast with a slow start",
       "- {type: Spell, mode: Spell_mode_curve, key: Q, point: [0.1, 0.1], press_hold_ms: 9000, curve_enabled: true, "
       "curve_steps: 51, curve_step_ms: 50}\n",
       "3:3 warning: this Spell blocks all input for 2500 ms: its steps and delays add up"},
      // 3 * 700 = 2100 ms
      {"a walk by the mouse",
       "- {type: RightWalk, key: Mouse Right, point: [0.1, 0.1], walk_radius: 0.1, swipe_steps: 4, swipe_step_ms: "
       "700}\n",
       "3:3 warning: this RightWalk blocks all input for 2100 ms: its steps and delays add up"},
      {"a walk by the stick that begins slowly",
       "- {type: LeftStickWalk, key: Pad Left_Stick, point: [0.1, 0.1], walk_radius: 0.1, smooth_start: true, "
       "press_hold_ms: 3000}\n",
       "3:3 warning: this LeftStickWalk blocks all input for 3000 ms: its steps and delays add up"},
      {"the same, with the slow start off",
       "- {type: LeftStickWalk, key: Pad Left_Stick, point: [0.1, 0.1], walk_radius: 0.1, press_hold_ms: 3000}\n", ""},
      {"a walk by the stick that ends slowly",
       "- {type: LeftStickWalk, key: Pad Left_Stick, point: [0.1, 0.1], walk_radius: 0.1, delayed_stop: true, "
       "stop_settle_ms: 4000}\n",
       "3:3 warning: this LeftStickWalk blocks all input for 4000 ms: its steps and delays add up"},
      {"a walk with a long gap", "- {type: Swipehold, key_up: W, point: [0.1, 0.1], press_gap_ms: 2500}\n",
       "3:3 warning: this Swipehold blocks all input for 2500 ms: its steps and delays add up"},
      {"a gap that a rest on the centre takes away",
       "- {type: Swipehold, key_up: W, point: [0.1, 0.1], press_gap_ms: 2500, hold_center_ms: 10}\n", ""},
  });
}

TEST(Warnings, ItemsThatNeedAnother) {
  CheckRows({
      {"fire without staring", "- {type: Fire, key: Mouse Left, point: [0.1, 0.1]}\n",
       "3:3 warning: a Fire item only works during view control, but no Staring item switches that on"},
      {"spell cancel that is off", "- {type: SpellCancel, key: X, point: [0.1, 0.1]}\n",
       "3:3 warning: without 'cancel_immediately: true' the key does nothing"},
      {"spell aimed by a walk that is not there",
       "- {touch_location: Spell_touch_location_swipehold_dependence, type: Spell, key: Q, point: [0.1, 0.1]}\n",
       "3:20 warning: the walk aims, but there is no Swipehold item"},
      {"spell aimed by an inner walk that is not there",
       "- {type: Swipehold, key_up: W, point: [0.1, 0.1]}\n"
       "- {touch_location: Spell_touch_location_inner_swipehold_dependence, type: Spell, key: Q, point: [0.1, 0.1]}\n",
       "4:20 warning: nothing aims: 'inner_swipehold' is missing"},
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
      "4:9 warning: 'A' is bound twice; line 3 takes precedence\n"
      "5:3 error: the item has no 'type'",
      Said(
          ReadItems("- {key: A, type: Click, point: [0.1, 0.1]}\n- {key: A, type: Click, point: [0.2, 0.1]}\n- {}\n")));
}

}  // namespace
}  // namespace tavikeymapmanager
