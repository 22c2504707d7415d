// The words of a keymap as keymaps spell them, including misspellings. Comparison is exact and case-sensitive.
#ifndef KEYMAP_KEYWORDS_H_
#define KEYMAP_KEYWORDS_H_

#include <QString>

namespace tavikeymapmanager {

namespace keywords {

// Item types
inline const QString kTypeClick = QStringLiteral("Click");
inline const QString kTypeBunchClick = QStringLiteral("BunchClick");
inline const QString kTypeCurve = QStringLiteral("Curve");
inline const QString kTypeEye = QStringLiteral("Eye");
inline const QString kTypeFire = QStringLiteral("Fire");
inline const QString kTypeGravity = QStringLiteral("Gravity");
inline const QString kTypeLeftStickWalk = QStringLiteral("LeftStickWalk");
inline const QString kTypeRightStickEye = QStringLiteral("RightStickEye");
inline const QString kTypeMacro = QStringLiteral("Macro");
inline const QString kTypeRightWalk = QStringLiteral("RightWalk");
inline const QString kTypeObserve = QStringLiteral("Observe");
inline const QString kTypeOperationRecorder = QStringLiteral("OperationRecorder");
inline const QString kTypeSpellCancel = QStringLiteral("SpellCancel");
inline const QString kTypeSpell = QStringLiteral("Spell");
inline const QString kTypeStaring = QStringLiteral("Staring");
inline const QString kTypeSwipehold = QStringLiteral("Swipehold");
inline const QString kTypeVirtualLeftStick = QStringLiteral("VirtualLeftStick");
inline const QString kTypeVirtualRightStick = QStringLiteral("VirtualRightStick");
inline const QString kTypeTip = QStringLiteral("Tip");
inline const QString kTypeVirtualJoystickBunchButton = QStringLiteral("VirtualJoystickBunchButton");
inline const QString kTypeVirtualJoystickButton = QStringLiteral("VirtualJoystickButton");
inline const QString kTypeVirtualLeftStickShiftButton = QStringLiteral("VirtualLeftStickShiftButton");
inline const QString kTypeWheel = QStringLiteral("Wheel");
inline const QString kTypeZoom = QStringLiteral("Zoom");
inline const QString kTypeUnknown = QStringLiteral("Unknown");

// ConfigKey::device
inline const QString kDeviceKeyboard = QStringLiteral("keyboard");
inline const QString kDeviceMouse = QStringLiteral("mouse");
inline const QString kDeviceJoystick = QStringLiteral("joystick");
inline const QString kDeviceWheel = QStringLiteral("wheel");

// SwipeholdConfigItem::press_mode
inline const QString kPressClick = QStringLiteral("Click");
inline const QString kPressMove = QStringLiteral("Move");
inline const QString kPressTransparent = QStringLiteral("Transparent");

// SwipeholdConfigItem::variable_mode
inline const QString kVariableConstant = QStringLiteral("Constant");
inline const QString kVariableSmall = QStringLiteral("Small_Variable");
inline const QString kVariableBig = QStringLiteral("Big_Variable");

// SwipeholdConfigItem::subsequent_mode
inline const QString kSubsequentClick = QStringLiteral("Click");
inline const QString kSubsequentMove = QStringLiteral("Move");

// SwipeholdConfigItem::opposite_keys_mode
inline const QString kOppositeJustUseLast = QStringLiteral("Just_Use_Last");
inline const QString kOppositeUseBoth = QStringLiteral("Use_Both");

// Curve names
inline const QString kCurveDefault = QStringLiteral("Default");
inline const QString kCurveSin = QStringLiteral("Sin");
inline const QString kCurveCos = QStringLiteral("Cos");
inline const QString kCurveX = QStringLiteral("X");
inline const QString kCurveX2 = QStringLiteral("X2");

// bunch_mode
inline const QString kBunchContinue = QStringLiteral("Continue");
inline const QString kBunchOneOff = QStringLiteral("One_Off");

// WheelConfigItem::axis, ZoomConfigItem::axis
inline const QString kAxisHorizontal = QStringLiteral("horizontal");
inline const QString kAxisVertical = QStringLiteral("vertical");

// StaringConfigItem::range_mode
inline const QString kRangeInfinite = QStringLiteral("Infinite");
inline const QString kRangeUser = QStringLiteral("Range_User");
inline const QString kRangeUserAllowOutside = QStringLiteral("Range_User_Allow_Outside");
inline const QString kRangePadded = QStringLiteral("Range_Have_Padding_To_Window");
inline const QString kRangeWindow = QStringLiteral("Range_Window");

// FireConfigItem::range_mode
inline const QString kFireRangeUnlimited = QStringLiteral("Fire_range_unlimited");
inline const QString kFireRangeLimited = QStringLiteral("Fire_range_dependent_swipehold");

// SpellConfigItem::trigger
inline const QString kTriggerImmediate = QStringLiteral("Spell_Trigger_Immedaite");
inline const QString kTriggerOnNext = QStringLiteral("Spell_Trigger_On_Next_Key");
inline const QString kTriggerOnPress = QStringLiteral("Spell_Trigger_On_Press_Key");
inline const QString kTriggerOnRelease = QStringLiteral("Spell_Trigger_On_Release_Key");

// SpellConfigItem::touch_location
inline const QString kLocationMouse = QStringLiteral("Spell_touch_location_mouse_dependence");
inline const QString kLocationMousePosition = QStringLiteral("Spell_touch_location_mouse_position_dependence");
inline const QString kLocationSwipehold = QStringLiteral("Spell_touch_location_swipehold_dependence");
inline const QString kLocationInnerSwipehold = QStringLiteral("Spell_touch_location_inner_swipehold_dependence");

// SpellConfigItem::mode
inline const QString kModeCurve = QStringLiteral("Spell_mode_curve");
inline const QString kModeIntelligent = QStringLiteral("Spell_mode_intelligent");

// KeymapSettings::mouse_mode
inline const QString kMouseNoTransparent = QStringLiteral("Mouse_No_Transparent");
inline const QString kMouseOtherTransparent = QStringLiteral("Mouse_OtherButton_Transparent");
inline const QString kMouseAllTransparent = QStringLiteral("Mouse_AllButton_Transparent");

// Sticks of a gamepad, as key names
inline const QString kLeftStick = QStringLiteral("Left_Stick");
inline const QString kRightStick = QStringLiteral("Right_Stick");

// The reserved name of the system keymap, for the guest's own apps.
inline const QString kSystemKeymap = QStringLiteral("system-9252A9CA-0C32-4FFD-8BF6-82653751D068");

}  // namespace keywords

// The wheel directions, which are keys of the device "mouse".
constexpr int kWheelUpCode = 548;    // away from the user
constexpr int kWheelDownCode = 549;  // towards the user

}  // namespace tavikeymapmanager

#endif  // KEYMAP_KEYWORDS_H_
