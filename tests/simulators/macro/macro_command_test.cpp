#include "simulators/macro/macro_command.h"

#include <gtest/gtest.h>

namespace taviinputmanager {
namespace {

using tavikeymapmanager::kMacroWords;
using tavikeymapmanager::MacroVerb;

TEST(MacroCommand, AWordIsReadWithItsArgument) {
  const auto command = ParseMacroCommand("sleep:20");
  ASSERT_TRUE(command);
  EXPECT_EQ(MacroVerb::kSleep, command->verb);
  EXPECT_EQ(20, command->Integer());
}

TEST(MacroCommand, EveryWordOfTheTableIsReadAsItself) {
  for (const auto& row : kMacroWords) {
    const bool is_bare = row.argument == tavikeymapmanager::MacroArgument::kNone;
    const auto command = ParseMacroCommand(QLatin1String(row.word) + (is_bare ? "" : ":1"));
    ASSERT_TRUE(command) << row.word;
    EXPECT_EQ(row.verb, command->verb) << row.word;
  }
}

TEST(MacroCommand, MostWordsMatchAsAPrefix) {
  const struct {
    const char* text;
    MacroVerb verb;
  } rows[] = {
      {"sleepy:20", MacroVerb::kSleep},
      {"default_sleep_time_ms:3", MacroVerb::kDefaultSleepTime},
      {"press_relative:(0.5,0.5)", MacroVerb::kPressRel},
      {"release_rel_all:(0.5,0.5)", MacroVerb::kReleaseRel},
      {"start_loops:2", MacroVerb::kStartLoop},
      {"stop_loop_now", MacroVerb::kStopLoop},
      {"stop_loop:1:2", MacroVerb::kStopLoop},
      {"click_rel2:(0.5,0.5)", MacroVerb::kClickRel},
      {"hold_switch:on", MacroVerb::kHoldSwitch},
      {"mouselocked_switch:1", MacroVerb::kMouseLockedSwitch},
      {"screenshot_rel", MacroVerb::kScreenshotRel},
      {"screenshot_rel:(0.1,0.1):(0.2,0.2)", MacroVerb::kScreenshotRel},
  };
  for (const auto& row : rows) {
    const auto command = ParseMacroCommand(row.text);
    ASSERT_TRUE(command) << row.text;
    EXPECT_EQ(row.verb, command->verb) << row.text;
  }
}

TEST(MacroCommand, SomeCommandsAreSkipped) {
  for (const char* text : {"",
                           "unknown:1",
                           "Sleep:20",
                           " sleep:20",
                           "sleep:1:2",
                           "sleepy",         // a word that takes a time, without one
                           "release_all:1",  // whole words only
                           "release_all_now",
                           "enter_staring:1",
                           "exit_staring_now",
                           "curve_release:1",
                           "curve_rel",  // its colon is missing
                           "curve_relative:(0.5,0.5)",
                           "curve_rel:(0.1,0.1):2",
                           "press_rel",
                           "press_rel:(0.5,0.5):",
                           "release_rel",
                           "switch_rel",
                           "click_rel",
                           "start_loop",
                           "start_loop:2:3",
                           "default_sleep_time",
                           "keyboard_press",
                           "keyboard_press:17:1",
                           "keyboard_release",
                           "keyboard_switch",
                           "text_inject",
                           "text_inject:a:b",
                           "mouse_press",
                           "mouse_release",
                           "mouse_switch",
                           "mouse_wheelup",
                           "mouse_wheeldown:1:2",
                           "vmouse_press",
                           "vmouse_release",
                           "vmouse_move",
                           "vmouse_wheelup",
                           "vmouse_wheeldown",
                           "joystick_press",
                           "joystick_release:A:B",
                           "joystick_switch",
                           "curve_first_point_sleep_time",
                           "curve_last_point_sleep_time",
                           "swipehold_radius_increased_switch",
                           "text_control:ENTER",  // words of record files
                           "press_multi_rel:(0.5,0.5)",
                           "release_multi:18"}) {
    EXPECT_FALSE(ParseMacroCommand(text)) << text;
  }
}

TEST(MacroCommand, AnEmptyArgumentIsOne) {
  const auto command = ParseMacroCommand("sleep:");
  ASSERT_TRUE(command);
  EXPECT_EQ(MacroVerb::kSleep, command->verb);
  EXPECT_EQ(0, command->Integer());
}

TEST(MacroCommand, NumbersThatCannotBeReadAreZero) {
  EXPECT_EQ(0, ParseMacroCommand("sleep:0x10")->Integer());
  EXPECT_EQ(0, ParseMacroCommand("sleep:1.5")->Integer());
  EXPECT_EQ(0, ParseMacroCommand("sleep:4294967296")->Integer());
  EXPECT_EQ(-5, ParseMacroCommand("sleep:-5")->Integer());
  EXPECT_EQ(1.5, ParseMacroCommand("swipehold_radius_increased_switch:1.5")->Number());
  EXPECT_EQ(0, ParseMacroCommand("swipehold_radius_increased_switch:big")->Number());
}

}  // namespace
}  // namespace taviinputmanager
