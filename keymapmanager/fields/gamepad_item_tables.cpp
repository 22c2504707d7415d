// Items whose keys operate the virtual gamepad, for guests that expect one.
#include "keymap/swipehold_config_item.h"
#include "keymap/virtual_joystick_bunch_button_config_item.h"
#include "keymap/virtual_joystick_button_config_item.h"
#include "keymap/virtual_stick_left_shift_button_config_item.h"
#include "keymapmanager/fields/item_fields.h"
#include "keymapmanager/fields/record_tables.h"

namespace tavikeymapmanager {

namespace {

namespace kw = keywords;

template <typename Item>
Field ButtonField(QString Item::*member) {
  return Required(MakeField(FieldKind::kPadButton, "map_text", member,
                            "the button's name without `Pad `: `A`, `LB`, `Start`, `Up`"));
}

RecordTable VirtualStickTable(const QString& type, const char* doc) {
  RecordTable table =
      ItemTable<SwipeholdConfigItem>(type, doc, QVector<Field>{OverlayPointField()} + SwipeholdFields());
  table.at_least_one = {DirectionKeyNames()};
  return table;
}

RecordTable ShiftButtonTable() {
  using R = VirtualStickLeftShiftButtonConfigItem;
  return ItemTable<R>(
      kw::kTypeVirtualLeftStickShiftButton, "A key that scales the virtual left stick while it is held.",
      {ChordField(), OverlayPointField(),
       Number("factor", &R::factor, {0, 10}, "factor on the stick's deflection; 0.5 walks at half speed")});
}

RecordTable ButtonTable() {
  using R = VirtualJoystickButtonConfigItem;
  return ItemTable<R>(kw::kTypeVirtualJoystickButton, "A key that acts as a button of the virtual gamepad.",
                      {ChordField(), OverlayPointField(), ButtonField(&R::map_text)});
}

RecordTable BunchButtonTable() {
  using R = VirtualJoystickBunchButtonConfigItem;
  return ItemTable<R>(
      kw::kTypeVirtualJoystickBunchButton,
      "Rapid presses of a button of the virtual gamepad. The key is taken and timed, but no press reaches the guest's "
      "gamepad.",
      {ChordField(), OverlayPointField(), ButtonField(&R::map_text),
       Flag("bunch_enabled", &R::bunch_enabled, "rapid presses; false: a plain button"),
       Word("bunch_mode", &R::bunch_mode, {kw::kBunchContinue, kw::kBunchOneOff},
            "`Continue`: while the key is held; `One_Off`: a fixed number of presses when it is released. If absent, "
            "`One_Off`"),
       Integer("bunch_frequency", &R::bunch_frequency, {1, 500}, "presses per second, for `Continue`"),
       Integer("bunch_count", &R::bunch_count, {1, 1000}, "number of presses, for `One_Off`")});
}

}  // namespace

QVector<RecordTable> GamepadItemTables() {
  return {VirtualStickTable(kw::kTypeVirtualLeftStick, "The virtual gamepad's left stick, moved by four keys."),
          VirtualStickTable(kw::kTypeVirtualRightStick, "The virtual gamepad's right stick, moved by four keys."),
          ShiftButtonTable(), ButtonTable(), BunchButtonTable()};
}

}  // namespace tavikeymapmanager
