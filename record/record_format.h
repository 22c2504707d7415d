// The words of a record file, for the code that writes records and the code that reads them.
#ifndef RECORD_RECORD_FORMAT_H_
#define RECORD_RECORD_FORMAT_H_

#include "core/latin1.h"

namespace taviinputmanager::record_format {

// Keys of the document, and of an item of a merged record.
constexpr QLatin1String kInfo = Latin1("info");
constexpr QLatin1String kActions = Latin1("actions");
constexpr QLatin1String kMergedActions = Latin1("merged_actions");  // ignored if there are actions too
constexpr QLatin1String kControl = Latin1("control");

// Of the header.
constexpr QLatin1String kPackageName = Latin1("package_name");
constexpr QLatin1String kResolutionX = Latin1("resolution_x");
constexpr QLatin1String kResolutionY = Latin1("resolution_y");
constexpr QLatin1String kCreateTime = Latin1("create_time");
constexpr QLatin1String kTotalRunningTime = Latin1("total_running_time");

// Of an action.
constexpr QLatin1String kTiming = Latin1("timing");
constexpr QLatin1String kType = Latin1("type");
constexpr QLatin1String kData = Latin1("data");
constexpr QLatin1String kExtra1 = Latin1("extra1");
constexpr QLatin1String kExtra2 = Latin1("extra2");

// Of a control.
constexpr QLatin1String kFileName = Latin1("file_name");
constexpr QLatin1String kRepeatTimes = Latin1("repeat_times");
constexpr QLatin1String kRepeatDelay = Latin1("repeat_delay");
constexpr QLatin1String kSpeedRatio = Latin1("speed_ratio");
constexpr QLatin1String kTillNextItemDelay = Latin1("till_next_item_delay");

// Of the start marker: the data of the first action, which is a JSON text itself.
constexpr QLatin1String kCmd = Latin1("cmd");
constexpr QLatin1String kDetectApp = Latin1("detect_app");
constexpr QLatin1String kParams = Latin1("params");
constexpr QLatin1String kPackage = Latin1("package");
constexpr QLatin1String kApp = Latin1("app");

// The types of actions.
constexpr QLatin1String kTypeVControl = Latin1("vcontrol");
constexpr QLatin1String kTypeTouch = Latin1("touch");
constexpr QLatin1String kTypeKeyboard = Latin1("keyboard");
constexpr QLatin1String kTypeMouse = Latin1("mouse");
constexpr QLatin1String kTypeJoystick = Latin1("joystick");
constexpr QLatin1String kTypeInputMethod = Latin1("input_method");
// These two are not in files.
constexpr QLatin1String kTypeTimer = Latin1("timer");         // a pause that an iterator inserts
constexpr QLatin1String kTypeRawInput = Latin1("raw_input");  // an instruction of a captured macro

// The words of an action's data. Arguments follow after colons.
constexpr QLatin1String kPressRel = Latin1("press_rel");
constexpr QLatin1String kPressMultiRel = Latin1("press_multi_rel");
constexpr QLatin1String kRelease = Latin1("release");
constexpr QLatin1String kReleaseMulti = Latin1("release_multi");
constexpr QLatin1String kReset = Latin1("reset");
constexpr QLatin1String kKeyboardPress = Latin1("keyboard_press");
constexpr QLatin1String kKeyboardRelease = Latin1("keyboard_release");
constexpr QLatin1String kMove = Latin1("move");
constexpr QLatin1String kWheel = Latin1("wheel");
constexpr QLatin1String kTextInject = Latin1("text_inject");
constexpr QLatin1String kTextControl = Latin1("text_control");

}  // namespace taviinputmanager::record_format

#endif  // RECORD_RECORD_FORMAT_H_
