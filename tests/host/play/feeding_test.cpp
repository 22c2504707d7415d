// Converts events of keyboards and mice to the lines that a guest gets.
#include "tests/host/play/play_fixture.h"

namespace tavi {
namespace {

class Feeding : public PlayFixture {};

// The guest is 1280 x 720: 0.25 of 1280 is 320, 0.75 of 720 is 540.
constexpr char kTap[] = "{type: Click, key: Space, point: [0.25, 0.75]}";

TEST_F(Feeding, AKeyIsATap) {
  Start(kTap);
  Press(KEY_SPACE);
  EXPECT_EQ(Sent(), (Lines{"0ms 1:SLOTPRESS:11:11:1:1:320:540"}));
  clock_->Advance(40);
  Release(KEY_SPACE);
  EXPECT_EQ(Sent(), (Lines{"40ms 1:SLOTRELEASE:11"}));
}

// Linux's code 97 is 285 in keymaps.
TEST_F(Feeding, AKeyWithAnotherCodeUnderWindowsIsFoundByItsName) {
  Start("{type: Click, key: Right Ctrl, point: [0.25, 0.75]}");
  Press(KEY_RIGHTCTRL);
  EXPECT_EQ(Sent(), (Lines{"0ms 1:SLOTPRESS:11:11:1:1:320:540"}));
}

TEST_F(Feeding, WhatTheKernelRepeatsIsNothing) {
  Start(kTap, "settings: {keyboard_transparent: true}");
  Press(KEY_SPACE);
  Press(KEY_X);
  Sent();
  Feed(keyboard_, {{EV_KEY, KEY_SPACE, 2}});
  Feed(keyboard_, {{EV_KEY, KEY_X, 2}});
  EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Feeding, AChordIsTheTwoKeysInTheirOrder) {
  Start("{type: Click, key: Left Ctrl + E, point: [0.5, 0.5]}, {type: Click, key: E, point: [0.25, 0.75]}");
  Press(KEY_LEFTCTRL);
  Press(KEY_E);
  EXPECT_EQ(Sent(), (Lines{"0ms 1:SLOTPRESS:11:11:1:1:640:360"}));
  Release(KEY_E);
  Release(KEY_LEFTCTRL);
  EXPECT_EQ(Sent(), (Lines{"0ms 1:SLOTRELEASE:11"}));
  Press(KEY_E);
  EXPECT_EQ(Sent(), (Lines{"0ms 1:SLOTPRESS:11:11:1:1:320:540"}));
}

TEST_F(Feeding, AKeyThatIsDownOnTwoKeyboardsIsUpWhenBothAre) {
  Start(kTap);
  const auto second = box_.Add("/dev/input/event7", "Other board", DeviceKind::kKeyboard);
  Press(KEY_SPACE);
  Feed(second, {{EV_KEY, KEY_SPACE, 1}});
  EXPECT_EQ(Sent(), (Lines{"0ms 1:SLOTPRESS:11:11:1:1:320:540"}));
  Release(KEY_SPACE);
  EXPECT_EQ(Sent(), Lines{});
  Feed(second, {{EV_KEY, KEY_SPACE, 0}});
  EXPECT_EQ(Sent(), (Lines{"0ms 1:SLOTRELEASE:11"}));
}

TEST_F(Feeding, AKeyThatNoKeymapCanNameIsNothing) {
  Start(kTap, "settings: {keyboard_transparent: true}");
  Click(KEY_FN);  // 464, which has no Windows scan code
  EXPECT_EQ(Sent(), Lines{});
}

// ---- The mouse

TEST_F(Feeding, ThePointerBeginsInTheMiddleAndGoesAsFarAsTheMouse) {
  Start("");
  Button(BTN_LEFT, true);
  EXPECT_EQ(Sent(), (Lines{"0ms 1:SLOTPRESS:1:1:1:1:640:360"}));
  Move(100, -60);
  EXPECT_EQ(Sent(), (Lines{"5ms 1:SLOTPRESS:1:1:1:1:740:300"}));
  Button(BTN_LEFT, false);
  EXPECT_EQ(Sent(), (Lines{"0ms 1:SLOTRELEASE:1"}));
}

TEST_F(Feeding, ThePointerIsFasterOrSlowerAsAskedFor) {
  settings_.speed = 0.5;
  Start("");
  Move(100, -60);
  Button(BTN_LEFT, true);
  EXPECT_EQ(Sent(), (Lines{"5ms 1:SLOTPRESS:1:1:1:1:690:330"}));
}

// Three times a third of a pixel is one: fractions of a pixel are not lost.
TEST_F(Feeding, PartsOfAPixelAddUp) {
  settings_.speed = 0.25;
  Start("");
  for (int i = 0; i < 4; ++i) Move(1, 0);
  Button(BTN_LEFT, true);
  EXPECT_EQ(Sent().back(), "20ms 1:SLOTPRESS:1:1:1:1:641:360");
}

TEST_F(Feeding, ThePointerStaysOnTheDisplay) {
  Start("");
  Move(5000, 5000);
  Button(BTN_LEFT, true);
  EXPECT_EQ(Sent().back(), "5ms 1:SLOTPRESS:1:1:1:1:1279:719");
  Move(-9, -9);  // from the edge, not from beyond it
  EXPECT_EQ(Sent().back(), "5ms 1:SLOTPRESS:1:1:1:1:1271:711");
}

TEST_F(Feeding, AButtonIsWhereTheMovementOfItsFrameWent) {
  Start("");
  Feed(mouse_, {{EV_KEY, BTN_LEFT, 1}, {EV_REL, REL_X, 10}, {EV_REL, REL_Y, 0}});
  EXPECT_EQ(Sent().back(), "0ms 1:SLOTPRESS:1:1:1:1:650:360");
}

TEST_F(Feeding, EachButtonHasItsName) {
  const struct {
    int code;
    const char* name;
  } rows[] = {
      {BTN_RIGHT, "Mouse Right"},
      {BTN_MIDDLE, "Mouse Middle"},
      {BTN_SIDE, "Mouse Side 1"},
      {BTN_EXTRA, "Mouse Side 2"},
  };
  Start("");
  for (const auto& row : rows) {
    const QByteArray item = QByteArray("{type: Click, key: ") + row.name + ", point: [0.25, 0.75]}";
    ASSERT_EQ(session_->LoadKeymap(Write("buttons.yaml", item.constData())), QString()) << row.name;
    Sent();
    Button(row.code, true);
    EXPECT_EQ(Sent(), (Lines{"0ms 1:SLOTPRESS:11:11:1:1:320:540"})) << row.name;
    Button(row.code, false);
  }
}

constexpr char kWheelTap[] = "{type: Click, key: Wheel Up, point: [0.25, 0.75]}";
const Lines kWheelTapLines{"0ms 1:SLOTPRESS:11:11:1:1:320:540", "50ms 1:SLOTRELEASE:11"};

TEST_F(Feeding, ANotchOfTheWheelIsATap) {
  Start(kWheelTap);
  Feed(mouse_, {{EV_REL, REL_WHEEL, 1}});
  EXPECT_EQ(Sent(), kWheelTapLines);
}

// A high-resolution wheel also reports the notch, in the frame that completes it.
TEST_F(Feeding, PartsOfANotchAddUp) {
  Start(kWheelTap);
  Feed(mouse_, {{EV_REL, REL_WHEEL_HI_RES, 60}});
  EXPECT_EQ(Sent(), Lines{});
  Feed(mouse_, {{EV_REL, REL_WHEEL, 1}, {EV_REL, REL_WHEEL_HI_RES, 60}});
  EXPECT_EQ(Sent(), kWheelTapLines);
}

TEST_F(Feeding, PartsOfANotchThatIsTurnedBackCountForNothing) {
  Start(kWheelTap);
  Feed(mouse_, {{EV_REL, REL_WHEEL_HI_RES, 90}});
  Feed(mouse_, {{EV_REL, REL_WHEEL_HI_RES, -30}});
  Feed(mouse_, {{EV_REL, REL_WHEEL_HI_RES, 30}});  // 90 + 30 would be a notch
  EXPECT_EQ(Sent(), Lines{});
  Feed(mouse_, {{EV_REL, REL_WHEEL_HI_RES, 90}});
  EXPECT_EQ(Sent(), kWheelTapLines);
}

TEST_F(Feeding, AWheelThatGoesSidewaysIsNothing) {
  Start(kWheelTap);
  Feed(mouse_, {{EV_REL, REL_HWHEEL, 1}, {EV_REL, REL_HWHEEL_HI_RES, 120}});
  EXPECT_EQ(Sent(), Lines{});
}

// ---- View control

constexpr char kView[] =
    "{type: Staring, key: Grave, point: [0.5, 0.5], press_interval_ms: 20, move_interval_ms: 8,"
    " auto_reset_period_ms: 0}";

// The first counts put the finger down; from then on, with sensitivities of 100, a count moves it by a pixel.
TEST_F(Feeding, InViewControlTheCountsTurnTheViewAndThePointerStays) {
  settings_.speed = 3;  // is for the pointer, not for the view
  Start(kView);
  Click(KEY_GRAVE);
  EXPECT_NE(State().find("the mouse turns the view"), std::string::npos) << State();
  Sent();
  clock_->Advance(30);
  Move(7, -4);
  clock_->Advance(30);
  Move(5, 2);
  const Lines turned = Sent();
  EXPECT_EQ(turned, (Lines{"35ms 1:SLOTPRESS:1:1:1:1:640:360", "70ms 1:SLOTPRESS:1:1:1:1:645:362"}));
  Click(KEY_GRAVE);
  EXPECT_EQ(State().find("the mouse turns the view"), std::string::npos) << State();
  Sent();
  Button(BTN_LEFT, true);
  EXPECT_EQ(Sent().back(), "0ms 1:SLOTPRESS:1:1:1:1:640:360");
}

// ---- Other sizes and turns

TEST_F(Feeding, PlacesAreThoseOfTheGuestsSize) {
  settings_.size = QSize(1920, 1080);
  Start(kTap);
  Press(KEY_SPACE);
  EXPECT_EQ(Sent(), (Lines{"0ms 1:SLOTPRESS:11:11:1:1:480:810"}));
  Release(KEY_SPACE);
  EXPECT_EQ(session_->SetSize(QSize(640, 360)), QString());
  EXPECT_EQ(guest_.sizes.back(), QSize(640, 360));
  Sent();
  Press(KEY_SPACE);
  EXPECT_EQ(Sent(), (Lines{"0ms 1:SLOTPRESS:11:11:1:1:160:270"}));
}

// The display is 720 x 1280 then, and (0.25, 0.75) of it is (180, 960): rotated by 90 degrees (1280 - 960, 180).
TEST_F(Feeding, ATurnedDisplayHasItsFingersWhereTheyAreSeen) {
  Start(kTap);
  session_->SetRotation(270);
  Sent();
  Press(KEY_SPACE);
  const GuestGeometry geometry = LiveHost::GetInstance()->Geometry();
  const Lines sent = Sent();
  ASSERT_EQ(sent.size(), 1U);
  int x = 0;
  int y = 0;
  ASSERT_EQ(std::sscanf(sent[0].c_str(), "0ms 1:SLOTPRESS:11:11:1:1:%d:%d", &x, &y), 2) << sent[0];
  EXPECT_NEAR(geometry.FractionOf(QPointF(x, y)).x(), 0.25, 0.002);
  EXPECT_NEAR(geometry.FractionOf(QPointF(x, y)).y(), 0.75, 0.002);
}

}  // namespace
}  // namespace tavi
