// The item classes of the contract, and the keys that trigger each.
#ifndef KEYMAP_ITEM_CLASSES_H_
#define KEYMAP_ITEM_CLASSES_H_

#include <typeinfo>

#include <QVarLengthArray>

#include "keymap/bunch_click_config_item.h"
#include "keymap/composable_config_item.h"
#include "keymap/config_item.h"
#include "keymap/curve_config_item.h"
#include "keymap/eye_config_item.h"
#include "keymap/fire_config_item.h"
#include "keymap/gravity_config_item.h"
#include "keymap/joystick_left_walk_config_item.h"
#include "keymap/joystick_right_eye_config_item.h"
#include "keymap/macro_config_item.h"
#include "keymap/mouse_right_walk_config_item.h"
#include "keymap/observe_config_item.h"
#include "keymap/operation_recorder_config_item.h"
#include "keymap/spell_cancel_config_item.h"
#include "keymap/spell_config_item.h"
#include "keymap/staring_config_item.h"
#include "keymap/swipehold_config_item.h"
#include "keymap/tip_config_item.h"
#include "keymap/virtual_joystick_bunch_button_config_item.h"
#include "keymap/virtual_joystick_button_config_item.h"
#include "keymap/virtual_stick_left_shift_button_config_item.h"
#include "keymap/wheel_config_item.h"
#include "keymap/zoom_config_item.h"

namespace tavikeymapmanager {

template <typename... Classes>
bool IsExactlyOneOf(const ConfigItem& item) {
  const std::type_info& type = typeid(item);
  return ((type == typeid(Classes)) || ...);
}

// Whether `item` is exactly of a class of the contract and not of a derived one, so that its matching is known.
inline bool IsContractClass(const ConfigItem& item) {
  return IsExactlyOneOf<ConfigItem, ComposableConfigItem, BunchClickConfigItem, CurveConfigItem, EyeConfigItem,
                        FireConfigItem, GravityConfigItem, JoystickLeftWalkConfigItem, JoystickRightEyeConfigItem,
                        MacroConfigItem, MouseRightWalkConfigItem, ObserveConfigItem, OperationRecorderConfigItem,
                        SpellCancelConfigItem, SpellConfigItem, StaringConfigItem, SwipeholdConfigItem, TipConfigItem,
                        VirtualJoystickBunchButtonConfigItem, VirtualJoystickButtonConfigItem,
                        VirtualStickLeftShiftButtonConfigItem, WheelConfigItem, ZoomConfigItem>(item);
}

using ItemKeys = QVarLengthArray<const ConfigKey*, 4>;

template <typename Item>
ItemKeys FourKeysOf(const ConfigItem& item) {
  const auto& four = static_cast<const Item&>(item);
  return {&four.key_up, &four.key_right, &four.key_down, &four.key_left};
}

// The keys that trigger an item of a contract class other than TipConfigItem. Valid for as long as the item.
inline ItemKeys KeysOf(const ConfigItem& item) {
  if (IsExactlyOneOf<SwipeholdConfigItem>(item)) return FourKeysOf<SwipeholdConfigItem>(item);
  if (IsExactlyOneOf<EyeConfigItem>(item)) return FourKeysOf<EyeConfigItem>(item);
  if (IsExactlyOneOf<GravityConfigItem>(item)) return FourKeysOf<GravityConfigItem>(item);
  return {&item.key};
}

}  // namespace tavikeymapmanager

#endif  // KEYMAP_ITEM_CLASSES_H_
