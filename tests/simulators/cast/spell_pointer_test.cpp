#include "core/input_status_manager.h"
#include "keymap/keywords.h"
#include "tests/simulators/cast/spell_story.h"

// Aiming with the pointer, and the swipe to its target.

namespace taviinputmanager {
namespace {

using tavikeymapmanager::SpellConfigItem;
namespace keywords = tavikeymapmanager::keywords;

class SpellPointer : public SpellStory {
 protected:
  SpellConfigItem* AddAimed() { return AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMouse); }
  // With the character in the middle. On the ground the pointer is where it is seen, and half a display to the
  // right of the character, or above it, is 0.5 * 200 = 100 pixels away from the button, to the left or upwards.
  SpellConfigItem* AddProjected() {
    SpellConfigItem* item = AddAimed();
    item->character_rel_x = item->character_rel_y = 0.5;
    item->ground_reference = 1;
    item->ground_scale = 200;
    item->view_matrix = "1,0,0,0, 0,0,1,0, 0,0,0,0, 0,0,0,1";
    return item;
  }
};

TEST_F(SpellPointer, WithOneStepTheFingerJumpsAfterTheHold) {
  for (const int steps : {1, 0, -3}) {
    SCOPED_TRACE(steps);
    SpellConfigItem* item = AddAimed();
    item->press_hold_ms = 40;
    item->swipe_steps = steps;
    item->swipe_step_ms = 7;
    Load();
    PointTo(740, 360);
    Play("down Q");
    EXPECT_WIRE(At(0, 960, 540), At(40, 980, 540));
    Play("up Q");
    EXPECT_WIRE(Lift(40));
  }
}

TEST_F(SpellPointer, StepsAreRoundedPositionsOnTheStraightWay) {
  SpellConfigItem* item = AddAimed();
  item->swipe_steps = 3;
  item->swipe_step_ms = 4;
  Load();
  PointTo(690, 335);  // (50, -25) * 0.2 = (10, -5)
  Play("down Q");
  // 10 / 3 = 3.3, 20 / 3 = 6.7; -5 / 3 = -1.7, -10 / 3 = -3.3
  EXPECT_WIRE(At(0, 960, 540), At(0, 963, 538), At(4, 967, 537), At(8, 970, 535));
}

TEST_F(SpellPointer, TheCurveModeAimsAtThePointerItself) {
  AddAimed()->mode = keywords::kModeCurve;
  Load();
  PointTo(300, 200);
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540), At(0, 300, 200));
  PointTo(1200, 10);
  Play("wait 16");
  EXPECT_WIRE(At(16, 1200, 10));
}

TEST_F(SpellPointer, ACurvedSwipeBeginsWithStepsOfItsOwnInPlaceOfTheHold) {
  SpellConfigItem* item = AddAimed();
  item->mode = keywords::kModeCurve;
  item->curve_enabled = true;
  item->curve_steps = 3;
  item->curve_step_ms = 4;
  item->curve_step_length = 0.05;  // 36 pixels
  item->press_hold_ms = 100;
  item->swipe_steps = 2;
  item->swipe_step_ms = 6;
  Load();
  PointTo(960, 340);  // straight up by 200
  Play("down Q");
  // Two steps of 36, and then the swipe from the button: half of the way is 440.
  EXPECT_WIRE(At(0, 960, 540), At(0, 960, 504), At(4, 960, 468), At(8, 960, 440), At(14, 960, 340));
  Play("wait 16");
  EXPECT_WIRE(At(30, 960, 340));
}

TEST_F(SpellPointer, APreludeOfOneStepIsNone) {
  SpellConfigItem* item = AddAimed();
  item->mode = keywords::kModeCurve;
  item->curve_enabled = true;
  item->curve_steps = 1;
  item->curve_step_ms = 4;
  item->curve_step_length = 0.05;
  item->press_hold_ms = 100;
  Load();
  PointTo(960, 340);
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540), At(0, 960, 340));
}

TEST_F(SpellPointer, ThePreludeNeedsBothTheModeAndItsSwitch) {
  const struct {
    const char* name;
    QString mode;
    bool enabled;
    QPoint target;
  } rows[] = {
      {"curve, off", keywords::kModeCurve, false, {960, 340}},
      {"intelligent, on", keywords::kModeIntelligent, true, {1024, 536}},  // (320, -20) * 0.2
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    SpellConfigItem* item = AddAimed();
    item->mode = row.mode;
    item->curve_enabled = row.enabled;
    item->curve_steps = 3;
    item->curve_step_length = 0.05;
    item->press_hold_ms = 100;
    Load();
    PointTo(960, 340);
    Play("down Q");
    EXPECT_WIRE(At(0, 960, 540), At(100, row.target.x(), row.target.y()));
  }
}

TEST_F(SpellPointer, AViewOfTheGroundProjectsThePointer) {
  AddProjected();
  Load();
  PointTo(960, 360);
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540), At(0, 860, 540));
  PointTo(640, 180);
  Play("wait 16");
  EXPECT_WIRE(At(16, 960, 440));
}

TEST_F(SpellPointer, AMatrixOf15NumbersLeavesItToTheCircle) {
  AddProjected()->view_matrix = "1,0,0,0, 0,0,1,0, 0,0,0,0, 0,0,0";
  Load();
  PointTo(960, 360);
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540), At(0, 1024, 540));  // 320 * 0.2 = 64
}

TEST_F(SpellPointer, AProjectionToTheOriginLeavesItToTheCircle) {
  SpellConfigItem* item = AddProjected();
  item->rel_x = 0.078125;  // the button at (100, 0), just 100 from the origin
  item->rel_y = 0;
  Load();
  PointTo(960, 360);
  Play("down Q");
  EXPECT_WIRE(At(0, 100, 0), At(0, 164, 0));
}

TEST_F(SpellPointer, APointerOnTheCharacterHasNoProjection) {
  AddProjected()->circle_rel_x = 0.25;  // the circle is elsewhere: around 320
  Load();
  PointTo(640, 360);
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540), At(0, 1024, 540));
}

TEST_F(SpellPointer, TheCurveModeComesBeforeTheGround) {
  AddProjected()->mode = keywords::kModeCurve;
  Load();
  PointTo(960, 360);
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540), At(0, 960, 360));
}

TEST_F(SpellPointer, ATargetAtTheOriginIsAFingerThatIsUp) {
  AddAimed()->mode = keywords::kModeCurve;
  Load();
  PointTo(0, 0);
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540), Lift(0));
  PointTo(1, 0);
  Play("wait 16");
  EXPECT_WIRE(At(16, 1, 0));
}

TEST_F(SpellPointer, AnotherPressPointTakesTheButtonsPlace) {
  SpellConfigItem* item = AddAimed();
  item->alt_rel_x = 0.25;
  item->alt_rel_y = 0.25;
  Load();
  PointTo(740, 360);
  Play("down Q");
  EXPECT_WIRE(At(0, 320, 180), At(0, 340, 180));
}

TEST_F(SpellPointer, ACapturedMouseDoesNotAim) {
  AddAimed();
  Load();
  InputStatusManager::GetInstance()->SetStatus(InputStatus::Staring, "F");
  PointTo(740, 360);
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540), At(0, 960, 540));
  Play("wait 100");
  EXPECT_WIRE_NONE();
}

TEST_F(SpellPointer, FramesRestWhileTheMouseIsCaptured) {
  AddAimed();
  Load();
  PointTo(740, 360);
  Play("down Q");
  Forget();
  InputStatusManager::GetInstance()->SetStatus(InputStatus::Staring, "F");
  Play("wait 40");
  EXPECT_WIRE_NONE();
  InputStatusManager::GetInstance()->SetStatus(InputStatus::StaringOff, "F");
  Play("wait 8");  // the third frame
  EXPECT_WIRE(At(48, 980, 540));
}

TEST_F(SpellPointer, AnotherKeyEndsTheFramesOfAFinishedAim) {
  AddAimed();
  AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMouse, "E");
  Load();
  Play("down Q");
  InputStatusManager::GetInstance()->SetStatus(InputStatus::Staring, "F");
  Play("down E");  // starts no frames while the mouse is captured
  InputStatusManager::GetInstance()->SetStatus(InputStatus::StaringOff, "F");
  Forget();
  Play("wait 100");
  EXPECT_WIRE_NONE();
}

TEST_F(SpellPointer, ThePointerIsTakenRelativeToTheDisplay) {
  AddAimed();
  Load();
  Host().display = QRect(100, 50, 1280, 720);
  PointTo(840, 410);  // (740, 360) of the display
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540), At(0, 980, 540));
}

TEST_F(SpellPointer, ATurnedPortraitDisplayOfAnotherSize) {
  SpellConfigItem* item = AddAimed();
  item->rel_x = 0.25;
  item->rel_y = 0.375;
  Load();
  Host().window = {0, 0, 360, 640};
  Host().display = QRect(100, 50, 720, 1280);
  Host().touch = QRect(0, 0, 1280, 720);
  Host().rotation = 90;
  // The circle is around (360, 640) of the display; its radius of 0.5 * 1280 is mapped to 0.1 * 1280, so that a pixel
  // is 0.2 again. The pointer is 100 to the right: 20.
  PointTo(100 + 460, 50 + 640);
  Play("down Q");
  // The button (180, 480) goes out as a window position: half of the window's width, three quarters of its height.
  // Turned by 90 that is (0.25, 0.5) of the touch surface. 20 to the right: 200 / 360 * 720 = 400.
  EXPECT_WIRE(At(0, 320, 360), At(0, 320, 400));
  // Far to the right: the rim, at 128. 308 / 360 * 720 = 616.
  PointTo(100 + 5000, 50 + 640);
  Play("wait 16");
  EXPECT_WIRE(At(16, 320, 616));
}

TEST_F(SpellPointer, ALandscapeDisplayTwiceTheWindow) {
  AddAimed()->rel_x = 0.25;
  Load();
  Host().window = {0, 0, 1280, 720};
  Host().display = QRect(0, 0, 2560, 1440);
  // The button (640, 1080), the circle around (1280, 720) with a radius of 720, the button's of 144: 100 pixels are 20.
  PointTo(1380, 720);
  Play("down Q");
  EXPECT_WIRE(At(0, 640, 1080), At(0, 660, 1080));
}

TEST_F(SpellPointer, ADisplayWithoutSizeHasNoFinger) {
  AddProjected();
  Load();
  Host().display = QRect();
  PointTo(740, 360);
  Play("down Q; up Q");
  // Button and target are at the origin.
  EXPECT_WIRE(Lift(0), Lift(0), Lift(0));
}

TEST_F(SpellPointer, ACircleWithoutSizeHoldsTheButton) {
  AddAimed()->circle_size = 0;
  Load();
  PointTo(740, 360);
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540), At(0, 960, 540));
}

}  // namespace
}  // namespace taviinputmanager
