// Input that passes through: keys, pointer, buttons and wheel as the guest's own.
#include "core/display_geometry.h"
#include "handlers/mouse_transparent_manager.h"
#include "handlers/qt_mouse_event_transparent_handler.h"
#include "keymap/tavikeymapmanager.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

class Transparent : public Story {
 protected:
  void LoadTransparent() {
    Settings().mouse_mode = "Mouse_AllButton_Transparent";
    Settings().keyboard_transparent = true;
    Settings().wheel_transparent = true;
    Load();
  }
  static void Relative(int dx, int dy, int interval_ms, double factor) {
    QtMouseEventTransparentHandler::GetInstance()->OnRelativeInput(dx, dy, interval_ms, factor);
  }
  // The pointer's position after a movement from another.
  static QPoint Moved(int x, int y, double dx, double dy) {
    MouseTransparentManager* pointer = MouseTransparentManager::GetInstance();
    pointer->SetPosition(x, y);
    pointer->AddRelative(dx, dy);
    return pointer->GetPosition();
  }
};

// ---- Keys ----

TEST_F(Transparent, KeysArriveUnderGuestCodes) {
  LoadTransparent();
  Play("down Numpad Enter; up Numpad Enter; down Right Ctrl; up Right Ctrl");
  EXPECT_WIRE("0ms 1:KBDPR:96:1", "0ms 1:KBDRL:96:0", "0ms 1:KBDPR:97:1", "0ms 1:KBDRL:97:0");
}

TEST_F(Transparent, AReleaseWithoutPressPasses) {
  LoadTransparent();
  Play("up W");
  EXPECT_WIRE("0ms 1:KBDRL:17:0");
}

TEST_F(Transparent, WhatIsHeldIsReleasedByAResetOnce) {
  LoadTransparent();
  Play("down W; mouse down right 10,10; down E; up E; mouse down middle 10,10; mouse up middle 10,10; reset");
  const QStringList wire = TakeWire();
  EXPECT_EQ((QStringList{"0ms 1:KBDRL:17:0", "0ms 1:KBDRL:273:0"}), wire.mid(wire.size() - 2));
}

// ---- Buttons and pointer ----

TEST_F(Transparent, ButtonsAreKeysOfTheGuest) {
  LoadTransparent();
  Play("mouse down middle 10,10; mouse up middle 10,10; mouse down side 1 10,10; mouse up side 1 10,10");
  EXPECT_WIRE("0ms 1:KBDPR:274:1", "0ms 1:KBDRL:274:0", "0ms 1:KBDPR:278:1", "0ms 1:KBDRL:278:0");
}

TEST_F(Transparent, AButtonThatTheGuestDoesNotKnowSaysNothing) {
  MouseTransparentManager* pointer = MouseTransparentManager::GetInstance();
  EXPECT_EQ("", pointer->BuildButtonPressCommand(Qt::ExtraButton4).toStdString());
  EXPECT_EQ("", pointer->BuildButtonReleaseCommand(Qt::ExtraButton4).toStdString());
}

TEST_F(Transparent, ThePointerIsWhereTheHostsIs) {
  LoadTransparent();
  Play("wait 5; move 640,360; wait 5; move 0,0; wait 5; move 0,1");
  EXPECT_WIRE("5ms 1:MOUSEMOVE_REL:640:360", "15ms 1:MOUSEMOVE_REL:0:1");
}

TEST_F(Transparent, ThePointerIsScaledToTheDisplayAndTurned) {
  Host().window = {0, 0, 640, 360};
  Host().display = QRect(0, 0, 1920, 1080);
  Host().touch = QRect(0, 0, 1080, 1920);
  Host().rotation = 90;
  LoadTransparent();
  // Scale 640/1920: (160, 90) is (480, 270) on the display, (0.25, 0.25). Turned: x = 0.75 * 1080, y = 0.25 * 1920.
  Play("wait 5; move 160,90");
  EXPECT_WIRE("5ms 1:MOUSEMOVE_REL:810:480");
}

TEST_F(Transparent, APortraitWindowTurnsTheDisplayFirst) {
  Host().window = {0, 0, 360, 640};
  Host().display = QRect(0, 0, 1280, 720);
  Host().touch = QRect(0, 0, 720, 1280);
  LoadTransparent();
  // The display reads as 720 x 1280, scale 0.5: (90, 320) is (180, 640): (0.25, 0.5).
  Play("wait 5; move 90,320");
  EXPECT_WIRE("5ms 1:MOUSEMOVE_REL:180:640");
}

TEST_F(Transparent, APointerWithoutDisplaySaysNothing) {
  LoadTransparent();
  DisplayGeometry::GetInstance()->SetCallbacks(nullptr);
  Play("wait 5; move 640,360; wheel +120 640,360");
  EXPECT_WIRE_NONE();
}

TEST_F(Transparent, AWindowOfNoSizeLeavesThePointerWhereItIs) {
  LoadTransparent();
  UpdateMousePosition(100, 100);
  Host().window = {0, 0, 0, 0};
  Forget();
  Play("wait 5; move 7,7; wheel +120 640,360");
  Host().window = {0, 0, 1280, 720};
  Forget();
  Relative(1, 0, 0, 1);
  EXPECT_WIRE("5ms 1:MOUSEMOVE_REL:101:100");
}

TEST_F(Transparent, AWheelOnAWindowOfNoSizeSaysNothing) {
  Settings().wheel_transparent = true;
  Load();
  Host().window = {0, 0, 0, 0};
  Play("wheel +120 640,360");
  EXPECT_WIRE_NONE();
}

// ---- Relative movement ----

TEST_F(Transparent, ThePointerWrapsAtEveryEdgeButKeepsTheTopTenthFree) {
  // 1280 x 720: a tenth of the height is 72.
  EXPECT_EQ(QPoint(0, 100), Moved(1279, 100, 1, 0));      // 1280 - 1280
  EXPECT_EQ(QPoint(1279, 100), Moved(0, 100, -1, 0));     // -1 + 1280
  EXPECT_EQ(QPoint(100, 72), Moved(100, 719, 0, 1));      // 720 - 648
  EXPECT_EQ(QPoint(100, 719), Moved(100, 72, 0, -1));     // 71 + 648
  EXPECT_EQ(QPoint(100, 72), Moved(100, 73, 0, -1));      // exactly the tenth stays
  EXPECT_EQ(QPoint(100, 648), Moved(100, 100, 0, -100));  // 0 + 648
}

TEST_F(Transparent, TheTenthIsTruncated) {
  Host().display = QRect(0, 0, 1280, 719);  // a tenth is 71.9: 71
  Host().window = {0, 0, 1280, 719};
  EXPECT_EQ(QPoint(100, 71), Moved(100, 72, 0, -1));
}

TEST_F(Transparent, ABurstIsSentOnceWithItsWholeSum) {
  LoadTransparent();
  UpdateMousePosition(100, 100);
  Wait(20);
  Forget();
  Relative(10, 20, 20, 0.5);  // 5, 10
  Relative(10, 20, 20, 0.5);
  Wait(19);
  Relative(10, 20, 20, 0.5);
  EXPECT_WIRE("20ms 1:MOUSEMOVE_REL:105:110");
  Wait(1);
  Relative(10, 20, 20, 0.5);
  EXPECT_WIRE("40ms 1:MOUSEMOVE_REL:120:140");
}

TEST_F(Transparent, FractionsOfAPixelAddUp) {
  LoadTransparent();
  UpdateMousePosition(100, 100);
  Forget();
  for (int i = 0; i < 4; ++i) Relative(1, 1, 0, 0.25);
  // 100.25, 100.5, 100.75, 101: to the nearest
  EXPECT_WIRE("0ms 1:MOUSEMOVE_REL:100:100", "0ms 1:MOUSEMOVE_REL:101:101", "0ms 1:MOUSEMOVE_REL:101:101",
              "0ms 1:MOUSEMOVE_REL:101:101");
}

TEST_F(Transparent, NoResetMovesThePointer) {
  LoadTransparent();
  UpdateMousePosition(100, 100);
  UpdateDisplayId(2);
  LoadTransparent();
  Relative(0, 0, 0, 1);
  EXPECT_WIRE("0ms 1:MOUSEMOVE_REL:100:100");
}

// ---- The wheel ----

TEST_F(Transparent, TheWheelTurnsWhereThePointerIs) {
  LoadTransparent();
  Play("wheel +120 640,360; wheel +40 640,360; wheel -120 640,360; wheel 0 640,360");
  EXPECT_WIRE("0ms 1:WHEEL:640:360:100:0", "0ms 1:WHEEL:640:360:100:0", "0ms 1:WHEEL:640:360:-100:0",
              "0ms 1:WHEEL:640:360:-100:0");
}

TEST_F(Transparent, TheWheelActsWhereRelativeInputLeftThePointer) {
  LoadTransparent();
  UpdateMousePosition(100, 100);
  Relative(11, 0, 0, 0.5);  // 105.5
  Forget();
  Play("wheel +120 640,360");
  EXPECT_WIRE("0ms 1:WHEEL:105:100:100:0");
}

TEST_F(Transparent, WithoutATransparentMouseTheWheelStaysAtItsPlace) {
  Settings().wheel_transparent = true;
  Load();
  MouseTransparentManager::GetInstance()->SetPosition(100, 100);
  Play("wheel +120 640,360");
  EXPECT_WIRE("0ms 1:WHEEL:640:360:100:0");
}

TEST_F(Transparent, TheWheelsPlaceIsRoundedOnTheDisplay) {
  Host().window = {0, 0, 1920, 1080};
  Settings().wheel_transparent = true;
  Load();
  // Scale 1.5: 101 / 1.5 = 67.3, 100 / 1.5 = 66.7
  Play("wheel +120 101,100");
  EXPECT_WIRE("0ms 1:WHEEL:67:67:100:0");
}

TEST_F(Transparent, AWheelWithDelta) {
  Settings().wheel_transparent = true;
  Wheel().wheel_use_delta = 1;
  Wheel().wheel_delta = 1.255;
  Load();
  Play("wheel +120 640,360; wheel -120 640,360");
  EXPECT_WIRE("0ms 1:WHEEL_WITH_DELTA:640:360:125.5:0", "0ms 1:WHEEL_WITH_DELTA:640:360:-125.5:0");
}

// 1.7e308 * 100 is beyond what a double holds.
TEST_F(Transparent, ATurnByNoNumberIsNoTurn) {
  for (const double delta : {qQNaN(), qInf(), 1.7e308}) {
    Settings().wheel_transparent = true;
    Wheel().wheel_use_delta = 1;
    Wheel().wheel_delta = delta;
    Load();
    Play("wheel +120 640,360");
    EXPECT_WIRE_NONE() << delta;
  }
}

TEST_F(Transparent, OnlyOneSelectsTheDelta) {
  Settings().wheel_transparent = true;
  Wheel().wheel_use_delta = 2;
  Load();
  Play("wheel +120 640,360");
  EXPECT_WIRE("0ms 1:WHEEL:640:360:100:0");
}

}  // namespace
}  // namespace taviinputmanager
