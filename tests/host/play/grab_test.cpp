// When devices are grabbed, and when they are released.
#include <algorithm>

#include "tests/host/play/play_fixture.h"

namespace tavi {
namespace {

class Grab : public PlayFixture {};

// A reset, and then nothing that puts a finger down.
bool LiftsAllFingers(const Lines& lines) {
  const bool has_reset = std::find(lines.begin(), lines.end(), "0ms 1:SLOTRELEASEALL") != lines.end();
  return has_reset && std::none_of(lines.begin(), lines.end(), [](const std::string& line) {
           return line.find("PRESS") != std::string::npos || line.find("KBDPR") != std::string::npos;
         });
}

constexpr char kTap[] = "{type: Click, key: Space, point: [0.25, 0.75]}";
constexpr char kWalk[] = "{type: Swipehold, point: [0.2, 0.7], key_up: W, key_left: A, key_down: S, key_right: D}";

TEST_F(Grab, DevicesAreGrabbedWhileTheMappingIsOn) {
  Start(kTap);
  EXPECT_TRUE(keyboard_->is_grabbed);
  EXPECT_TRUE(mouse_->is_grabbed);
  session_->SetPaused(true);
  EXPECT_FALSE(keyboard_->is_grabbed);
  EXPECT_FALSE(mouse_->is_grabbed);
  session_->SetPaused(false);
  EXPECT_TRUE(keyboard_->is_grabbed);
}

// For other programs a key that is down at the grab would stay down as long as the grab lasts: Enter, which started the
// program.
TEST_F(Grab, AKeyboardIsNotGrabbedWhileAKeyIsDown) {
  keyboard_->down.insert(KEY_ENTER);
  Start(kTap);
  EXPECT_FALSE(keyboard_->is_grabbed);
  EXPECT_TRUE(mouse_->is_grabbed);
  EXPECT_EQ(State().substr(0, 38), "mapping waits for all keys to be up, k");
  Press(KEY_SPACE);
  EXPECT_EQ(Sent(), Lines{});  // other programs get it, so it belongs to them
  Release(KEY_ENTER);
  EXPECT_FALSE(keyboard_->is_grabbed);
  Release(KEY_SPACE);
  EXPECT_TRUE(keyboard_->is_grabbed);
  EXPECT_EQ(Sent(), Lines{});
  Press(KEY_SPACE);
  EXPECT_EQ(Sent(), (Lines{"0ms 1:SLOTPRESS:11:11:1:1:320:540"}));
  EXPECT_EQ(State().substr(0, 11), "mapping on,");
}

TEST_F(Grab, AKeyThatGoesDownInTheMomentOfTheGrabHasItGivenBack) {
  keyboard_->down_behind_a_look = {KEY_SPACE};
  Start(kTap);
  EXPECT_EQ(keyboard_->grabs, 1);
  EXPECT_FALSE(keyboard_->is_grabbed);
  Release(KEY_SPACE);
  EXPECT_TRUE(keyboard_->is_grabbed);
}

TEST_F(Grab, AMouseIsNotGrabbedWhileAButtonIsDown) {
  mouse_->down.insert(BTN_LEFT);
  Start(kTap);
  EXPECT_FALSE(mouse_->is_grabbed);
  Button(BTN_LEFT, false);
  EXPECT_TRUE(mouse_->is_grabbed);
  EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Grab, ADeviceThatAnotherProgramHasIsToldOnceAndTriedAgain) {
  keyboard_->refusal = "another program has grabbed it";
  session_ = std::make_unique<PlaySession>(&box_, &guest_, settings_);
  QObject::connect(session_.get(), &PlaySession::Told, [this](const QString& text) { told_ += text; });
  ASSERT_EQ(session_->Start(), QString());
  clock_->Advance(3000);
  const QString expected = "\"Board\" (/dev/input/event1) is not used: another program has grabbed it";
  EXPECT_EQ(told_.filter("is not used"), QStringList{expected});
  keyboard_->refusal.clear();
  clock_->Advance(600);
  EXPECT_TRUE(keyboard_->is_grabbed);
}

// ---- The two keys

TEST_F(Grab, ThePauseKeyGivesTheDevicesBackAndTakesThemAgain) {
  Start("{type: Click, key: F12, point: [0.5, 0.5]}, {type: Click, key: Space, point: [0.25, 0.75]}");
  Press(KEY_SPACE);
  Sent();
  Press(KEY_F12);
  EXPECT_FALSE(keyboard_->is_grabbed);
  EXPECT_TRUE(LiftsAllFingers(Sent()));
  EXPECT_EQ(guest_.lifts, 1);
  Release(KEY_F12);
  Release(KEY_SPACE);
  Click(KEY_SPACE);
  EXPECT_EQ(Sent(), Lines{});  // all programs get it now
  EXPECT_EQ(State().substr(0, 12), "mapping off,");

  Press(KEY_F12);
  EXPECT_FALSE(keyboard_->is_grabbed);  // the key itself is still down
  Release(KEY_F12);
  EXPECT_TRUE(keyboard_->is_grabbed);
  Sent();
  Press(KEY_SPACE);
  EXPECT_EQ(Sent(), (Lines{"0ms 1:SLOTPRESS:11:11:1:1:320:540"}));
}

TEST_F(Grab, ThePanicKeyLiftsEverythingAndGivesTheDevicesBack) {
  Start("{type: Click, key: Space, point: [0.25, 0.75]}, {type: Click, key: Backspace, point: [0.5, 0.5]}");
  Press(KEY_SPACE);
  Press(KEY_LEFTCTRL);
  Press(KEY_LEFTALT);
  Sent();
  Press(KEY_BACKSPACE);
  EXPECT_FALSE(keyboard_->is_grabbed);
  EXPECT_FALSE(mouse_->is_grabbed);
  EXPECT_EQ(State().substr(0, 12), "mapping off,");
  EXPECT_TRUE(LiftsAllFingers(Sent()));
}

TEST_F(Grab, ThePanicKeyIsTheKeymapsWithoutItsModifiers) {
  Start("{type: Click, key: Backspace, point: [0.25, 0.75]}");
  Press(KEY_BACKSPACE);
  EXPECT_EQ(Sent(), (Lines{"0ms 1:SLOTPRESS:11:11:1:1:320:540"}));
  EXPECT_TRUE(keyboard_->is_grabbed);
}

// Ctrl on one keyboard, the other key on another: to the player there is no difference.
TEST_F(Grab, ThePanicKeyMayBeOnTwoKeyboards) {
  Start(kTap);
  const auto second = box_.Add("/dev/input/event7", "Other board", DeviceKind::kKeyboard);
  Feed(second, {{EV_KEY, KEY_RIGHTCTRL, 1}});
  Feed(second, {{EV_KEY, KEY_LEFTALT, 1}});
  Press(KEY_BACKSPACE);
  EXPECT_FALSE(keyboard_->is_grabbed);
  EXPECT_FALSE(second->is_grabbed);
}

TEST_F(Grab, AKeymapThatUsesAReservedKeyIsTold) {
  Start(kTap);
  ASSERT_EQ(session_->LoadKeymap(Write("f12.yaml", "{type: Click, key: F12, point: [0.5, 0.5]}")), QString());
  ASSERT_EQ(told_.size(), 1);
  EXPECT_TRUE(told_[0].contains("tavi play keeps F12 for itself, so this item never gets it"))
      << told_[0].toStdString();
}

// ---- Plugging

TEST_F(Grab, UnpluggingWithWDownLiftsTheWalk) {
  Start(kWalk);
  Press(KEY_W);
  clock_->Advance(200);
  ASSERT_FALSE(Sent().empty());
  box_.Remove(kKeyboard);
  EXPECT_EQ(Sent().back().substr(0, 20), "0ms 1:SLOTRELEASE:2");
  EXPECT_TRUE(told_.contains("\"Board\" (/dev/input/event1) was disconnected"));
}

TEST_F(Grab, ADeviceThatIsPluggedInIsPlayedWith) {
  Start(kTap);
  const auto second = box_.Add("/dev/input/event7", "Other board", DeviceKind::kKeyboard);
  EXPECT_TRUE(second->is_grabbed);
  EXPECT_EQ(told_, QStringList{"keyboard \"Other board\" (/dev/input/event7)"});
  EXPECT_NE(State().find("2 keyboards, 1 mouse, no gamepad"), std::string::npos) << State();
  Feed(second, {{EV_KEY, KEY_SPACE, 1}});
  EXPECT_EQ(Sent(), (Lines{"0ms 1:SLOTPRESS:11:11:1:1:320:540"}));
}

TEST_F(Grab, ADeviceThatIsPluggedInDuringThePauseIsLeftAlone) {
  Start(kTap);
  session_->SetPaused(true);
  const auto second = box_.Add("/dev/input/event7", "Other board", DeviceKind::kKeyboard);
  EXPECT_FALSE(second->is_grabbed);
  Feed(second, {{EV_KEY, KEY_F12, 1}});
  Feed(second, {{EV_KEY, KEY_F12, 0}});
  EXPECT_TRUE(second->is_grabbed);
}

// udev sets the permissions a moment after the device appears.
TEST_F(Grab, ADeviceWithoutRightsIsToldOnceAndTakenWhenTheyCome) {
  Start(kTap);
  box_.locked.insert("/dev/input/event7");
  const auto second = box_.Add("/dev/input/event7", "Other board", DeviceKind::kKeyboard);
  box_.watcher();
  EXPECT_EQ(told_, QStringList{"/dev/input/event7 cannot be read: Permission denied"});
  box_.locked.clear();
  box_.watcher();
  EXPECT_TRUE(second->is_grabbed);
}

TEST_F(Grab, WhenItEndsEverythingIsLiftedAndGivenBack) {
  Start(kWalk);
  Press(KEY_W);
  clock_->Advance(200);
  Sent();
  session_->End();
  EXPECT_FALSE(keyboard_->is_grabbed);
  EXPECT_TRUE(LiftsAllFingers(Sent()));
  EXPECT_TRUE(guest_.is_closed);
}

TEST_F(Grab, WhereThereIsNothingToPlayWithThatIsTold) {
  settings_.devices = QStringList{"No such board"};
  session_ = std::make_unique<PlaySession>(&box_, &guest_, settings_);
  QObject::connect(session_.get(), &PlaySession::Told, [this](const QString& text) { told_ += text; });
  ASSERT_EQ(session_->Start(), QString());
  EXPECT_EQ(told_, QStringList{"no keyboard and no mouse to play with yet; --list shows the devices"});
}

// ---- Which devices

TEST(DeviceChoice, WhatIsTakenAndWhyNot) {
  DeviceTraits keyboard;
  keyboard.path = "/dev/input/event1";
  keyboard.name = "Board";
  keyboard.has_letters = true;
  DeviceTraits keypad = keyboard;
  keypad.has_letters = false;
  keypad.has_keypad = true;
  DeviceTraits mouse;
  mouse.name = "Rat";
  mouse.has_motion = mouse.has_mouse_buttons = true;
  DeviceTraits tablet;
  tablet.has_places = tablet.has_mouse_buttons = true;
  DeviceTraits pad;
  pad.has_gamepad_buttons = true;
  DeviceTraits own = keyboard;
  own.name = "tavi keyboard";
  own.is_virtual = true;
  DeviceTraits namesake = own;
  namesake.is_virtual = false;  // a keyboard only by its name
  const struct {
    const char* name;
    DeviceTraits traits;
    QStringList wanted;
    const char* refusal;
  } rows[] = {
      {"a keyboard", keyboard, {}, ""},
      {"a keypad", keypad, {}, ""},
      {"a mouse", mouse, {}, ""},
      {"by its name", keyboard, {"Board"}, ""},
      {"by its file", keyboard, {"/dev/input/event1"}, ""},
      {"one of two", keyboard, {"Rat", "Board"}, ""},
      {"another was asked for", keyboard, {"Rat"}, "not among those of --device"},
      {"a tablet", tablet, {}, "it reports positions instead of movement"},
      {"a power button", {}, {}, "neither a keyboard nor a mouse"},
      {"a gamepad", pad, {}, "gamepads are read through SDL"},
      {"a guest's keyboard", own, {}, "a guest's own device"},
      {"a guest's keyboard that is asked for", own, {"tavi keyboard"}, "a guest's own device"},
      {"a namesake", namesake, {}, ""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(WhyNotTaken(row.traits, row.wanted).toStdString(), row.refusal) << row.name;
  }
}

}  // namespace
}  // namespace tavi
