// Commands that the macro language skips silently, or executes in an unexpected way.
#include "tests/keymapmanager/keymap_text.h"

namespace tavikeymapmanager {
namespace {

// The diagnostics of a macro's commands, without their positions.
std::string SaidOf(const QByteArrayList& commands, const QByteArray& field = "press_commands") {
  QByteArray text = "- type: Macro\n  key: F1\n  " + field + ":\n";
  for (const QByteArray& command : commands) text += "  - \"" + command + "\"\n";
  const LoadResult result = ReadItems(text);
  EXPECT_FALSE(result.HasErrors());
  QStringList messages;
  for (const Diagnostic& diagnostic : result.diagnostics) messages += diagnostic.message;
  return messages.join(QLatin1Char('\n')).toStdString();
}

TEST(MacroWarnings, EveryCommandOfTheLanguageIsKnown) {
  for (const char* command : {"default_sleep_time:8",
                              "sleep",
                              "sleep:20",
                              "press_rel:(0.1,0.2);mouse",
                              "release_all",
                              "release_rel:mouse",
                              "click_rel:(0.5,0.5)",
                              "curve_rel:(0.1,0.1);(0.2,0.2)",
                              "keyboard_press:17",
                              "keyboard_release:17",
                              "text_inject:hello there",
                              "enter_staring",
                              "exit_staring",
                              "mouse_press:1",
                              "mouse_release:1",
                              "vmouse_press:1",
                              "vmouse_release:1",
                              "vmouse_move:(0.5,0.5)",
                              "vmouse_wheelup:120",
                              "vmouse_wheeldown:120",
                              "mouse_wheelup:1",
                              "mouse_wheeldown:1",
                              "switch_rel:(0.1,0.2)",
                              "keyboard_switch:17",
                              "mouse_switch:2",
                              "curve_first_point_sleep_time:5",
                              "curve_last_point_sleep_time:5",
                              "curve_last_point_sleep_time:until_release_cmd",
                              "curve_release",
                              "joystick_press:A",
                              "joystick_release:A",
                              "joystick_switch:A",
                              "mouselocked_switch",
                              "hold_switch",
                              "swipehold_radius_increased_switch:1.5",
                              "screenshot_rel",
                              "screenshot_rel:(0.1,0.1):(0.2,0.2)"}) {
    EXPECT_EQ("", SaidOf({command})) << command;
  }
}

struct Row {
  const char* command;
  const char* said;
};

const Row kRows[] = {
    {"slep:20", "unknown command 'slep'; did you mean 'sleep'?"},
    {"sleepy:20", "unknown command 'sleepy'; did you mean 'sleep'?"},
    {"", "unknown command ''"},
    {"press_multi_rel:1", "unknown command 'press_multi_rel'"},
    {"curve_rel", "'curve_rel' takes one argument after ':'"},
    {"sleep:1:2", "'sleep' takes one argument after ':'"},
    {"release_all:1", "'release_all' takes no argument"},
    {"hold_switch:1", "'hold_switch' takes no argument"},
    {"text_inject:a:b", "'text_inject' takes one argument after ':'"},
    {"sleep:", "'sleep': '' is not a whole number"},
    {"sleep:1.5", "'sleep': '1.5' is not a whole number"},
    {"keyboard_press:W", "'keyboard_press': 'W' is not a whole number"},
    {"swipehold_radius_increased_switch:big", "'swipehold_radius_increased_switch': 'big' is not a number"},
    {"curve_last_point_sleep_time:until_release",
     "'curve_last_point_sleep_time': expected a whole number or 'until_release_cmd', got 'until_release'"},
    {"sleep:-5", "'sleep': a negative time stops the macro forever"},
    {"default_sleep_time:-1", "'default_sleep_time': a negative time stops the macro forever"},
    {"mouse_wheeldown:-120", ""},
    {"click rel:(0.1,0.1)",
     "unknown command 'click rel'; a word has no blanks in or around it; did you mean 'click_rel'?"},
    {"click_rel :(0.1,0.1)",
     "unknown command 'click_rel'; a word has no blanks in or around it; did you mean 'click_rel'?"},
    {" sleep", "unknown command 'sleep'; a word has no blanks in or around it; did you mean 'sleep'?"},
    {"click_rel: (0.1,0.1)",
     "'(0.1,0.1)' is not a point; a point is (x,y), not (0,0), or mouse, without blanks around it"},
    {"click_rel:(500,300)", "'(500,300)' is outside the display: x and y are fractions from 0 to 1, not pixels"},
    {"vmouse_move:(0.5,1.01)", "'(0.5,1.01)' is outside the display: x and y are fractions from 0 to 1, not pixels"},
    {"press_rel:(-0.1,0.5)", "'(-0.1,0.5)' is outside the display: x and y are fractions from 0 to 1, not pixels"},
    {"press_rel:(1,1)", ""},
    {"press_rel:(0,0)", "'(0,0)' is not a point; a point is (x,y), not (0,0), or mouse"},
    {"press_rel:(0.1,0.2,0.3)", "'(0.1,0.2,0.3)' is not a point; a point is (x,y), not (0,0), or mouse"},
    {"press_rel:0.1,0.2", "'0.1,0.2' is not a point; a point is (x,y), not (0,0), or mouse"},
    {"press_rel:(0.1,a)", "'(0.1,a)' is not a point; a point is (x,y), not (0,0), or mouse"},
    {"vmouse_move:(0.1,0.1);(0.2,0.2)", "'(0.1,0.1);(0.2,0.2)' is not a point; a point is (x,y), not (0,0), or mouse"},
};

TEST(MacroWarnings, CommandsThatWouldBeSkipped) {
  for (const Row& row : kRows) EXPECT_EQ(row.said, SaidOf({row.command})) << row.command;
}

TEST(MacroWarnings, ReleaseCommandsAreReadToo) {
  EXPECT_EQ("unknown command 'slep'; did you mean 'sleep'?", SaidOf({"slep"}, "release_commands"));
}

TEST(MacroWarnings, EachPointOfAListIsLookedAt) {
  EXPECT_EQ(
      "'mice' is not a point; a point is (x,y), not (0,0), or mouse\n"
      "'' is not a point; a point is (x,y), not (0,0), or mouse",
      SaidOf({"press_rel:mouse;mice;(0.1,0.1);"}));
}

TEST(MacroWarnings, ALoopOfTwoCommandsRepeats) {
  EXPECT_EQ("", SaidOf({"start_loop:3", "click_rel:mouse", "sleep:5", "stop_loop"}));
  EXPECT_EQ("", SaidOf({"start_loop:until_release", "click_rel:mouse", "sleep:5", "stop_loop"}));
}

TEST(MacroWarnings, ALoopOfOneCommandRunsOnce) {
  EXPECT_EQ("a loop of fewer than two commands runs once", SaidOf({"start_loop:3", "sleep:5", "stop_loop"}));
}

TEST(MacroWarnings, ALoopWithoutAPauseNeverEnds) {
  EXPECT_EQ("this loop never ends and blocks all input: put a 'sleep' in it",
            SaidOf({"start_loop:until_release", "mouse_press:1", "mouse_release:1", "stop_loop"}));
  EXPECT_EQ("", SaidOf({"start_loop:5", "mouse_press:1", "mouse_release:1", "stop_loop"}));
}

TEST(MacroWarnings, LoopsThatDoNotPair) {
  EXPECT_EQ("no loop is open here", SaidOf({"stop_loop"}));
  EXPECT_EQ("a loop without 'stop_loop' runs once", SaidOf({"start_loop:3", "sleep", "sleep"}));
  EXPECT_EQ("loops do not nest: this one ends the previous one\nno loop is open here",
            SaidOf({"start_loop:3", "sleep", "start_loop:3", "sleep", "sleep", "stop_loop", "stop_loop"}));
}

TEST(MacroWarnings, StandAtTheCommand) {
  EXPECT_EQ("7:5 warning: unknown command 'slep'; did you mean 'sleep'?",
            Said(ReadItems("- type: Macro\n  key: F1\n  press_commands:\n  - sleep\n  - slep\n")));
}

}  // namespace
}  // namespace tavikeymapmanager
