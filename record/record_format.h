// The words of a record file. Whoever writes one and whoever reads one take them from here.
#ifndef RECORD_RECORD_FORMAT_H_
#define RECORD_RECORD_FORMAT_H_

#include <QLatin1String>

namespace taviinputmanager::record_format {

// Of the document, and of an item of a merged record.
constexpr QLatin1String kInfo("info");
constexpr QLatin1String kActions("actions");
constexpr QLatin1String kMergedActions("merged_actions");  // not looked at where there are actions too
constexpr QLatin1String kControl("control");

// Of the header.
constexpr QLatin1String kPackageName("package_name");
constexpr QLatin1String kResolutionX("resolution_x");
constexpr QLatin1String kResolutionY("resolution_y");
constexpr QLatin1String kCreateTime("create_time");
constexpr QLatin1String kTotalRunningTime("total_running_time");

// Of an action.
constexpr QLatin1String kTiming("timing");
constexpr QLatin1String kType("type");
constexpr QLatin1String kData("data");
constexpr QLatin1String kExtra1("extra1");
constexpr QLatin1String kExtra2("extra2");

// Of a control.
constexpr QLatin1String kFileName("file_name");
constexpr QLatin1String kRepeatTimes("repeat_times");
constexpr QLatin1String kRepeatDelay("repeat_delay");
constexpr QLatin1String kSpeedRatio("speed_ratio");
constexpr QLatin1String kTillNextItemDelay("till_next_item_delay");

// Of the start marker: the data of the first action, a JSON text of its own.
constexpr QLatin1String kCmd("cmd");
constexpr QLatin1String kDetectApp("detect_app");
constexpr QLatin1String kParams("params");
constexpr QLatin1String kPackage("package");
constexpr QLatin1String kApp("app");

// The types of actions.
constexpr QLatin1String kTypeVControl("vcontrol");
constexpr QLatin1String kTypeTouch("touch");
constexpr QLatin1String kTypeKeyboard("keyboard");
constexpr QLatin1String kTypeMouse("mouse");
constexpr QLatin1String kTypeJoystick("joystick");
constexpr QLatin1String kTypeInputMethod("input_method");
// These two are in no file.
constexpr QLatin1String kTypeTimer("timer");         // a pause that an iterator makes up
constexpr QLatin1String kTypeRawInput("raw_input");  // an instruction of a captured macro

// The words of an action's data. Arguments follow behind colons.
constexpr QLatin1String kPressRel("press_rel");
constexpr QLatin1String kPressMultiRel("press_multi_rel");
constexpr QLatin1String kRelease("release");
constexpr QLatin1String kReleaseMulti("release_multi");
constexpr QLatin1String kReset("reset");
constexpr QLatin1String kKeyboardPress("keyboard_press");
constexpr QLatin1String kKeyboardRelease("keyboard_release");
constexpr QLatin1String kMove("move");
constexpr QLatin1String kWheel("wheel");
constexpr QLatin1String kTextInject("text_inject");
constexpr QLatin1String kTextControl("text_control");

}  // namespace taviinputmanager::record_format

#endif  // RECORD_RECORD_FORMAT_H_
