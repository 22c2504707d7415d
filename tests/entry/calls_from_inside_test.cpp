// A host that feeds the next event before the called host function returns.
#include <QTemporaryDir>

#include "keymap/keywords.h"
#include "keymap/tavikeymapmanager.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/interruptions.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

namespace keywords = tavikeymapmanager::keywords;
using tavikeymapmanager::ComposableConfigItem;
using tavikeymapmanager::EyeConfigItem;
using tavikeymapmanager::FireConfigItem;
using tavikeymapmanager::JoystickLeftWalkConfigItem;
using tavikeymapmanager::MacroConfigItem;
using tavikeymapmanager::MouseRightWalkConfigItem;
using tavikeymapmanager::SpellCancelConfigItem;
using tavikeymapmanager::SpellConfigItem;
using tavikeymapmanager::StaringConfigItem;
using tavikeymapmanager::SwipeholdConfigItem;

class CallsFromInside : public Story {
 protected:
  // Plays `script` inside the first line, callback or question that is `what`.
  void At(const QString& what, const QString& script) {
    test::InterruptAt(what, [this, script] { Feed(script); });
  }
};

// ---- Keys ----

TEST_F(CallsFromInside, AKeyThatComesUpInsideItsPressIsNotHeld) {
  Settings().keyboard_transparent = true;
  Load();
  At("1:KBDPR:37:1", "up K");
  Play("down K");
  EXPECT_WIRE("0ms 1:KBDPR:37:1", "0ms 1:KBDRL:37:0");
  UpdateDisplayId(1);
  EXPECT_WIRE("0ms 1:SLOTRELEASE:5", "0ms 1:SLOTRELEASE:4", "0ms 1:SLOTRELEASE:7", "0ms 1:SLOTRELEASEALL");
}

TEST_F(CallsFromInside, AKeyThatIsPressedInsideTheSweepIsTheNextDisplays) {
  Settings().keyboard_transparent = true;
  Add<ComposableConfigItem>("Click", "Q", {0.5, 0.5});
  Load();
  Forget();
  At("1:SLOTRELEASEALL", "down K; down Q");
  UpdateDisplayId(2);
  Play("up K; up Q");
  const QStringList lines = TakeWire();
  EXPECT_TRUE(lines.contains("0ms 2:KBDPR:37:1")) << lines.join('\n').toStdString();
  EXPECT_TRUE(lines.contains("0ms 2:KBDRL:37:0"));
  EXPECT_TRUE(lines.contains("0ms 2:SLOTPRESS:11:11:1:1:640:360"));
  EXPECT_TRUE(lines.contains("0ms 2:SLOTRELEASE:11"));
}

TEST_F(CallsFromInside, ATapThatEndsAsItsPlaceIsAskedForIsNotPressed) {
  Add<ComposableConfigItem>("Click", "Q", {0.5, 0.5});
  Load();
  At("GetTouchRect", "up Q");
  Play("down Q");
  EXPECT_WIRE("0ms 1:SLOTRELEASE:11");
}

TEST_F(CallsFromInside, ATapInsideTheQuestionOfAnotherHasItsOwnSlot) {
  Add<ComposableConfigItem>("Click", "Q", {0.5, 0.5});
  Add<ComposableConfigItem>("Click", "E", {0.25, 0.25});
  Load();
  At("GetTouchRect", "down E");
  Play("down Q");
  EXPECT_WIRE("0ms 1:SLOTPRESS:12:12:1:1:320:180", "0ms 1:SLOTPRESS:11:11:1:1:640:360");
}

// ---- Mirrors ----

QStringList mirrored;

TEST_F(CallsFromInside, AMirrorGetsALineBeforeThoseFromInsideIt) {
  Settings().keyboard_transparent = true;
  Load();
  Host().primary_display = 1;
  SetInputEventSyncFunc(
      reinterpret_cast<void*>(+[](const QString& line, const QVector<QString>&) { mirrored.append(line.trimmed()); }));
  StartSync("other", "", "");
  At("1:KBDPR:37:1", "up K");
  Play("down K");
  EXPECT_EQ(QStringList({"KBDPR:37:1", "KBDRL:37:0"}), mirrored);
}

TEST_F(CallsFromInside, ALineFromInsideTheQuestionForThePrimaryDisplayIsMirroredOnceAndBehind) {
  Settings().keyboard_transparent = true;
  Load();
  Host().primary_display = 1;
  SetInputEventSyncFunc(
      reinterpret_cast<void*>(+[](const QString& line, const QVector<QString>&) { mirrored.append(line.trimmed()); }));
  StartSync("other", "", "");
  At("IsPrimaryDisplay", "up K");
  Play("down K");
  EXPECT_EQ(QStringList({"KBDPR:37:1", "KBDRL:37:0"}), mirrored);
}

// ---- Touch ----

TEST_F(CallsFromInside, TheEndOfATouchOvertakesItsBegin) {
  Load();
  At("1:SLOTMULTIPRESS:18:18:100:200", "touch end");
  Play("touch begin 1:100,200 2:300,400");
  EXPECT_WIRE("0ms 1:SLOTMULTIPRESS:18:18:100:200", "0ms 1:SLOTMULTIRELEASE:18");
}

TEST_F(CallsFromInside, ANewTouchOvertakesTheEndOfTheOneBefore) {
  Load();
  Play("touch begin 1:100,200 2:300,400");
  Forget();
  At("1:SLOTMULTIRELEASE:18", "touch update 2:300,400");
  Play("touch end");
  EXPECT_WIRE("0ms 1:SLOTMULTIRELEASE:18", "0ms 1:SLOTMULTIPRESS:19:19:300:400");
  Play("touch end");
  EXPECT_WIRE("0ms 1:SLOTMULTIRELEASE:19");
}

// ---- Buttons of gamepads ----

TEST_F(CallsFromInside, APadButtonThatComesUpInsideItsPressIsReleased) {
  Load();
  auto* tap = Add<ComposableConfigItem>("Click", {}, {0.5, 0.5});
  tap->key.device = keywords::kDeviceJoystick;
  tap->key.text = "A";
  LoadJoystick();
  At("1:SLOTPRESS:11:11:1:1:640:360", "joy up A");
  Play("joy down A");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360", "0ms 1:SLOTRELEASE:11");
}

TEST_F(CallsFromInside, APadButtonThatIsPressedInsideItsReleaseIsHeld) {
  Load();
  auto* tap = Add<ComposableConfigItem>("Click", {}, {0.5, 0.5});
  tap->key.device = keywords::kDeviceJoystick;
  tap->key.text = "A";
  LoadJoystick();
  At("1:SLOTRELEASE:11", "joy down A");
  Play("joy down A; joy up A");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360", "0ms 1:SLOTRELEASE:11", "0ms 1:SLOTPRESS:11:11:1:1:640:360");
  Play("joy up A");
  EXPECT_WIRE("0ms 1:SLOTRELEASE:11");
}

// ---- Gestures that block ----

TEST_F(CallsFromInside, ARightWalkThatEndsInsideItsSlideStaysUp) {
  auto* walk = Add<MouseRightWalkConfigItem>("RightWalk", "Mouse Right", {0.25, 0.5});
  walk->walk_radius = 0.1;
  walk->swipe_steps = 4;
  walk->swipe_step_ms = 5;
  Load();
  At("1:SLOTPRESS:4:4:1:1:320:360", "mouse up right 640,360");  // on the character: no short click
  Play("mouse down right 960,360");
  EXPECT_WIRE("0ms 1:SLOTPRESS:4:4:1:1:320:360", "0ms 1:SLOTRELEASE:4");
}

TEST_F(CallsFromInside, ARightWalkThatEndsAsTheDisplayIsAskedForPutsNothingDown) {
  Add<MouseRightWalkConfigItem>("RightWalk", "Mouse Right", {0.25, 0.5})->walk_radius = 0.1;
  Load();
  At("GetDisplayRect", "mouse up right 640,360");
  Play("mouse down right 960,360");
  EXPECT_WIRE("0ms 1:SLOTRELEASE:4");
}

TEST_F(CallsFromInside, AStickThatComesToRestInsideItsRunOfStepsLiftsTheFinger) {
  Load();
  auto* walk = Add<JoystickLeftWalkConfigItem>("LeftStickWalk", {}, {0.25, 0.5});
  walk->key.device = keywords::kDeviceJoystick;
  walk->key.text = keywords::kLeftStick;
  walk->walk_radius = 0.1;
  LoadJoystick();
  At("1:SLOTPRESS:8:8:1:1:320:360", "joy axis 0 0,0");
  Play("joy axis 0 1,0");
  EXPECT_WIRE("0ms 1:SLOTPRESS:8:8:1:1:320:360", "0ms 1:SLOTRELEASE:8");
}

TEST_F(CallsFromInside, ASkillKeyThatComesUpInsideItsSwipeCastsThere) {
  auto* spell = Add<SpellConfigItem>("Spell", "Q", {0.75, 0.75});
  spell->trigger = keywords::kTriggerOnRelease;
  spell->touch_location = keywords::kLocationMouse;
  spell->circle_size = 0.5;
  spell->swipe_radius = 0.1;
  spell->swipe_steps = 4;
  spell->swipe_step_ms = 5;
  Load();
  At("1:SLOTPRESS:6:6:1:1:960:540", "up Q");
  Play("down Q; wait 100");
  EXPECT_WIRE("0ms 1:SLOTPRESS:6:6:1:1:960:540", "0ms 1:SLOTRELEASE:6");
}

TEST_F(CallsFromInside, ASkillThatIsCastInsideItsCancelLiftsOnce) {
  auto* spell = Add<SpellConfigItem>("Spell", "Q", {0.75, 0.75});
  spell->trigger = keywords::kTriggerImmediate;
  spell->swipe_steps = 2;
  auto* cancel = Add<SpellCancelConfigItem>("SpellCancel", "E", {0.5, 0.5});
  cancel->cancel_immediately = true;
  cancel->cancel_delay_ms = 50;
  Load();
  Play("down Q");
  Forget();
  At("1:SLOTPRESS:6:6:1:1:800:450", "up Q");  // half of the way from (960, 540) to (640, 360)
  Play("down E; wait 100");
  EXPECT_WIRE("0ms 1:SLOTPRESS:6:6:1:1:800:450", "0ms 1:SLOTRELEASE:6");
}

// ---- Macros ----

TEST_F(CallsFromInside, AVirtualPointerThatIsLetGoAsItsPlaceIsAskedForIsNotPressed) {
  auto* macro = Add<MacroConfigItem>("Macro", "M");
  macro->press_commands = QStringList{"vmouse_move:(0.5,0.5)", "vmouse_press:1"};
  macro->release_commands = QStringList{"vmouse_release:1"};
  Load();
  At("GetTouchRect", "up M");
  Play("down M");
  EXPECT_WIRE("0ms 1:SLOTRELEASE:18");
}

// ---- Records ----

TEST_F(CallsFromInside, ARecordThatBeginsInsideTheSavingOfTheOneBeforeIsWhole) {
  const QTemporaryDir folder;
  Settings().keyboard_transparent = true;
  Load();
  Host().primary_display = 1;
  StartRecord("com.example.first", "First");
  Play("down K; up K");
  test::InterruptAt("GetDisplayRect", [] { StartRecord("com.example.second", "Second"); });
  StopRecord("com.example.first", folder.filePath("first.json"));
  Play("down K; up K");
  StopRecord("com.example.second", folder.filePath("second.json"));
  QString app;
  QString package;
  GetScriptAppAndPackage(folder.filePath("second.json"), app, package);
  EXPECT_EQ("Second", app);
  EXPECT_EQ("com.example.second", package);
}

// ---- Walks ----

class WalksFromInside : public CallsFromInside {
 protected:
  // Its centre is (320, 360) and its radius 128: W takes the finger to (320, 232).
  SwipeholdConfigItem* AddWalk() {
    auto* walk = Add<SwipeholdConfigItem>("Swipehold", {}, {0.25, 0.5});
    walk->key_up = Key("W");
    walk->key_left = Key("A");
    walk->key_down = Key("S");
    walk->key_right = Key("D");
    walk->press_mode = keywords::kPressClick;
    walk->first_press_delay_ms = 10;
    walk->radius = 0.1;
    walk->subsequent_mode = keywords::kPressClick;
    return walk;
  }
};

TEST_F(WalksFromInside, AWalkThatEndsAtItsTargetTremblesNoMore) {
  auto* walk = AddWalk();
  walk->compensate = true;
  Load();
  At("1:SLOTPRESS:2:2:1:1:320:232", "up W");
  Play("down W; wait 200");
  EXPECT_WIRE("0ms 1:SLOTPRESS:2:2:1:1:320:360", "10ms 1:SLOTPRESS:2:2:1:1:320:232", "10ms 1:SLOTRELEASE:2");
}

TEST_F(WalksFromInside, AWalkThatBeginsInsideTheRestOnTheCentreGoesOn) {
  AddWalk()->hold_center_ms = 50;
  Load();
  Play("down W; wait 10");
  Forget();
  At("1:SLOTPRESS:2:2:1:1:320:360", "down W");
  Play("up W; wait 200");
  EXPECT_WIRE("10ms 1:SLOTPRESS:2:2:1:1:320:360", "10ms 1:SLOTPRESS:2:2:1:1:320:360",
              "20ms 1:SLOTPRESS:2:2:1:1:320:232");
}

TEST_F(WalksFromInside, ATransparentWalksKeyThatComesUpInsideItsPressIsNotHeld) {
  AddWalk()->press_mode = keywords::kPressTransparent;
  Load();
  At("1:KBDPR:17:1", "up W");
  Play("down W");
  EXPECT_WIRE("0ms 1:KBDPR:17:1", "0ms 1:KBDRL:17:0");
  UpdateDisplayId(1);
  EXPECT_FALSE(TakeWire().contains("0ms 1:KBDRL:17:0"));
}

// ---- View control ----

class ViewFromInside : public CallsFromInside {
 protected:
  ViewFromInside() {
    auto* staring = Add<StaringConfigItem>("Staring", "F", {0.5, 0.5});
    staring->range_mode = keywords::kRangeInfinite;
    staring->auto_reset_period_ms = 100;
    Add<FireConfigItem>("Fire", "Mouse Left", {0.75, 0.75})->relative_mode = true;
  }
};

TEST_F(ViewFromInside, AFireKeyThatComesUpInsideItsPressGivesTheCountsBack) {
  Load();
  Play("down F; up F");
  Forget();
  At("1:SLOTPRESS:3:3:1:1:960:540", "mouse up left 640,360");
  Play("mouse down left 640,360");
  EXPECT_WIRE("0ms 1:SLOTPRESS:3:3:1:1:960:540", "0ms 1:SLOTRELEASE:3");
  Play("rel 1,1");
  EXPECT_WIRE("0ms 1:SLOTPRESS:1:1:1:1:640:360");  // the view contact gets them
}

TEST_F(ViewFromInside, ViewControlThatIsLeftAsItBeginsLiftsNothingLater) {
  Load();
  At("status 1 F", "down F");
  Play("down F");
  EXPECT_EQ(InputStatus::StaringOff, GetInputStatus());
  Forget();
  Wait(500);  // five periods of its timer
  EXPECT_WIRE_NONE();
}

TEST_F(CallsFromInside, ATurnOfTheViewThatEndsAsTheDisplayIsAskedForPutsNothingDown) {
  auto* eye = Add<EyeConfigItem>("Eye", {}, {0.5, 0.5});
  eye->key_up = Key("W");
  Load();
  At("GetDisplayRect", "up W");
  Play("down W; wait 100");
  EXPECT_WIRE("8ms 1:SLOTRELEASE:7");  // the last step takes its 8 ms
}

}  // namespace
}  // namespace taviinputmanager
