// The routing of events.
#include <QMouseEvent>

#include "core/input_status_manager.h"
#include "keymap/tavikeymapmanager.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::StaringConfigItem;

class Routes : public Story {};

TEST_F(Routes, AnUnmappedKeyPassesOnlyWhereTheKeymapSaysSo) {
  Load();
  Play("down W; up W");
  EXPECT_WIRE_NONE();
  Settings().keyboard_transparent = true;
  Load();
  Play("down W; wait 5; up W");
  EXPECT_WIRE("0ms 1:KBDPR:17:1", "5ms 1:KBDRL:17:0");
}

TEST_F(Routes, AMappedKeyDoesNotPass) {
  Settings().keyboard_transparent = true;
  Add<ConfigItem>("Click", "W", {0.5, 0.5});
  Load();
  Play("down W; up W");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360", "0ms 1:SLOTRELEASE:11");
}

TEST_F(Routes, ARepeatedKeyGivesNothingEvenWhereKeysPass) {
  Settings().keyboard_transparent = true;
  Add<ConfigItem>("Click", "W", {0.5, 0.5});
  Load();
  Play("down W; down E");
  Forget();
  Play("repeat W; repeat E");
  EXPECT_WIRE_NONE();
}

TEST_F(Routes, AForcedDisplayPassesEveryKeyAndKeepsHeldKeysInTextMode) {
  Add<ConfigItem>("Click", "W", {0.5, 0.5});
  Load();
  InputStatusManager::GetInstance()->AddHeldKey(44);
  Play("transparent 1 on; textfield on; down W; up W");
  EXPECT_WIRE("0ms 1:KBDPR:17:1", "0ms 1:KBDRL:17:0");
  Play("transparent 1 off; textfield off; down W");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360");
}

TEST_F(Routes, ForcedTransparencyIsOfOneDisplay) {
  Load();
  Play("transparent 2 on; down W");
  EXPECT_WIRE_NONE();
}

TEST_F(Routes, TextModeReleasesHeldKeysFirst) {
  Settings().keyboard_transparent = true;
  Load();
  Play("down Space; down A; wait 10");
  Forget();
  Play("textfield on; down W");
  const QStringList wire = TakeWire();
  // Guest codes: A is 30, Space 57.
  EXPECT_EQ((QStringList{"10ms 1:KBDRL:30:0", "10ms 1:KBDRL:57:0"}), wire.mid(0, 2));
  for (const QString& line : wire) EXPECT_FALSE(line.contains("KBDPR:17")) << "the text handler uses up every key";
  Play("up W");
  EXPECT_WIRE_NONE();  // nor does a release pass
}

TEST_F(Routes, AnInputMethodReleasesHeldKeysAndCommits) {
  Settings().keyboard_transparent = true;
  Load();
  Play("down A; commit word");
  EXPECT_WIRE("0ms 1:KBDPR:30:1", "0ms 1:KBDRL:30:0", "0ms text TEXT:word");
  Play("compose wo");
  EXPECT_WIRE_NONE();
}

TEST_F(Routes, MovesAreTwoMillisecondsApart) {
  Load();
  Play("wait 5; mouse down left 10,10");
  Forget();
  Play("move 20,20; wait 1; move 30,30; wait 1; move 40,40");
  // The second is dropped and does not count: the third comes 2 ms after the first.
  EXPECT_WIRE("5ms 1:SLOTPRESS:1:1:1:1:20:20", "7ms 1:SLOTPRESS:1:1:1:1:40:40");
}

TEST_F(Routes, ADoubleClickIsOnePressAndTwoReleases) {
  Load();
  Play("mouse down left 10,10; mouse up left 10,10; mouse double left 10,10; mouse up left 10,10");
  EXPECT_WIRE("0ms 1:SLOTPRESS:1:1:1:1:10:10", "0ms 1:SLOTRELEASE:1", "0ms 1:SLOTRELEASE:1");
}

TEST_F(Routes, OtherEventsAreDropped) {
  Load();
  QEvent leave(QEvent::Leave);
  OnQtInputEvent(&leave);
  OnJoystickEvent(&leave);
  OnQtInputEvent(nullptr);
  OnJoystickEvent(nullptr);
  EXPECT_WIRE_NONE();
}

// What a press does: on the simulating side a left press is a contact and a right press nothing; on the transparent
// side both are keys of the guest's mouse.
const struct {
  const char* name;
  bool forced;
  const char* mode;
  const char* left;
  const char* right;
} kMouse[] = {
    {"forced", true, "Mouse_No_Transparent", "1:SLOTPRESS:1:1:1:1:10:10", "1:KBDPR:273:1"},
    {"forced, whatever the mode", true, "Mouse_AllButton_Transparent", "1:SLOTPRESS:1:1:1:1:10:10", "1:KBDPR:273:1"},
    {"none passes", false, "Mouse_No_Transparent", "1:SLOTPRESS:1:1:1:1:10:10", nullptr},
    {"others pass", false, "Mouse_OtherButton_Transparent", "1:SLOTPRESS:1:1:1:1:10:10", "1:KBDPR:273:1"},
    {"all pass", false, "Mouse_AllButton_Transparent", "1:KBDPR:272:1", "1:KBDPR:273:1"},
    {"an unknown word passes others", false, "mouse_all", "1:SLOTPRESS:1:1:1:1:10:10", "1:KBDPR:273:1"},
};

TEST_F(Routes, SelectsTheSideOfAMouseButton) {
  for (const auto& row : kMouse) {
    Settings().mouse_mode = row.mode;
    Load();
    UpdateDisplayForceTransparent(1, row.forced);
    Play("mouse down left 10,10");
    EXPECT_EQ(QStringList{QStringLiteral("0ms ") + row.left}, TakeWire()) << row.name;
    Play("mouse up left 10,10");
    Forget();
    Play("mouse down right 10,10");
    EXPECT_EQ(row.right ? QStringList{QStringLiteral("0ms ") + row.right} : QStringList(), TakeWire()) << row.name;
    Play("mouse up right 10,10");
  }
}

TEST_F(Routes, AnotherButtonWhileTheLeftIsHeldGoesWhereTheLeftGoes) {
  Settings().mouse_mode = "Mouse_OtherButton_Transparent";
  Load();
  Play("mouse down left 10,10; mouse down right 10,10; mouse up right 10,10; mouse up left 10,10");
  EXPECT_WIRE("0ms 1:SLOTPRESS:1:1:1:1:10:10", "0ms 1:SLOTRELEASE:1");
  Play("mouse down right 10,10; mouse up right 10,10");
  EXPECT_WIRE("0ms 1:KBDPR:273:1", "0ms 1:KBDRL:273:0");
}

// A move has no button of its own: the held buttons decide.
TEST_F(Routes, AMoveWithTheLeftButtonHeldIsALeftMove) {
  Settings().mouse_mode = "Mouse_OtherButton_Transparent";
  Load();
  Play("wait 5; move 20,20");
  EXPECT_WIRE("5ms 1:MOUSEMOVE_REL:20:20");
  Play("wait 5; mouse down left 20,20; move 30,30");
  EXPECT_WIRE("10ms 1:SLOTPRESS:1:1:1:1:20:20", "10ms 1:SLOTPRESS:1:1:1:1:30:30");
}

TEST_F(Routes, AMappedButtonGoesToTheKeymapWhateverPasses) {
  Settings().mouse_mode = "Mouse_AllButton_Transparent";
  Add<ConfigItem>("Click", "Mouse Right", {0.5, 0.5});
  Load();
  Play("mouse down right 10,10; mouse up right 10,10");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360", "0ms 1:SLOTRELEASE:11");
}

TEST_F(Routes, AMappedLeftButtonMovesItsFingerWhateverPasses) {
  Settings().mouse_mode = "Mouse_AllButton_Transparent";
  Add<ConfigItem>("Click", "Mouse Left", {0.5, 0.5});
  Load();
  Play("wait 5; mouse down left 10,10; move 20,20; mouse up left 20,20; wait 5; move 30,30");
  EXPECT_WIRE("5ms 1:SLOTPRESS:1:1:1:1:10:10", "5ms 1:SLOTPRESS:1:1:1:1:20:20", "5ms 1:SLOTRELEASE:1",
              "10ms 1:MOUSEMOVE_REL:30:30");
}

TEST_F(Routes, AMappedButtonGoesToTheKeymapEvenOnAForcedDisplay) {
  Add<ConfigItem>("Click", "Mouse Right", {0.5, 0.5});
  Load();
  Play("transparent 1 on; mouse down right 10,10; mouse up right 10,10");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360", "0ms 1:SLOTRELEASE:11");
}

TEST_F(Routes, AMoveOnAForcedDisplayIsThePointers) {
  Load();
  Play("transparent 1 on; wait 5; move 20,30");
  EXPECT_WIRE("5ms 1:MOUSEMOVE_REL:20:30");
}

TEST_F(Routes, EachLookAtAMappedButtonIsTold) {
  Add<ConfigItem>("Click", "Mouse Right", {0.5, 0.5});
  Add<ConfigItem>("Click", "Mouse Left", {0.5, 0.5});
  Load();
  Play("mouse down right 10,10");  // by the route, and by the press
  EXPECT_CALLS("0ms mapped 1", "0ms mapped 1");
  Play("mouse up right 10,10");
  EXPECT_CALLS("0ms mapped 1", "0ms mapped 1");
  Play("mouse down left 10,10; wait 5");
  Forget();
  Play("move 20,20");  // the held left button
  EXPECT_CALLS("5ms mapped 1");
}

TEST_F(Routes, TheWheelPassesWhereTheKeymapOrTheDisplaySaysSo) {
  Settings().wheel_transparent = true;
  Load();
  Play("wheel +120 640,360");
  EXPECT_WIRE("0ms 1:WHEEL:640:360:100:0");
  Load();
  Play("transparent 1 on; wheel -120 640,360");
  EXPECT_WIRE("0ms 1:WHEEL:640:360:-100:0");
}

TEST_F(Routes, MousePositionIsTakenOnlyInTransparentModes) {
  Load();
  UpdateMousePosition(5, 6);
  EXPECT_WIRE_NONE();
  Settings().mouse_mode = "Mouse_OtherButton_Transparent";
  Load();
  UpdateMousePosition(5, 6);
  EXPECT_WIRE("0ms 1:MOUSEMOVE_REL:5:6");
}

TEST_F(Routes, ATableIsNotNeeded) {
  Initialize(nullptr, 0, 0);
  Settings().keyboard_transparent = true;
  Add<ConfigItem>("Click", "E", {0.5, 0.5});
  Load();
  Play("down W; up W; down E; up E; down Esc; mouse down left 5,5; mouse up left 5,5");
  // Without a display there is no press; releases have no position. Escape does not act as back unless the host allows
  // it.
  EXPECT_WIRE("0ms 1:KBDPR:17:1", "0ms 1:KBDRL:17:0", "0ms 1:SLOTRELEASE:11", "0ms 1:SLOTPRESS:1:1:1:1:5:5",
              "0ms 1:SLOTRELEASE:1");
}

}  // namespace
}  // namespace taviinputmanager
