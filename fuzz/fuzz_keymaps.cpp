#include "fuzz/fuzz_keymaps.h"

#include <limits>
#include <random>
#include <utility>
#include <vector>

#include <QDir>
#include <QFile>

#include "fuzz/bounded_macro.h"
#include "fuzz/check.h"
#include "fuzz/event_code.h"
#include "keymap/tavikeymapmanager.h"
#include "keymapmanager/key_names.h"
#include "keymapmanager/keymap_file.h"

namespace taviinputmanager::fuzz {

using namespace tavikeymapmanager;

namespace {

std::vector<QByteArray> ReadKeymapTexts() {
  QStringList paths = {TAVI_SOURCE_DIR "/tests/data/keymaps/good/every_gesture.yaml"};
  const QDir folder(TAVI_SOURCE_DIR "/examples/keymaps");
  for (const QFileInfo& info : folder.entryInfoList({"*.yaml"}, QDir::Files, QDir::Name)) paths.append(info.filePath());
  std::vector<QByteArray> texts;
  for (const QString& path : std::as_const(paths)) {
    QFile file(path);
    Check(file.open(QIODevice::ReadOnly), "the tree contains its keymaps: " + path);
    texts.push_back(file.readAll());
  }
  return texts;
}

// Fills records with any values that their fields can store.
class OddKeymap {
 public:
  explicit OddKeymap(unsigned seed) : random_(seed) {}

  KeymapConfig* Make() {
    auto* config = new KeymapConfig;
    if (!OneIn(16)) Settings(config->settings = new KeymapSettings);
    if (!OneIn(16)) Settings(config->wheel_settings = new WheelSettings);
    for (int i = 1 + Below(8); i > 0; --i) config->items.append(Item());
    if (Flag()) config->items.append(Walk());
    return config;
  }

 private:
  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
  bool OneIn(int n) { return Below(n) == 0; }
  bool Flag() { return OneIn(2); }

  // Mostly values that look like a fraction of the display.
  double Number() {
    constexpr double kInfinite = std::numeric_limits<double>::infinity();
    constexpr double kOdd[] = {0,    1,    -1,        2,         -0.5, 1e-9,
                               1e9,  -1e9, 1e308,     -1e308,    -0.0, std::numeric_limits<double>::quiet_NaN(),
                               1e18, 100,  kInfinite, -kInfinite};
    return OneIn(4) ? kOdd[Below(std::size(kOdd))] : Below(1000) / 1000.0;
  }
  int Integer() {
    constexpr int kOdd[] = {
        0, 1, 2, -1, 100, 1000, 65536, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};
    return OneIn(3) ? kOdd[Below(std::size(kOdd))] : Below(150);
  }
  int Count() { return OneIn(8) ? std::numeric_limits<int>::min() : Below(8) - 1; }
  int Ms() { return OneIn(8) ? std::numeric_limits<int>::min() : Below(40) - 2; }
  QString Word(const QStringList& words) { return OneIn(12) ? QString() : words[Below(words.size())]; }

  ConfigKey Key() {
    static const QStringList names = {"W",        "A",         "S",     "D",          "F",           "Space",
                                      "Q",        "E",         "Grave", "Mouse Left", "Mouse Right", "Mouse Middle",
                                      "Wheel Up", "Wheel Down"};
    if (OneIn(16)) return {};
    if (OneIn(6)) return JoystickKey(kPadNames[Below(std::size(kPadNames))]);
    return KeyFromName(names[Below(names.size())]).value_or(ConfigKey());
  }

  void Settings(KeymapSettings* settings) {
    settings->mouse_mode = Word({keywords::kMouseNoTransparent, keywords::kMouseNoTransparent,
                                 keywords::kMouseOtherTransparent, keywords::kMouseAllTransparent});
    settings->escape_to_guest = Flag();
    settings->wheel_transparent = OneIn(4);
    settings->relative_interval_ms = Ms();
    settings->relative_factor = Number();
    settings->keyboard_transparent = Flag();
    settings->joystick_transparent = Flag();
  }

  void Settings(WheelSettings* settings) {
    settings->wheel_delta = Number();
    settings->wheel_use_delta = Below(3) - 1;
    settings->simulate_mode = Below(3);
    settings->virtual_joystick = Flag();
    settings->zoom_first_interval_ms = Ms();
    settings->zoom_notch_ticks = Count();
    settings->zoom_tick_ms = Ms();
    settings->zoom_spread = Integer();
    settings->zoom_release_ms = Ms();
    settings->scroll_step = Number();
    settings->zoom_step = Number();
    settings->zoom_angle = Number();
    settings->zoom_swap_fingers = Flag();
    settings->wheel_zoom = Flag();
  }

  template <typename Record>
  ConfigItem* Filled(const QString& type) {
    auto* item = new Record;
    item->type = type;
    item->key = Key();
    item->rel_x = Number();
    item->rel_y = Number();
    Fill(item);
    return item;
  }

  ConfigItem* Item() {
    using namespace keywords;
    switch (Below(26)) {
      case 0: return Filled<ConfigItem>(kTypeClick);
      case 1: return Filled<ComposableConfigItem>(kTypeClick);
      case 2: return Filled<BunchClickConfigItem>(kTypeBunchClick);
      case 3: return Filled<CurveConfigItem>(kTypeCurve);
      case 4: return Filled<EyeConfigItem>(kTypeEye);
      case 5: return Filled<FireConfigItem>(kTypeFire);
      case 6: return Filled<GravityConfigItem>(kTypeGravity);
      case 7: return Filled<JoystickLeftWalkConfigItem>(kTypeLeftStickWalk);
      case 8: return Filled<JoystickRightEyeConfigItem>(kTypeRightStickEye);
      case 9: return Filled<MacroConfigItem>(kTypeMacro);
      case 10: return Filled<MouseRightWalkConfigItem>(kTypeRightWalk);
      case 11: return Filled<ObserveConfigItem>(kTypeObserve);
      case 12: return Filled<SpellCancelConfigItem>(kTypeSpellCancel);
      case 13: return Filled<SpellConfigItem>(kTypeSpell);
      case 14: return Filled<StaringConfigItem>(kTypeStaring);
      case 15: return Filled<SwipeholdConfigItem>(kTypeSwipehold);
      case 16: return Filled<SwipeholdConfigItem>(Flag() ? kTypeVirtualLeftStick : kTypeVirtualRightStick);
      case 17: return Filled<VirtualJoystickBunchButtonConfigItem>(kTypeVirtualJoystickBunchButton);
      case 18: return Filled<VirtualJoystickButtonConfigItem>(kTypeVirtualJoystickButton);
      case 19: return Filled<VirtualStickLeftShiftButtonConfigItem>(kTypeVirtualLeftStickShiftButton);
      case 20: return Filled<WheelConfigItem>(kTypeWheel);
      case 21: return Filled<ZoomConfigItem>(kTypeZoom);
      default: return Filled<SpellConfigItem>(kTypeSpell);  // they have the most code
    }
  }

  // A valid walk that other items can refer to.
  ConfigItem* Walk() {
    auto* walk = new SwipeholdConfigItem;
    walk->type = keywords::kTypeSwipehold;
    walk->rel_x = 0.2;
    walk->rel_y = 0.7;
    walk->key_up = KeyFromName("W").value_or(ConfigKey());
    walk->key_left = KeyFromName("A").value_or(ConfigKey());
    walk->key_down = KeyFromName("S").value_or(ConfigKey());
    walk->key_right = KeyFromName("D").value_or(ConfigKey());
    return walk;
  }

  void Fill(ConfigItem* /*item*/) {}
  void Fill(ComposableConfigItem* item) {
    if (OneIn(4)) item->first_key = Key();
  }
  template <typename Record>
  void FillDirections(Record* item) {
    item->key_up = Key();
    item->key_right = Key();
    item->key_down = Key();
    item->key_left = Key();
  }
  template <typename Record>
  void FillBunch(Record* item) {
    item->bunch_mode = Word({keywords::kBunchContinue, keywords::kBunchOneOff});
    item->bunch_frequency = Integer();
    item->bunch_count = Count();
  }
  void Fill(BunchClickConfigItem* item) { FillBunch(item); }
  void Fill(CurveConfigItem* item) {
    item->curve_start = {Number(), Number()};
    item->curve_end = {Number(), Number()};
    item->curve_points = Word({"0,0;0.1,0.1;0.2,0.3", "0.5,0.5", ";;", "nan,inf;1e308,1", "1,2,3;4"});
    item->curve_straight = Flag();
    item->curve_first_delay_ms = Ms();
  }
  void Fill(EyeConfigItem* item) {
    FillDirections(item);
    item->speed = Integer();
  }
  void Fill(FireConfigItem* item) {
    item->relative_mode = Flag();
    item->alt_rel_x = Number();
    item->alt_rel_y = Number();
    item->range_radius = Number();
    item->cancel_swipe_steps = Count();
    item->offset_enabled = Flag();
    item->offset_length = Number();
    item->offset_threshold = Number();
    item->range_mode = Word({keywords::kFireRangeLimited, keywords::kFireRangeUnlimited});
    item->move_interval_ms = Ms();
  }
  void Fill(GravityConfigItem* item) {
    FillDirections(item);
    item->speed = Integer();
  }
  void Fill(JoystickLeftWalkConfigItem* item) {
    item->key = JoystickKey(keywords::kLeftStick);
    item->walk_radius = Number();
    item->start_jump = Number();
    item->press_hold_ms = Ms();
    item->smooth_start = Flag();
    item->stop_delay_ms = Ms();
    item->stop_settle_ms = Ms();
    item->delayed_stop = Flag();
  }
  QString Range() {
    return Word({keywords::kRangeInfinite, keywords::kRangeUser, keywords::kRangeUserAllowOutside,
                 keywords::kRangePadded, keywords::kRangeWindow});
  }
  void Fill(JoystickRightEyeConfigItem* item) {
    item->key = JoystickKey(keywords::kRightStick);
    item->sensitivity = Integer();
    item->range_size = {Number(), Number()};
    item->range_mode = Range();
    item->auto_reset = Flag();
  }
  QStringList Macro() {
    static const QStringList lists = {
        "press_rel:(0.4,0.4)\nsleep:9\ncurve_rel:(0.1,0.1);(0.2,0.2)\nclick_rel:mouse",
        "release_all\nkeyboard_switch:33\nmouse_switch:1\nenter_staring",
        "start_loop:until_release\nswitch_rel:(0.8,0.8);(0.9,0.8)\nstop_loop\nexit_staring",
        "vmouse_move:(0.5,0.7)\nvmouse_press:1\nsleep:20\nvmouse_move:(0.6,0.7)\nvmouse_release:1",
        "joystick_switch:A\nhold_switch\nswipehold_radius_increased_switch:nan\nmouse_wheelup:1",
        "text_inject:a\nvmouse_wheelup:3\nscreenshot_rel:x\ncurve_last_point_sleep_time:until_release_cmd",
        "keyboard_press:17\nsleep\nkeyboard_release:17\nmouse_press:2\nmouse_release:2\nmouselocked_switch",
        ""};
    return BoundedMacro(lists[Below(lists.size())]);
  }
  void Fill(MacroConfigItem* item) {
    item->press_commands = Macro();
    item->release_commands = Macro();
  }
  void Fill(MouseRightWalkConfigItem* item) {
    item->character_rel_x = Number();
    item->character_rel_y = Number();
    item->continue_factor = OneIn(4) ? -Below(5) : Below(5);  // used as a duration
    item->press_hold_ms = Ms();
    item->swipe_steps = Count();
    item->swipe_step_ms = Ms();
    item->walk_radius = Number();
  }
  void Fill(ObserveConfigItem* item) {
    item->sensitivity_x = Integer();
    item->sensitivity_y = Integer();
    item->sensitivity = Number();
    item->move_interval_ms = Ms();
  }
  void Fill(SpellCancelConfigItem* item) {
    item->cancel_immediately = Flag();
    item->cancel_delay_ms = Ms();
  }
  void Fill(SpellConfigItem* item) {
    using namespace keywords;
    for (double* number : {&item->circle_rel_x, &item->circle_rel_y, &item->circle_size, &item->circle_percent,
                           &item->alt_rel_x, &item->alt_rel_y, &item->offset_length, &item->offset_threshold,
                           &item->curve_step_length, &item->swipe_radius, &item->character_rel_x,
                           &item->character_rel_y, &item->ground_reference, &item->ground_scale}) {
      *number = Number();
    }
    for (bool* flag : {&item->offset_enabled, &item->curve_enabled, &item->stop_walk_after_cast,
                       &item->inner_swipehold_exclusive, &item->mouse_click_casts}) {
      *flag = Flag();
    }
    for (int* ms : {&item->press_hold_ms, &item->swipe_step_ms, &item->curve_step_ms}) *ms = Ms();
    for (int* count : {&item->swipe_steps, &item->curve_steps}) *count = Count();
    item->trigger = Word({kTriggerImmediate, kTriggerOnNext, kTriggerOnPress, kTriggerOnRelease});
    item->touch_location = Word({kLocationMouse, kLocationMousePosition, kLocationSwipehold, kLocationInnerSwipehold});
    item->mode = Word({kModeCurve, kModeIntelligent});
    item->view_matrix = Word({"1,0,0,0,0,1,0,0,0,0,1,0,0,0,0,1", "0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0",
                              "1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,1e300", "nan", ",,,"});
    if (Flag()) Fill(&item->inner_swipehold);
  }
  void Fill(StaringConfigItem* item) {
    item->range_size = {Number(), Number()};
    item->sensitivity_x = Integer();
    item->sensitivity_y = Integer();
    item->range_mode = Range();
    item->press_interval_ms = Ms();
    item->auto_reset_period_ms = Ms();
    item->auto_reset = Flag();
    item->move_interval_ms = Ms();
  }
  void Fill(SwipeholdConfigItem* item) {
    using namespace keywords;
    FillDirections(item);
    item->press_mode = Word({kPressClick, kPressMove, kPressMove, kPressTransparent});
    item->variable_mode = Word({kVariableConstant, kVariableSmall, kVariableBig});
    item->subsequent_mode = Word({kSubsequentClick, kSubsequentMove});
    item->opposite_keys_mode = Word({kOppositeJustUseLast, kOppositeUseBoth});
    for (QString* curve : {&item->curve_x, &item->curve_y}) {
      *curve = Word({kCurveDefault, kCurveSin, kCurveCos, kCurveX, kCurveX2});
    }
    for (int* ms : {&item->first_press_delay_ms, &item->first_press_step_ms, &item->press_gap_ms,
                    &item->subsequent_step_ms, &item->hold_center_ms, &item->compensate_interval_ms}) {
      *ms = Ms();
    }
    for (int* count :
         {&item->first_press_steps, &item->subsequent_steps, &item->compensate_rounds, &item->compensate_steps}) {
      *count = Count();
    }
    for (double* number : {&item->radius, &item->factor_x, &item->offset_x, &item->factor_y, &item->offset_y,
                           &item->compensate_amplitude}) {
      *number = Number();
    }
    item->no_center_press = Flag();
    item->compensate = Flag();
  }
  QString PadName() { return QString::fromUtf8(kPadNames[Below(std::size(kPadNames))]); }
  void Fill(VirtualJoystickBunchButtonConfigItem* item) {
    item->map_text = PadName();
    item->bunch_enabled = Flag();
    FillBunch(item);
  }
  void Fill(VirtualJoystickButtonConfigItem* item) { item->map_text = PadName(); }
  void Fill(VirtualStickLeftShiftButtonConfigItem* item) { item->factor = Number(); }
  QString Axis() { return Word({keywords::kAxisHorizontal, keywords::kAxisVertical}); }
  void Fill(WheelConfigItem* item) {
    item->direction = Below(4);
    item->speed = Integer();
    item->duration_ms = Ms();
    item->axis = Axis();
  }
  void Fill(ZoomConfigItem* item) {
    item->direction = Below(4);
    item->speed = Integer();
    item->duration_ms = Ms();
    item->axis = Axis();
    item->start_distance = Number();
    item->swap_fingers = Flag();
  }

  std::mt19937 random_;
};

}  // namespace

KeymapConfig* MakeKeymap(int number) {
  static const std::vector<QByteArray> texts = ReadKeymapTexts();
  return ReadKeymapText(texts[static_cast<unsigned>(number) % texts.size()], "fuzz.yaml").config.release();
}

KeymapConfig* MakeOddKeymap(unsigned seed) { return OddKeymap(seed).Make(); }

}  // namespace taviinputmanager::fuzz
