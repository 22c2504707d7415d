// The words of the macro language, as data.
//
// A command is a word, or a word with ":" and one argument behind it, which holds no further ":". Commands are matched
// against the rows from the top; most words match as a prefix, so that `sleepy:20` is read as `sleep:20`.
#ifndef KEYMAP_MACRO_WORDS_H_
#define KEYMAP_MACRO_WORDS_H_

#include <QLatin1String>

namespace tavikeymapmanager {

enum class MacroMatch { kPrefix, kEqual };

enum class MacroArgument {
  kNone,
  kInteger,
  kIntegerOrWord,  // or the row's `argument_word`
  kNumber,
  kPoint,   // "(x,y)", fractions of the display, or "mouse"
  kPoints,  // one or more points joined by ";"
  kText,
  kAny,  // passed on with the command
};

struct MacroWord {
  const char* word;
  MacroMatch match;
  MacroArgument argument;
  bool pauses;                // execution goes on at a later tick
  const char* argument_word;  // of kIntegerOrWord, else null
};

// In the order of matching.
constexpr MacroWord kMacroWords[] = {
    {"default_sleep_time", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},  // ms
    {"sleep", MacroMatch::kEqual, MacroArgument::kNone, true, nullptr},
    {"sleep", MacroMatch::kPrefix, MacroArgument::kInteger, true, nullptr},  // ms
    {"press_rel", MacroMatch::kPrefix, MacroArgument::kPoints, false, nullptr},
    {"release_all", MacroMatch::kEqual, MacroArgument::kNone, false, nullptr},
    {"release_rel", MacroMatch::kPrefix, MacroArgument::kPoints, false, nullptr},
    {"start_loop", MacroMatch::kPrefix, MacroArgument::kIntegerOrWord, false, "until_release"},
    {"stop_loop", MacroMatch::kPrefix, MacroArgument::kNone, false, nullptr},
    {"click_rel", MacroMatch::kPrefix, MacroArgument::kPoints, true, nullptr},
    {"curve_rel", MacroMatch::kPrefix, MacroArgument::kPoints, true, nullptr},  // its ":" belongs to the word
    {"keyboard_press", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {"keyboard_release", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {"text_inject", MacroMatch::kPrefix, MacroArgument::kText, false, nullptr},
    {"enter_staring", MacroMatch::kEqual, MacroArgument::kNone, false, nullptr},
    {"exit_staring", MacroMatch::kEqual, MacroArgument::kNone, false, nullptr},
    {"mouse_press", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {"mouse_release", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {"vmouse_press", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {"vmouse_release", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {"vmouse_move", MacroMatch::kPrefix, MacroArgument::kPoint, false, nullptr},
    {"vmouse_wheelup", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {"vmouse_wheeldown", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {"mouse_wheelup", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {"mouse_wheeldown", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {"switch_rel", MacroMatch::kPrefix, MacroArgument::kPoints, false, nullptr},
    {"keyboard_switch", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {"mouse_switch", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {"curve_first_point_sleep_time", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {"curve_last_point_sleep_time", MacroMatch::kPrefix, MacroArgument::kIntegerOrWord, false, "until_release_cmd"},
    {"curve_release", MacroMatch::kEqual, MacroArgument::kNone, false, nullptr},
    {"joystick_press", MacroMatch::kPrefix, MacroArgument::kText, false, nullptr},
    {"joystick_release", MacroMatch::kPrefix, MacroArgument::kText, false, nullptr},
    {"joystick_switch", MacroMatch::kPrefix, MacroArgument::kText, false, nullptr},
    {"mouselocked_switch", MacroMatch::kPrefix, MacroArgument::kNone, false, nullptr},
    {"hold_switch", MacroMatch::kPrefix, MacroArgument::kNone, false, nullptr},
    {"swipehold_radius_increased_switch", MacroMatch::kPrefix, MacroArgument::kNumber, false, nullptr},
    {"screenshot_rel", MacroMatch::kPrefix, MacroArgument::kAny, false, nullptr},
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_MACRO_WORDS_H_
