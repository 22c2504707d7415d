#include "handlers/qt_wheel_event_simulate_handler.h"

#include <limits>

#include <QRect>
#include <QWheelEvent>

#include "core/input_status_manager.h"
#include "keymap/tavikeymapmanager.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ComposableConfigItem;
using tavikeymapmanager::ConfigItem;

class Wheel : public Story {
 protected:
  void LoadNothing(const QString& package) {
    OnLoadKeymapConfigAndInfo("", package, "", 1);
    Wait(0);
    Host().StartTimeline();
    Forget();
  }
};

TEST_F(Wheel, OnlySomeTypesAnswerToIt) {
  for (const char* type : {"Click", "BunchClick", "Staring", "Macro", "Zoom", "OperationRecorder", "Curve"}) {
    ConfigItem item;
    item.type = type;
    EXPECT_NE(nullptr, QtWheelEventSimulateHandler::GetWheelSimulator(&item)) << type;
  }
  for (const char* type : {"Swipehold", "Spell", "Eye", "Gravity", "Wheel", "Observe", "RightWalk", "SpellCancel",
                           "Fire", "VirtualJoystickButton", ""}) {
    ConfigItem item;
    item.type = type;
    EXPECT_EQ(nullptr, QtWheelEventSimulateHandler::GetWheelSimulator(&item)) << type;
  }
}

TEST_F(Wheel, AMappedNotchIsATapOf50MsThatBlocks) {
  Add<ConfigItem>("Click", "Wheel Up", {0.5, 0.5});
  Add<ConfigItem>("Click", "Wheel Down", {0.25, 0.5});
  Load();
  Play("wheel +120 10,10; wheel -120 10,10");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360", "50ms 1:SLOTRELEASE:11", "50ms 1:SLOTPRESS:11:11:1:1:320:360",
              "100ms 1:SLOTRELEASE:11");
  EXPECT_CALLS_NONE();  // unlike keys, a wheel's match is not reported
}

// 40 taps per second are a change every 12 ms: down at 0, 24 and 48, up at 12, 36 and with the end of the run. The main
// thread sleeps during all of it.
TEST_F(Wheel, ARapidTapTapsOnDuringItsNotch) {
  auto* bunch = Add<tavikeymapmanager::BunchClickConfigItem>("BunchClick", "Wheel Up", {0.5, 0.5});
  bunch->bunch_mode = "Continue";
  bunch->bunch_frequency = 40;
  Load();
  Play("wheel +120 10,10; wait 100");
  const QString press = "50ms 1:SLOTPRESS:11:11:1:1:640:360";
  const QString release = "50ms 1:SLOTRELEASE:11";
  EXPECT_WIRE(press, release, press, release, press, release);
}

// duration 48: 48 / 12 = 4 steps, so 5 ticks, 12 to 60 ms behind the notch; those of the first 48 ms are due in its
// sleep. Speed 100 is 0.01 of 1280 pixels a tick.
TEST_F(Wheel, APinchBeginsWithItsNotch) {
  auto* zoom = Add<tavikeymapmanager::ZoomConfigItem>("Zoom", "Wheel Up", {0.5, 0.5});
  zoom->speed = 100;
  zoom->axis = "horizontal";
  zoom->duration_ms = 48;
  zoom->start_distance = 0.25;
  Load();
  Play("wheel +120 10,10; wait 100");
  EXPECT_WIRE("50ms 1:SLOTMULTIPRESS:18:18:960:360:19:19:320:360", "50ms 1:SLOTMULTIPRESS:18:18:973:360:19:19:307:360",
              "50ms 1:SLOTMULTIPRESS:18:18:986:360:19:19:294:360", "50ms 1:SLOTMULTIPRESS:18:18:998:360:19:19:282:360",
              "60ms 1:SLOTMULTIPRESS:18:18:1011:360:19:19:269:360", "60ms 1:SLOTMULTIRELEASE:19:18");
}

// A macro starts the run and turns the wheel in one call, so that the notch's 50 ms pass before anything is delivered.
// The curve's points are due 8, 16 and 24 ms after its start: (0.25 + 0.125) * 1280 = 480.
TEST_F(Wheel, ACurveIsFollowedDuringANotch) {
  auto* curve = Add<tavikeymapmanager::CurveConfigItem>("Curve", "W", {0.25, 0.5});
  curve->curve_points = "0.125,0;0.25,0;0.5,0";
  Add<ConfigItem>("Click", "Wheel Up", {0.5, 0.5});
  Add<tavikeymapmanager::MacroConfigItem>("Macro", "F1")->press_commands << "keyboard_press:17"
                                                                         << "mouse_wheelup:1";
  Load();
  Play("down F1; wait 100");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360", "50ms 1:SLOTRELEASE:11", "50ms 1:SLOTPRESS:5:5:1:1:480:360",
              "50ms 1:SLOTPRESS:5:5:1:1:640:360", "50ms 1:SLOTPRESS:5:5:1:1:960:360");
}

// 16 / 8 + 1 ticks, at 8, 16 and 24 ms, of 0.001 of 1280 pixels each. Slot 11 is the slide's.
TEST_F(Wheel, ASlideGoesOnDuringANotch) {
  auto* slide = Add<tavikeymapmanager::WheelConfigItem>("Wheel", "W", {0.25, 0.5});
  slide->speed = 10;
  slide->axis = "horizontal";
  slide->duration_ms = 16;
  Add<ConfigItem>("Click", "Wheel Up", {0.5, 0.5});
  Add<tavikeymapmanager::MacroConfigItem>("Macro", "F1")->press_commands << "keyboard_press:17"
                                                                         << "keyboard_release:17"
                                                                         << "mouse_wheelup:1";
  Load();
  Play("down F1; wait 100");
  EXPECT_WIRE("0ms 1:SLOTPRESS:12:12:1:1:640:360", "50ms 1:SLOTRELEASE:12", "50ms 1:SLOTPRESS:11:11:1:1:320:360",
              "50ms 1:SLOTPRESS:11:11:1:1:321:360", "50ms 1:SLOTPRESS:11:11:1:1:323:360", "50ms 1:SLOTRELEASE:11");
}

TEST_F(Wheel, NoTurnAtAllCountsAsDown) {
  Add<ConfigItem>("Click", "Wheel Down", {0.25, 0.5});
  Load();
  Play("wheel 0 10,10");
  EXPECT_EQ("0ms 1:SLOTPRESS:11:11:1:1:320:360", TakeWire().value(0).toStdString());
}

TEST_F(Wheel, AChordDoesNotAnswerToItAlone) {
  auto* chord = Add<ComposableConfigItem>("Click", "Wheel Up", {0.5, 0.5});
  chord->first_key = Key("Q");
  Load();
  Play("wheel +120 640,360");  // the scroll swipe
  EXPECT_WIRE("0ms 1:SLOTPRESS:10:10:1:1:640:360");
}

TEST_F(Wheel, AnItemThatTheWheelCannotWorkFallsThrough) {
  Add<tavikeymapmanager::SwipeholdConfigItem>("Swipehold")->key_up = Key("Wheel Up");
  Story::Wheel().wheel_zoom = true;
  Load();
  Play("wheel +120 640,360");
  EXPECT_TRUE(TakeWire().value(0).contains("SLOTMULTIPRESS"));
}

TEST_F(Wheel, AnUnmappedTurnScrollsOrPinches) {
  Load();
  Play("wheel +120 640,360");
  EXPECT_WIRE("0ms 1:SLOTPRESS:10:10:1:1:640:360");
  Play("wait 500");
  Story::Wheel().wheel_zoom = true;
  Load();
  Play("wheel +120 640,360");
  EXPECT_TRUE(TakeWire().value(0).contains("SLOTMULTIPRESS"));
}

TEST_F(Wheel, ControlAloneAlwaysPinches) {
  Add<ConfigItem>("Click", "Wheel Up", {0.5, 0.5});
  Load();
  Play("down Left Ctrl; wheel +120 640,360; up Left Ctrl");
  EXPECT_TRUE(TakeWire().value(0).contains("SLOTMULTIPRESS"));
}

TEST_F(Wheel, ControlOnAnAppOfTheSystemPinchesToo) {
  LoadNothing("com.android.settings");
  Play("down Left Ctrl; wheel +120 640,360; up Left Ctrl");
  EXPECT_TRUE(TakeWire().value(0).contains("SLOTMULTIPRESS"));
}

TEST_F(Wheel, ControlWithAnotherModifierDoesNotCount) {
  Load();
  Play("down Left Shift; wheel +120 640,360; up Left Shift");
  EXPECT_WIRE("0ms 1:SLOTPRESS:10:10:1:1:640:360");
  Play("wait 500");
  Forget();
  Play("down Left Ctrl; down Left Shift; wheel +120 640,360; up Left Shift; up Left Ctrl");
  EXPECT_WIRE("500ms 1:SLOTPRESS:10:10:1:1:640:360");
}

TEST_F(Wheel, WithoutKeymapAnAppScrolls) {
  LoadNothing("com.example");
  Play("wheel +120 640,360");
  EXPECT_WIRE("0ms 1:SLOTPRESS:10:10:1:1:640:360");
}

// An app of the system is loaded with the system keymap, which counts as a keymap.
TEST_F(Wheel, AnAppOfTheSystemHasAKeymap) {
  LoadNothing("com.android.settings");
  Play("wheel +120 640,360");
  EXPECT_WIRE("0ms 1:SLOTPRESS:10:10:1:1:640:360");
}

// No load leads to this status, so the test sets it. The third field is the position again, with the wheel's sign.
TEST_F(Wheel, AnAppOfTheSystemWithoutKeymapGetsAPlainTurn) {
  LoadNothing("com.example");
  const tavikeymapmanager::KeymapConfig none;
  InputStatusManager::GetInstance()->ResetForKeymap(&none, "com.android.settings", "", false, 0, 1);
  Host().window = {0, 0, 640, 360};  // half the touch surface: 100,50 is 200,100
  Forget();
  Play("wheel +120 100,50; wheel -120 100,50; wheel 0 100,50; wheel +1 100,50");
  EXPECT_WIRE("0ms 1:WHEEL:200:100:200:100", "0ms 1:WHEEL:200:100:-200:100", "0ms 1:WHEEL:200:100:-200:100",
              "0ms 1:WHEEL:200:100:200:100");
  Play("down Left Ctrl; wheel +120 100,50; up Left Ctrl");
  EXPECT_TRUE(TakeWire().value(0).contains("SLOTMULTIPRESS"));
}

// The largest int means no position: a point on the far edge of a surface of that width has none.
TEST_F(Wheel, APlainTurnWithoutAPlaceSaysNothing) {
  const int most = std::numeric_limits<int>::max();
  const struct {
    QRect touch;
    const char* turn;
  } rows[] = {{QRect(0, 0, most, 720), "wheel +120 1280,50"}, {QRect(0, 0, 1280, most), "wheel +120 50,720"}};
  LoadNothing("com.example");
  const tavikeymapmanager::KeymapConfig none;
  InputStatusManager::GetInstance()->ResetForKeymap(&none, "com.android.settings", "", false, 0, 1);
  for (const auto& row : rows) {
    Host().touch = row.touch;
    Forget();
    Play(row.turn);
    EXPECT_WIRE_NONE();
  }
}

TEST_F(Wheel, MovesAreSwallowedWhileItsGestureRuns) {
  Settings().mouse_mode = "Mouse_OtherButton_Transparent";
  Load();
  Play("wait 5; wheel +120 640,360; move 100,100");
  EXPECT_WIRE("5ms 1:SLOTPRESS:10:10:1:1:640:360");
  Play("wait 500");
  Forget();
  Play("move 100,100");
  EXPECT_WIRE("505ms 1:MOUSEMOVE_REL:100:100");
}

TEST_F(Wheel, ASwallowedMoveStillCountsForTheNext) {
  Settings().mouse_mode = "Mouse_OtherButton_Transparent";
  Load();
  // The swipe of a wheel movement ends 21 ticks of 8 ms later: at 173 ms, when no timer is running anymore.
  Play("wait 5; wheel +120 640,360; wait 167; move 100,100; wait 1");
  Forget();
  Play("move 100,100");  // 1 ms after a swallowed one
  EXPECT_WIRE_NONE();
}

}  // namespace
}  // namespace taviinputmanager
