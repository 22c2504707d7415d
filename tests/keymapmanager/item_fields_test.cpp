// Every class and every field of the contract can be read: each gets a value of its own, which is then checked.
#include <cmath>

#include "tests/keymapmanager/keymap_text.h"

namespace tavikeymapmanager {
namespace {

void ExpectPoint(const ConfigItem& item, double x, double y) {
  EXPECT_EQ(x, item.rel_x);
  EXPECT_EQ(y, item.rel_y);
}

template <typename Item>
void ExpectDirections(const Item& item) {
  EXPECT_EQ("W", NameOf(item.key_up));
  EXPECT_EQ("D", NameOf(item.key_right));
  EXPECT_EQ("S", NameOf(item.key_down));
  EXPECT_EQ("A", NameOf(item.key_left));
}

TEST(ItemFields, Settings) {
  const LoadResult result = Read(
      "format: 1\n"
      "settings: {mouse_mode: Mouse_OtherButton_Transparent, escape_to_guest: true, wheel_transparent: true,\n"
      "  relative_interval_ms: 11, relative_factor: 1.5, keyboard_transparent: true, joystick_transparent: true}\n");
  EXPECT_EQ("", Said(result));
  const KeymapSettings& settings = *result.config->settings;
  EXPECT_EQ("Mouse_OtherButton_Transparent", settings.mouse_mode.toStdString());
  EXPECT_TRUE(settings.escape_to_guest);
  EXPECT_TRUE(settings.wheel_transparent);
  EXPECT_EQ(11, settings.relative_interval_ms);
  EXPECT_EQ(1.5, settings.relative_factor);
  EXPECT_TRUE(settings.keyboard_transparent);
  EXPECT_TRUE(settings.joystick_transparent);
}

TEST(ItemFields, WheelSettings) {
  const LoadResult result = Read(
      "format: 1\n"
      "wheel: {wheel_delta: -2.5, wheel_use_delta: 1, simulate_mode: 1, virtual_joystick: true,\n"
      "  zoom_first_interval_ms: 11, zoom_notch_ticks: 12, zoom_tick_ms: 13, zoom_spread: 14, zoom_release_ms: 15,\n"
      "  scroll_step: 0.16, zoom_step: 0.17, zoom_angle: 18.5, zoom_swap_fingers: true, wheel_zoom: true}\n");
  EXPECT_EQ("", Said(result));
  const WheelSettings& wheel = *result.config->wheel_settings;
  EXPECT_EQ(-2.5, wheel.wheel_delta);
  EXPECT_EQ(1, wheel.wheel_use_delta);
  EXPECT_EQ(1, wheel.simulate_mode);
  EXPECT_TRUE(wheel.virtual_joystick);
  EXPECT_EQ(11, wheel.zoom_first_interval_ms);
  EXPECT_EQ(12, wheel.zoom_notch_ticks);
  EXPECT_EQ(13, wheel.zoom_tick_ms);
  EXPECT_EQ(14, wheel.zoom_spread);
  EXPECT_EQ(15, wheel.zoom_release_ms);
  EXPECT_EQ(0.16, wheel.scroll_step);
  EXPECT_EQ(0.17, wheel.zoom_step);
  EXPECT_EQ(18.5, wheel.zoom_angle);
  EXPECT_TRUE(wheel.zoom_swap_fingers);
  EXPECT_TRUE(wheel.wheel_zoom);
}

TEST(ItemFields, Click) {
  const auto item = OneItem("type: Click, key: W, point: [0.25, 0.75]").As<ConfigItem>();
  EXPECT_EQ("Click", item.type.toStdString());
  EXPECT_EQ("W", NameOf(item.key));
  ExpectPoint(item, 0.25, 0.75);
}

TEST(ItemFields, BunchClick) {
  const auto item = OneItem(
                        "type: BunchClick, key: W, point: [0.25, 0.75], bunch_mode: One_Off, bunch_frequency: 12, "
                        "bunch_count: 13")
                        .As<BunchClickConfigItem>();
  EXPECT_EQ("BunchClick", item.type.toStdString());
  EXPECT_EQ("W", NameOf(item.key));
  ExpectPoint(item, 0.25, 0.75);
  EXPECT_EQ("One_Off", item.bunch_mode.toStdString());
  EXPECT_EQ(12, item.bunch_frequency);
  EXPECT_EQ(13, item.bunch_count);
}

TEST(ItemFields, Curve) {
  const auto item = OneItem(
                        "type: Curve, key: W, point: [0.25, 0.75], curve_points: [[0, 0], [0.1, -0.2], [1e-3, 1]], "
                        "curve_straight: true, curve_start: [-0.5, 0.5], curve_end: [0.25, -1], "
                        "curve_first_delay_ms: 14")
                        .As<CurveConfigItem>();
  EXPECT_EQ("Curve", item.type.toStdString());
  ExpectPoint(item, 0.25, 0.75);
  EXPECT_EQ("0,0;0.1,-0.2;0.001,1", item.curve_points.toStdString());
  EXPECT_TRUE(item.curve_straight);
  EXPECT_EQ(QPointF(-0.5, 0.5), item.curve_start);
  EXPECT_EQ(QPointF(0.25, -1), item.curve_end);
  EXPECT_EQ(14, item.curve_first_delay_ms);
}

TEST(ItemFields, NumbersTooSmallForADoubleAreZero) {
  const auto item = OneItem("type: Curve, key: W, point: [-1e-400, 0.75], curve_points: [[-1e-400, 0], [1, 1e-400]]")
                        .As<CurveConfigItem>();
  ExpectPoint(item, 0, 0.75);
  EXPECT_FALSE(std::signbit(item.rel_x));
  EXPECT_EQ("0,0;1,0", item.curve_points.toStdString());
}

TEST(ItemFields, Wheel) {
  const auto item = OneItem(
                        "type: Wheel, key: W, point: [0.25, 0.75], axis: vertical, direction: 2, speed: 12, "
                        "duration_ms: 13")
                        .As<WheelConfigItem>();
  EXPECT_EQ("Wheel", item.type.toStdString());
  ExpectPoint(item, 0.25, 0.75);
  EXPECT_EQ("vertical", item.axis.toStdString());
  EXPECT_EQ(2, item.direction);
  EXPECT_EQ(12, item.speed);
  EXPECT_EQ(13, item.duration_ms);
}

TEST(ItemFields, Zoom) {
  const auto item = OneItem(
                        "type: Zoom, key: W, point: [0.25, 0.75], axis: horizontal, direction: 2, speed: 12, "
                        "duration_ms: 13, start_distance: 0.14, swap_fingers: true")
                        .As<ZoomConfigItem>();
  EXPECT_EQ("Zoom", item.type.toStdString());
  ExpectPoint(item, 0.25, 0.75);
  EXPECT_EQ("horizontal", item.axis.toStdString());
  EXPECT_EQ(2, item.direction);
  EXPECT_EQ(12, item.speed);
  EXPECT_EQ(13, item.duration_ms);
  EXPECT_EQ(0.14, item.start_distance);
  EXPECT_TRUE(item.swap_fingers);
}

TEST(ItemFields, Tip) {
  const auto item = OneItem("type: Tip, key: W, point: [0.25, 0.75]").As<TipConfigItem>();
  EXPECT_EQ("Tip", item.type.toStdString());
  EXPECT_EQ("W", NameOf(item.key));
  ExpectPoint(item, 0.25, 0.75);
  EXPECT_FALSE(item.IsKeyMatch(KeyOf("W")));
}

const QByteArray kWalkFields =
    "key_up: W, key_right: D, key_down: S, key_left: A, press_mode: Click, variable_mode: Big_Variable, "
    "first_press_delay_ms: 11, first_press_steps: 12, first_press_step_ms: 13, spare_ms: 14, spare_steps: 15, "
    "press_gap_ms: 16, no_center_press: true, subsequent_mode: Click, subsequent_steps: 17, subsequent_step_ms: 18, "
    "radius: 0.19, hold_center_ms: 20, opposite_keys_mode: Just_Use_Last, curve_x: Sin, factor_x: 2.1, offset_x: 2.2, "
    "curve_y: X2, factor_y: 2.3, offset_y: 2.4, compensate: true, compensate_amplitude: 0.25, compensate_rounds: 26, "
    "compensate_steps: 27, compensate_interval_ms: 28";

void ExpectWalk(const SwipeholdConfigItem& item) {
  ExpectDirections(item);
  EXPECT_EQ("Click", item.press_mode.toStdString());
  EXPECT_EQ("Big_Variable", item.variable_mode.toStdString());
  EXPECT_EQ(11, item.first_press_delay_ms);
  EXPECT_EQ(12, item.first_press_steps);
  EXPECT_EQ(13, item.first_press_step_ms);
  EXPECT_EQ(14, item.spare_ms);
  EXPECT_EQ(15, item.spare_steps);
  EXPECT_EQ(16, item.press_gap_ms);
  EXPECT_TRUE(item.no_center_press);
  EXPECT_EQ("Click", item.subsequent_mode.toStdString());
  EXPECT_EQ(17, item.subsequent_steps);
  EXPECT_EQ(18, item.subsequent_step_ms);
  EXPECT_EQ(0.19, item.radius);
  EXPECT_EQ(20, item.hold_center_ms);
  EXPECT_EQ("Just_Use_Last", item.opposite_keys_mode.toStdString());
  EXPECT_EQ("Sin", item.curve_x.toStdString());
  EXPECT_EQ(2.1, item.factor_x);
  EXPECT_EQ(2.2, item.offset_x);
  EXPECT_EQ("X2", item.curve_y.toStdString());
  EXPECT_EQ(2.3, item.factor_y);
  EXPECT_EQ(2.4, item.offset_y);
  EXPECT_TRUE(item.compensate);
  EXPECT_EQ(0.25, item.compensate_amplitude);
  EXPECT_EQ(26, item.compensate_rounds);
  EXPECT_EQ(27, item.compensate_steps);
  EXPECT_EQ(28, item.compensate_interval_ms);
}

TEST(ItemFields, Swipehold) {
  const auto item = OneItem("type: Swipehold, point: [0.25, 0.75], " + kWalkFields).As<SwipeholdConfigItem>();
  EXPECT_EQ("Swipehold", item.type.toStdString());
  ExpectPoint(item, 0.25, 0.75);
  ExpectWalk(item);
}

TEST(ItemFields, VirtualSticks) {
  for (const QByteArray& type : {QByteArray("VirtualLeftStick"), QByteArray("VirtualRightStick")}) {
    const LoadResult result =
        Read("format: 1\nwheel: {virtual_joystick: true}\nitems: [{point: [0.25, 0.75], type: " + type + ", " +
             kWalkFields + "}]\n");
    EXPECT_EQ("", Said(result));
    ASSERT_EQ(1, result.config->items.size());
    const auto* item = dynamic_cast<SwipeholdConfigItem*>(result.config->items.first());
    ASSERT_NE(nullptr, item);
    EXPECT_EQ(type.toStdString(), item->type.toStdString());
    ExpectPoint(*item, 0.25, 0.75);
    ExpectWalk(*item);
  }
}

TEST(ItemFields, RightWalk) {
  const auto item = OneItem(
                        "type: RightWalk, key: Mouse Right, point: [0.25, 0.75], walk_radius: 0.11, "
                        "character_point: [0.12, 0.13], continue_factor: 1.4, press_hold_ms: 15, swipe_steps: 16, "
                        "swipe_step_ms: 17")
                        .As<MouseRightWalkConfigItem>();
  EXPECT_EQ("RightWalk", item.type.toStdString());
  EXPECT_EQ("Mouse Right", NameOf(item.key));
  ExpectPoint(item, 0.25, 0.75);
  EXPECT_EQ(0.11, item.walk_radius);
  EXPECT_EQ(0.12, item.character_rel_x);
  EXPECT_EQ(0.13, item.character_rel_y);
  EXPECT_EQ(1.4, item.continue_factor);
  EXPECT_EQ(15, item.press_hold_ms);
  EXPECT_EQ(16, item.swipe_steps);
  EXPECT_EQ(17, item.swipe_step_ms);
}

TEST(ItemFields, LeftStickWalk) {
  const auto item = OneItem(
                        "type: LeftStickWalk, key: Pad Left_Stick, point: [0.25, 0.75], walk_radius: 0.11, "
                        "start_jump: 0.12, press_hold_ms: 13, smooth_start: true, stop_delay_ms: 14, "
                        "stop_settle_ms: 15, delayed_stop: true")
                        .As<JoystickLeftWalkConfigItem>();
  EXPECT_EQ("LeftStickWalk", item.type.toStdString());
  ExpectPoint(item, 0.25, 0.75);
  EXPECT_EQ(0.11, item.walk_radius);
  EXPECT_EQ(0.12, item.start_jump);
  EXPECT_EQ(13, item.press_hold_ms);
  EXPECT_TRUE(item.smooth_start);
  EXPECT_EQ(14, item.stop_delay_ms);
  EXPECT_EQ(15, item.stop_settle_ms);
  EXPECT_TRUE(item.delayed_stop);
}

TEST(ItemFields, Staring) {
  const auto item = OneItem(
                        "type: Staring, key: W, point: [0.25, 0.75], range_size: [0.11, 1.2], sensitivity_x: 13, "
                        "sensitivity_y: 14, range_mode: Range_User_Allow_Outside, press_interval_ms: 15, "
                        "auto_reset_period_ms: 16, auto_reset: false, move_interval_ms: 17")
                        .As<StaringConfigItem>();
  EXPECT_EQ("Staring", item.type.toStdString());
  EXPECT_EQ("W", NameOf(item.key));
  ExpectPoint(item, 0.25, 0.75);
  EXPECT_EQ(QSizeF(0.11, 1.2), item.range_size);
  EXPECT_EQ(13, item.sensitivity_x);
  EXPECT_EQ(14, item.sensitivity_y);
  EXPECT_EQ("Range_User_Allow_Outside", item.range_mode.toStdString());
  EXPECT_EQ(15, item.press_interval_ms);
  EXPECT_EQ(16, item.auto_reset_period_ms);
  EXPECT_FALSE(item.auto_reset);
  EXPECT_EQ(17, item.move_interval_ms);
}

TEST(ItemFields, Fire) {
  const LoadResult result = ReadItems(
      "- {type: Staring, key: W, point: [0.5, 0.5]}\n"
      "- {type: Fire, key: Mouse Left, point: [0.25, 0.75], relative_mode: true, alt_point: [0.11, 0.12],\n"
      "   range_radius: 0.13, cancel_swipe_steps: 14, offset_enabled: true, offset_length: 0.15,\n"
      "   offset_threshold: 0.16, range_mode: Fire_range_unlimited, move_interval_ms: 17}\n");
  EXPECT_EQ("", Said(result));
  ASSERT_EQ(2, result.config->items.size());
  const auto* item = dynamic_cast<FireConfigItem*>(result.config->items[1]);
  ASSERT_NE(nullptr, item);
  EXPECT_EQ("Fire", item->type.toStdString());
  ExpectPoint(*item, 0.25, 0.75);
  EXPECT_TRUE(item->relative_mode);
  EXPECT_EQ(0.11, item->alt_rel_x);
  EXPECT_EQ(0.12, item->alt_rel_y);
  EXPECT_EQ(0.13, item->range_radius);
  EXPECT_EQ(14, item->cancel_swipe_steps);
  EXPECT_TRUE(item->offset_enabled);
  EXPECT_EQ(0.15, item->offset_length);
  EXPECT_EQ(0.16, item->offset_threshold);
  EXPECT_EQ("Fire_range_unlimited", item->range_mode.toStdString());
  EXPECT_EQ(17, item->move_interval_ms);
}

TEST(ItemFields, Observe) {
  const auto item = OneItem(
                        "type: Observe, key: W, point: [0.25, 0.75], sensitivity_x: 11, sensitivity_y: -12, "
                        "sensitivity: 1.3, move_interval_ms: 14")
                        .As<ObserveConfigItem>();
  EXPECT_EQ("Observe", item.type.toStdString());
  ExpectPoint(item, 0.25, 0.75);
  EXPECT_EQ(11, item.sensitivity_x);
  EXPECT_EQ(-12, item.sensitivity_y);
  EXPECT_EQ(1.3, item.sensitivity);
  EXPECT_EQ(14, item.move_interval_ms);
}

TEST(ItemFields, Eye) {
  const auto item =
      OneItem("type: Eye, point: [0.25, 0.75], key_up: W, key_right: D, key_down: S, key_left: A, speed: 11")
          .As<EyeConfigItem>();
  EXPECT_EQ("Eye", item.type.toStdString());
  ExpectPoint(item, 0.25, 0.75);
  ExpectDirections(item);
  EXPECT_EQ(11, item.speed);
}

TEST(ItemFields, Gravity) {
  const auto item =
      OneItem("type: Gravity, point: [0.25, 0.75], key_up: W, key_right: D, key_down: S, key_left: A, speed: 11")
          .As<GravityConfigItem>();
  EXPECT_EQ("Gravity", item.type.toStdString());
  ExpectPoint(item, 0.25, 0.75);
  ExpectDirections(item);
  EXPECT_EQ(11, item.speed);
}

TEST(ItemFields, RightStickEye) {
  const auto item = OneItem(
                        "type: RightStickEye, key: Pad Right_Stick, point: [0.25, 0.75], sensitivity: -11, "
                        "range_size: [0.12, 0.13], range_mode: Infinite, auto_reset: false")
                        .As<JoystickRightEyeConfigItem>();
  EXPECT_EQ("RightStickEye", item.type.toStdString());
  ExpectPoint(item, 0.25, 0.75);
  EXPECT_EQ(-11, item.sensitivity);
  EXPECT_EQ(QSizeF(0.12, 0.13), item.range_size);
  EXPECT_EQ("Infinite", item.range_mode.toStdString());
  EXPECT_FALSE(item.auto_reset);
}

TEST(ItemFields, Spell) {
  const auto item =
      OneItem(
          "type: Spell, key: W, point: [0.25, 0.75], circle_point: [0.11, 0.12], circle_size: 0.13, circle_percent: "
          "14.5, "
          "alt_point: [0.15, 0.16], press_hold_ms: 17, swipe_steps: 18, swipe_step_ms: 19, offset_enabled: true, "
          "offset_length: 0.2, offset_threshold: 0.21, curve_enabled: true, curve_steps: 22, curve_step_ms: 23, "
          "curve_step_length: 0.24, swipe_radius: 0.25, stop_walk_after_cast: true, inner_swipehold_exclusive: true, "
          "mouse_click_casts: true, trigger: Spell_Trigger_On_Next_Key, "
          "touch_location: Spell_touch_location_mouse_position_dependence, mode: Spell_mode_curve, "
          "character_point: [0.26, 0.27], ground_reference: 2.8, ground_scale: 2.9, "
          "view_matrix: [1, 2.5, -3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 1e-3]")
          .As<SpellConfigItem>();
  EXPECT_EQ("Spell", item.type.toStdString());
  EXPECT_EQ("W", NameOf(item.key));
  ExpectPoint(item, 0.25, 0.75);
  EXPECT_EQ(0.11, item.circle_rel_x);
  EXPECT_EQ(0.12, item.circle_rel_y);
  EXPECT_EQ(0.13, item.circle_size);
  EXPECT_EQ(14.5, item.circle_percent);
  EXPECT_EQ(0.15, item.alt_rel_x);
  EXPECT_EQ(0.16, item.alt_rel_y);
  EXPECT_EQ(17, item.press_hold_ms);
  EXPECT_EQ(18, item.swipe_steps);
  EXPECT_EQ(19, item.swipe_step_ms);
  EXPECT_TRUE(item.offset_enabled);
  EXPECT_EQ(0.2, item.offset_length);
  EXPECT_EQ(0.21, item.offset_threshold);
  EXPECT_TRUE(item.curve_enabled);
  EXPECT_EQ(22, item.curve_steps);
  EXPECT_EQ(23, item.curve_step_ms);
  EXPECT_EQ(0.24, item.curve_step_length);
  EXPECT_EQ(0.25, item.swipe_radius);
  EXPECT_TRUE(item.stop_walk_after_cast);
  EXPECT_TRUE(item.inner_swipehold_exclusive);
  EXPECT_TRUE(item.mouse_click_casts);
  EXPECT_EQ("Spell_Trigger_On_Next_Key", item.trigger.toStdString());
  EXPECT_EQ("Spell_touch_location_mouse_position_dependence", item.touch_location.toStdString());
  EXPECT_EQ("Spell_mode_curve", item.mode.toStdString());
  EXPECT_EQ(0.26, item.character_rel_x);
  EXPECT_EQ(0.27, item.character_rel_y);
  EXPECT_EQ(2.8, item.ground_reference);
  EXPECT_EQ(2.9, item.ground_scale);
  EXPECT_EQ("1,2.5,-3,4,5,6,7,8,9,10,11,12,13,14,15,0.001", item.view_matrix.toStdString());
}

TEST(ItemFields, SpellCancel) {
  const auto item =
      OneItem("type: SpellCancel, key: W, point: [0.25, 0.75], cancel_immediately: true, cancel_delay_ms: -1")
          .As<SpellCancelConfigItem>();
  EXPECT_EQ("SpellCancel", item.type.toStdString());
  ExpectPoint(item, 0.25, 0.75);
  EXPECT_TRUE(item.cancel_immediately);
  EXPECT_EQ(-1, item.cancel_delay_ms);
}

TEST(ItemFields, Macro) {
  const auto item = OneItem(
                        "type: Macro, key: W, point: [0.25, 0.75], press_commands: [release_all, 'sleep:20'], "
                        "release_commands: ['press_rel:(0.5,0.5);mouse']")
                        .As<MacroConfigItem>();
  EXPECT_EQ("Macro", item.type.toStdString());
  ExpectPoint(item, 0.25, 0.75);
  EXPECT_EQ(QStringList({QStringLiteral("release_all"), QStringLiteral("sleep:20")}), item.press_commands);
  EXPECT_EQ(QStringList(QStringLiteral("press_rel:(0.5,0.5);mouse")), item.release_commands);
}

TEST(ItemFields, OperationRecorder) {
  const auto item =
      OneItem(
          "type: OperationRecorder, key: W, point: [0.25, 0.75], press_commands: [sleep], release_commands: [sleep]")
          .As<OperationRecorderConfigItem>();
  EXPECT_EQ("OperationRecorder", item.type.toStdString());
  ExpectPoint(item, 0.25, 0.75);
  EXPECT_EQ(QStringList(QStringLiteral("sleep")), item.press_commands);
  EXPECT_EQ(QStringList(QStringLiteral("sleep")), item.release_commands);
}

TEST(ItemFields, VirtualGamepadButtons) {
  const LoadResult result = Read(
      "format: 1\nwheel: {virtual_joystick: true}\nitems:\n"
      "- {type: VirtualJoystickButton, key: A, point: [0.25, 0.75], map_text: LB}\n"
      "- {type: VirtualJoystickBunchButton, key: B, map_text: Up, bunch_enabled: true, bunch_mode: Continue,\n"
      "   bunch_frequency: 12, bunch_count: 13}\n"
      "- {type: VirtualLeftStickShiftButton, key: C, factor: 0.5}\n");
  EXPECT_EQ("", Said(result));
  ASSERT_EQ(3, result.config->items.size());
  const auto* button = dynamic_cast<VirtualJoystickButtonConfigItem*>(result.config->items[0]);
  ASSERT_NE(nullptr, button);
  EXPECT_EQ("VirtualJoystickButton", button->type.toStdString());
  ExpectPoint(*button, 0.25, 0.75);
  EXPECT_EQ("LB", button->map_text.toStdString());
  const auto* bunch = dynamic_cast<VirtualJoystickBunchButtonConfigItem*>(result.config->items[1]);
  ASSERT_NE(nullptr, bunch);
  EXPECT_EQ("VirtualJoystickBunchButton", bunch->type.toStdString());
  EXPECT_EQ("\u2191", bunch->map_text.toStdString());  // the hat's name on the wire
  EXPECT_TRUE(bunch->bunch_enabled);
  EXPECT_EQ("Continue", bunch->bunch_mode.toStdString());
  EXPECT_EQ(12, bunch->bunch_frequency);
  EXPECT_EQ(13, bunch->bunch_count);
  const auto* shift = dynamic_cast<VirtualStickLeftShiftButtonConfigItem*>(result.config->items[2]);
  ASSERT_NE(nullptr, shift);
  EXPECT_EQ("VirtualLeftStickShiftButton", shift->type.toStdString());
  EXPECT_EQ(0.5, shift->factor);
}

TEST(ItemFields, WhatIsNotWrittenHasItsDefault) {
  const auto walk = OneItem("type: Swipehold, point: [0.5, 0.5], key_up: W").As<SwipeholdConfigItem>();
  EXPECT_EQ("Move", walk.press_mode.toStdString());
  EXPECT_EQ(32, walk.first_press_delay_ms);
  EXPECT_EQ(6, walk.first_press_steps);
  EXPECT_EQ(0.1, walk.radius);
  EXPECT_EQ("Use_Both", walk.opposite_keys_mode.toStdString());
  const auto staring = OneItem("type: Staring, key: W, point: [0.5, 0.5]").As<StaringConfigItem>();
  EXPECT_EQ(100, staring.sensitivity_x);
  EXPECT_TRUE(staring.auto_reset);
  EXPECT_EQ("", staring.range_mode.toStdString());
  const auto bunch = OneItem("type: BunchClick, key: W, point: [0.5, 0.5]").As<BunchClickConfigItem>();
  EXPECT_EQ(10, bunch.bunch_frequency);
  EXPECT_EQ(1, bunch.bunch_count);
  EXPECT_EQ("", bunch.bunch_mode.toStdString());
}

TEST(ItemFields, ItemsKeepTheirOrderPlaceAndLabel) {
  const LoadResult result = ReadItems(
      "- {type: Click, key: A, point: [0.1, 0.5], label: First}\n"
      "-   {type: Click, key: B, point: [0.2, 0.5]}\n"
      "\n"
      "- type: Tip\n"
      "  label: The last\n"
      "  point: [0.3, 0.5]\n");
  EXPECT_EQ("", Said(result));
  ASSERT_EQ(3, result.config->items.size());
  ASSERT_EQ(3, result.item_sources.size());
  for (int i = 0; i < 3; ++i) EXPECT_DOUBLE_EQ(0.1 * (i + 1), result.config->items[i]->rel_x);
  EXPECT_EQ(3, result.item_sources[0].line);
  EXPECT_EQ(3, result.item_sources[0].column);
  EXPECT_EQ("First", result.item_sources[0].label.toStdString());
  EXPECT_EQ(4, result.item_sources[1].line);
  EXPECT_EQ(5, result.item_sources[1].column);
  EXPECT_EQ("", result.item_sources[1].label.toStdString());
  EXPECT_EQ(6, result.item_sources[2].line);
  EXPECT_EQ("The last", result.item_sources[2].label.toStdString());
}

}  // namespace
}  // namespace tavikeymapmanager
