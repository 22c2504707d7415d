// The words of the macro language, as data.
//
// A command is a word, or a word, ":" and one argument, which contains no ":". Commands are matched against the rows
// from the top. Most words match as a prefix, so `sleepy:20` is read as `sleep:20`.
#ifndef KEYMAP_MACRO_WORDS_H_
#define KEYMAP_MACRO_WORDS_H_

#include <QLatin1String>

namespace tavikeymapmanager {

// What a command does. One for each row of the table.
enum class MacroVerb {
  kDefaultSleepTime,
  kSleepDefault,
  kSleep,
  kPressRel,
  kReleaseAll,
  kReleaseRel,
  kStartLoop,
  kStopLoop,
  kClickRel,
  kCurveRel,
  kKeyboardPress,
  kKeyboardRelease,
  kTextInject,
  kEnterStaring,
  kExitStaring,
  kMousePress,
  kMouseRelease,
  kVmousePress,
  kVmouseRelease,
  kVmouseMove,
  kVmouseWheelUp,
  kVmouseWheelDown,
  kMouseWheelUp,
  kMouseWheelDown,
  kSwitchRel,
  kKeyboardSwitch,
  kMouseSwitch,
  kCurveFirstPointSleepTime,
  kCurveLastPointSleepTime,
  kCurveRelease,
  kJoystickPress,
  kJoystickRelease,
  kJoystickSwitch,
  kMouseLockedSwitch,
  kHoldSwitch,
  kSwipeholdRadiusIncreasedSwitch,
  kScreenshotRel,
};

// How a command is matched with a word.
enum class MacroMatch {
  kPrefix,           // the command begins with the word
  kPrefixWithColon,  // the command begins with the word and ":", so that `curve_release` does not match `curve_rel`
  kEqual,            // the command is the word
};

// What follows the colon.
enum class MacroArgument {
  kNone,  // anything after the word is ignored
  kInteger,
  kIntegerOrWord,  // or the row's `argument_word`
  kNumber,
  kPoint,   // "(x,y)", fractions of the display, or "mouse"
  kPoints,  // one or more points joined by ";"
  kText,
  kAny,  // passed on unparsed, with the command
};

// A row of the table.
struct MacroWord {
  MacroVerb verb;             // what the command does
  const char* word;           // as macros spell it
  MacroMatch match;           // how a command is matched with it
  MacroArgument argument;     // what follows the colon
  bool pauses;                // execution continues at a later tick
  const char* argument_word;  // of kIntegerOrWord, otherwise null
};

// In the order of matching.
constexpr MacroWord kMacroWords[] = {
    {MacroVerb::kDefaultSleepTime, "default_sleep_time", MacroMatch::kPrefix, MacroArgument::kInteger, false,
     nullptr},  // ms
    {MacroVerb::kSleepDefault, "sleep", MacroMatch::kEqual, MacroArgument::kNone, true, nullptr},
    {MacroVerb::kSleep, "sleep", MacroMatch::kPrefix, MacroArgument::kInteger, true, nullptr},  // ms
    {MacroVerb::kPressRel, "press_rel", MacroMatch::kPrefix, MacroArgument::kPoints, false, nullptr},
    {MacroVerb::kReleaseAll, "release_all", MacroMatch::kEqual, MacroArgument::kNone, false, nullptr},
    {MacroVerb::kReleaseRel, "release_rel", MacroMatch::kPrefix, MacroArgument::kPoints, false, nullptr},
    {MacroVerb::kStartLoop, "start_loop", MacroMatch::kPrefix, MacroArgument::kIntegerOrWord, false, "until_release"},
    {MacroVerb::kStopLoop, "stop_loop", MacroMatch::kPrefix, MacroArgument::kNone, false, nullptr},
    {MacroVerb::kClickRel, "click_rel", MacroMatch::kPrefix, MacroArgument::kPoints, true, nullptr},
    {MacroVerb::kCurveRel, "curve_rel", MacroMatch::kPrefixWithColon, MacroArgument::kPoints, true, nullptr},
    {MacroVerb::kKeyboardPress, "keyboard_press", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {MacroVerb::kKeyboardRelease, "keyboard_release", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {MacroVerb::kTextInject, "text_inject", MacroMatch::kPrefix, MacroArgument::kText, false, nullptr},
    {MacroVerb::kEnterStaring, "enter_staring", MacroMatch::kEqual, MacroArgument::kNone, false, nullptr},
    {MacroVerb::kExitStaring, "exit_staring", MacroMatch::kEqual, MacroArgument::kNone, false, nullptr},
    {MacroVerb::kMousePress, "mouse_press", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {MacroVerb::kMouseRelease, "mouse_release", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {MacroVerb::kVmousePress, "vmouse_press", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {MacroVerb::kVmouseRelease, "vmouse_release", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {MacroVerb::kVmouseMove, "vmouse_move", MacroMatch::kPrefix, MacroArgument::kPoint, false, nullptr},
    {MacroVerb::kVmouseWheelUp, "vmouse_wheelup", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {MacroVerb::kVmouseWheelDown, "vmouse_wheeldown", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {MacroVerb::kMouseWheelUp, "mouse_wheelup", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {MacroVerb::kMouseWheelDown, "mouse_wheeldown", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {MacroVerb::kSwitchRel, "switch_rel", MacroMatch::kPrefix, MacroArgument::kPoints, false, nullptr},
    {MacroVerb::kKeyboardSwitch, "keyboard_switch", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {MacroVerb::kMouseSwitch, "mouse_switch", MacroMatch::kPrefix, MacroArgument::kInteger, false, nullptr},
    {MacroVerb::kCurveFirstPointSleepTime, "curve_first_point_sleep_time", MacroMatch::kPrefix, MacroArgument::kInteger,
     false, nullptr},
    {MacroVerb::kCurveLastPointSleepTime, "curve_last_point_sleep_time", MacroMatch::kPrefix,
     MacroArgument::kIntegerOrWord, false, "until_release_cmd"},
    {MacroVerb::kCurveRelease, "curve_release", MacroMatch::kEqual, MacroArgument::kNone, false, nullptr},
    {MacroVerb::kJoystickPress, "joystick_press", MacroMatch::kPrefix, MacroArgument::kText, false, nullptr},
    {MacroVerb::kJoystickRelease, "joystick_release", MacroMatch::kPrefix, MacroArgument::kText, false, nullptr},
    {MacroVerb::kJoystickSwitch, "joystick_switch", MacroMatch::kPrefix, MacroArgument::kText, false, nullptr},
    {MacroVerb::kMouseLockedSwitch, "mouselocked_switch", MacroMatch::kPrefix, MacroArgument::kNone, false, nullptr},
    {MacroVerb::kHoldSwitch, "hold_switch", MacroMatch::kPrefix, MacroArgument::kNone, false, nullptr},
    {MacroVerb::kSwipeholdRadiusIncreasedSwitch, "swipehold_radius_increased_switch", MacroMatch::kPrefix,
     MacroArgument::kNumber, false, nullptr},
    {MacroVerb::kScreenshotRel, "screenshot_rel", MacroMatch::kPrefix, MacroArgument::kAny, false, nullptr},
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_MACRO_WORDS_H_
