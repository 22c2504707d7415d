#include "keymap/keywords.h"
#include "simulators/cast/spell_event_simulator.h"
#include "tests/simulators/cast/spell_story.h"

// Aiming with a gamepad's right stick, with spells of the gamepad keymap.

namespace taviinputmanager {
namespace {

using tavikeymapmanager::SpellConfigItem;
namespace keywords = tavikeymapmanager::keywords;

// The button's circle has a radius of 0.1 * 1280 = 128, and a step is an eighth of it: 16.
class SpellStick : public SpellStory {
 protected:
  SpellConfigItem* AddAimed(const QString& trigger = keywords::kTriggerOnRelease) {
    return AddSpell(trigger, keywords::kLocationMouse, "Pad A");
  }
  void LoadBoth() {
    LoadJoystick();
    Load();
    PointTo(740, 360);
  }
};

TEST_F(SpellStick, ThePressIsOnTheButtonWhateverThePointerDoes) {
  SpellConfigItem* item = AddAimed();
  item->press_hold_ms = 50;
  item->swipe_steps = 4;
  LoadBoth();
  Play("joy down A");
  EXPECT_WIRE(At(0, 960, 540));
  Play("wait 100");
  EXPECT_WIRE_NONE();
  Play("joy up A");
  EXPECT_WIRE(Lift(100));
}

TEST_F(SpellStick, TheFingerSlidesInEighthsOfTheRadius) {
  AddAimed();
  LoadBoth();
  Play("joy down A");
  Forget();
  Play("joy axis 1 1,0");
  EXPECT_WIRE(At(0, 976, 540), At(8, 992, 540), At(16, 1008, 540), At(24, 1024, 540), At(32, 1040, 540),
              At(40, 1056, 540), At(48, 1072, 540), At(56, 1088, 540));
  Play("joy axis 1 0.8,0");  // 102.4, cut off: 26 back, one step on the way
  EXPECT_WIRE(At(56, 1072, 540), At(64, 1062, 540));
}

// 1280 * 0.0047 = 6.016 pixels are 6; steps of 0.752: 0.752, 1.504, 2.256, 3.008, 3.76, 4.512, 5.264, all cut off.
TEST_F(SpellStick, StepsMayBeShorterThanAPixel) {
  AddAimed()->swipe_radius = 0.0047;
  LoadBoth();
  Play("joy down A");
  Forget();
  Play("joy axis 1 1,0");
  EXPECT_WIRE(At(0, 960, 540), At(8, 961, 540), At(16, 962, 540), At(24, 963, 540), At(32, 963, 540), At(40, 964, 540),
              At(48, 965, 540), At(56, 966, 540));
}

TEST_F(SpellStick, AWayOfOneStepIsAJump) {
  AddAimed();
  LoadBoth();
  Play("joy down A");
  Forget();
  Play("joy axis 1 0.125,0");  // 16 is not beyond 16
  EXPECT_WIRE(At(0, 976, 540));
  Play("joy axis 1 0.125,0.133");  // 17.02: one step on the way
  EXPECT_WIRE(At(0, 976, 556), At(8, 976, 557));
}

TEST_F(SpellStick, UpIsUpAndStepsAreCutOff) {
  AddAimed();
  LoadBoth();
  Play("joy down A");
  Forget();
  Play("joy axis 1 0.6,-0.8");
  // To (76.8, -102.4), cut off: (76, -102), which is 127.2 long. Of each 16, 9.56 go right and 12.83 up:
  // 9.6 19.1 28.7 38.2 47.8 57.4 66.9 and 12.8 25.7 38.5 51.3 64.2 77.0 (76.98) 89.8
  EXPECT_WIRE(At(0, 969, 528), At(8, 979, 515), At(16, 988, 502), At(24, 998, 489), At(32, 1007, 476),
              At(40, 1017, 464), At(48, 1026, 451), At(56, 1036, 438));
}

TEST_F(SpellStick, AStickAtRestBringsTheFingerBack) {
  AddAimed();
  LoadBoth();
  Play("joy down A; joy axis 1 0,0.25");  // 32 down
  EXPECT_WIRE(At(0, 960, 540), At(0, 960, 556), At(8, 960, 572));
  Play("joy axis 1 0,0");
  EXPECT_WIRE(At(8, 960, 556), At(16, 960, 540));
}

TEST_F(SpellStick, BothAxesCountInWidths) {
  AddAimed();
  LoadBoth();
  Host().display = QRect(0, 0, 720, 1280);  // the button at (540, 960), the radius 72, a step 9
  Play("joy down A");
  Forget();
  Play("joy axis 1 0,0.25");  // 18
  EXPECT_WIRE(At(0, 540, 969), At(8, 540, 978));
}

TEST_F(SpellStick, WithoutARadiusTheFingerStays) {
  AddAimed()->swipe_radius = 0;
  LoadBoth();
  Play("joy down A");
  Forget();
  Play("joy axis 1 1,1");
  EXPECT_WIRE(At(0, 960, 540));
}

TEST_F(SpellStick, ARadiusOfNextToNothingDoesNotBlockForEver) {
  SpellConfigItem* item = AddAimed();
  item->swipe_radius = 1e-9;
  LoadBoth();
  Play("joy down A");
  Host().display = QRect(0, 0, 640, 720);  // moves the button
  Forget();
  Play("joy axis 1 1,1");
  EXPECT_WIRE(At(0, 480, 540));
}

TEST_F(SpellStick, AMirroredRadiusGoesTheOtherWayAtOnce) {
  AddAimed()->swipe_radius = -0.1;
  LoadBoth();
  Play("joy down A");
  Forget();
  Play("joy axis 1 1,0");
  EXPECT_WIRE(At(0, 832, 540));
}

TEST_F(SpellStick, OnNextTogglesWithItsButton) {
  AddAimed(keywords::kTriggerOnNext);
  LoadBoth();
  Play("joy down A; joy up A");
  EXPECT_WIRE(At(0, 960, 540));
  Play("joy axis 1 0.125,0");
  EXPECT_WIRE(At(0, 976, 540));
  Play("joy down A");
  EXPECT_WIRE(Lift(0));
}

TEST_F(SpellStick, TriggersThatDoNotAimWithholdTheStick) {
  AddAimed(keywords::kTriggerImmediate);
  LoadBoth();
  Play("joy down A");
  EXPECT_WIRE(At(0, 960, 540));
  Play("joy axis 1 1,0");
  EXPECT_WIRE_NONE();
}

TEST_F(SpellStick, OnPressThatStaysInForceWithholdsItToo) {
  AddAimed(keywords::kTriggerOnPress)->touch_location = keywords::kLocationMousePosition;
  LoadBoth();
  Play("joy down A; joy axis 1 1,0");
  EXPECT_WIRE_NONE();
  EXPECT_TRUE(SpellEventSimulator::GetInstance()->IsSpellActive());
}

TEST_F(SpellStick, ASpellOfTheKeyboardDoesNotListenToTheStick) {
  AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMouse);
  Load();
  LoadJoystick();
  PointTo(740, 360);
  Play("down Q");
  Forget();
  Play("joy axis 1 1,0");
  EXPECT_WIRE_NONE();
}

TEST_F(SpellStick, ASpellOfTheGamepadDoesNotListenToTheWalk) {
  AddSpell(keywords::kTriggerOnRelease, keywords::kLocationSwipehold, "Pad A");
  LoadJoystick();
  AddWalk();
  Load();
  Play("joy down A");
  EXPECT_WIRE(At(0, 960, 540));
  Play("down W; wait 10");
  EXPECT_WIRE("0ms 1:SLOTPRESS:2:2:1:1:256:360", "10ms 1:SLOTPRESS:2:2:1:1:256:232");
}

TEST_F(SpellStick, OnPressOfTheGamepadIsNotFiredByTheWalk) {
  AddSpell(keywords::kTriggerOnPress, keywords::kLocationSwipehold, "Pad A");
  LoadJoystick();
  Load();
  Play("joy down A; joy up A");
  EXPECT_WIRE(At(0, 960, 540));
  EXPECT_TRUE(SpellEventSimulator::GetInstance()->IsSpellActive());
  Play("joy down A");  // the contact again; the active item stays
  EXPECT_WIRE(At(0, 960, 540));
}

TEST_F(SpellStick, OnPressOfTheGamepadGoesByThePointerAndStopsTheStick) {
  AddAimed(keywords::kTriggerOnPress)->stop_walk_after_cast = true;
  LoadBoth();
  Play("joy down A");
  EXPECT_WIRE(At(0, 960, 540), At(0, 980, 540), Lift(0), "0ms 1:SLOTRELEASE:8");
}

TEST_F(SpellStick, ASpellOfTheGamepadDoesNotListenToRelativeCounts) {
  AddAimed();
  LoadJoystick();
  Add<tavikeymapmanager::StaringConfigItem>(keywords::kTypeStaring, "F", {0.5, 0.5});
  Load();
  Play("down F; joy down A");
  Forget();
  Play("rel 10,10");
  EXPECT_WIRE_NONE();
}

}  // namespace
}  // namespace taviinputmanager
