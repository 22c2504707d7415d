// The first slide of a walk, from the stick's centre to its target.
#include "tests/simulators/walk/swipehold_story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::SwipeholdConfigItem;

class SwipeholdSlide : public SwipeholdStory {};

// 128 pixels in 6 steps: -21.3, so -21 each.
TEST_F(SwipeholdSlide, TakesItsStepsAndThenTheExactTarget) {
  AddWalk();
  Load();
  Play("down W; wait 31");
  EXPECT_WIRE(At(0, 256, 360));
  Play("wait 1");
  EXPECT_WIRE(At(32, 256, 339));
  Play("wait 15");
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE(At(48, 256, 318));
  Play("wait 63");  // 111 ms
  EXPECT_WIRE(At(64, 256, 297), At(80, 256, 276), At(96, 256, 255));
  Play("wait 1");
  EXPECT_WIRE(At(112, 256, 232));
  Play("wait 1000");
  EXPECT_WIRE_NONE();
  Play("up W");
  EXPECT_WIRE(Up(1112));
}

const struct {
  const char* key;
  QPoint first_step;
  QPoint target;
} kDirections[] = {
    {"W", {256, 339}, {256, 232}},
    {"A", {235, 360}, {128, 360}},
    {"S", {256, 381}, {256, 488}},
    {"D", {277, 360}, {384, 360}},
};

TEST_F(SwipeholdSlide, GoesWhereItsKeyPoints) {
  AddWalk();
  for (const auto& row : kDirections) {
    Load();
    AddWalk();  // for the next load
    Play(QStringLiteral("down %1; wait 112; up %1").arg(row.key));
    const QStringList lines = TakeWire();
    ASSERT_EQ(8, lines.size()) << row.key;
    EXPECT_EQ(At(32, row.first_step.x(), row.first_step.y()), lines[1]) << row.key;
    EXPECT_EQ(At(112, row.target.x(), row.target.y()), lines[6]) << row.key;
  }
}

// 91 / 6 = 15.2 on each axis.
TEST_F(SwipeholdSlide, TwoKeysMakeADiagonal) {
  AddWalk();
  Load();
  Play("down W; down D; wait 112");
  EXPECT_WIRE(At(0, 256, 360), At(32, 271, 345), At(48, 286, 330), At(64, 301, 315), At(80, 316, 300), At(96, 331, 285),
              At(112, 347, 269));
}

// 128 / 5 = 25.6, so 26 each.
TEST_F(SwipeholdSlide, OddSteps) {
  AddWalk()->first_press_steps = 5;
  Load();
  Play("down D; wait 96");
  EXPECT_WIRE(At(0, 256, 360), At(32, 282, 360), At(48, 308, 360), At(64, 334, 360), At(80, 360, 360),
              At(96, 384, 360));
}

TEST_F(SwipeholdSlide, InSmallStepsTheIdleAxisTrembles) {
  AddWalk()->variable_mode = "Small_Variable";
  Load();
  Play("down D; wait 112");
  EXPECT_WIRE(At(0, 256, 360), At(32, 277, 361), At(48, 298, 360), At(64, 319, 361), At(80, 340, 360), At(96, 361, 361),
              At(112, 384, 360));
}

// 2 head steps of round(21 / 5) = 4, one of 128 - 3 * 21 - 2 * 4 = 57, then 21 each.
TEST_F(SwipeholdSlide, InBigStepsItStartsSlowlyAndThenLeaps) {
  AddWalk()->variable_mode = "Big_Variable";
  Load();
  Play("down W; wait 112");
  EXPECT_WIRE(At(0, 256, 360), At(32, 256, 356), At(48, 256, 352), At(64, 256, 295), At(80, 256, 274), At(96, 256, 253),
              At(112, 256, 232));
}

// 2 head steps of round(26 / 5) = 5, one of 128 - 2 * 26 - 2 * 5 = 66.
TEST_F(SwipeholdSlide, OddBigSteps) {
  SwipeholdConfigItem* item = AddWalk();
  item->variable_mode = "Big_Variable";
  item->first_press_steps = 5;
  Load();
  Play("down D; wait 96");
  EXPECT_WIRE(At(0, 256, 360), At(32, 261, 360), At(48, 266, 360), At(64, 332, 360), At(80, 358, 360),
              At(96, 384, 360));
}

// A radius of 2.56, so 3 pixels, in 8 steps: 3 / 8 rounds to 0, and the one big step goes backwards.
TEST_F(SwipeholdSlide, ShortBigStepsGoBackwards) {
  SwipeholdConfigItem* item = AddWalk();
  item->variable_mode = "Big_Variable";
  item->first_press_steps = 8;
  item->radius = 0.002;
  Load();
  Play("down D; wait 144");
  EXPECT_WIRE(At(0, 256, 360), At(32, 256, 360), At(48, 256, 360), At(64, 256, 360), At(80, 253, 360), At(96, 253, 360),
              At(112, 253, 360), At(128, 253, 360), At(144, 259, 360));
}

TEST_F(SwipeholdSlide, OneStepOrLessIsAJump) {
  for (const int steps : {1, 0, -5}) {
    AddWalk()->first_press_steps = steps;
    Load();
    Play("down D; wait 31");
    EXPECT_WIRE(At(0, 256, 360));
    Play("wait 1");
    EXPECT_WIRE(At(32, 384, 360));
    Play("up D");
  }
}

TEST_F(SwipeholdSlide, TwoStepsAreOneAndTheJump) {
  AddWalk()->first_press_steps = 2;
  Load();
  Play("down D; wait 48");
  EXPECT_WIRE(At(0, 256, 360), At(32, 320, 360), At(48, 384, 360));
}

TEST_F(SwipeholdSlide, ItsTimesAreTheItems) {
  SwipeholdConfigItem* item = AddWalk();
  item->first_press_delay_ms = 100;
  item->first_press_step_ms = 5;
  item->first_press_steps = 3;  // 42.7
  Load();
  Play("down D; wait 99");
  EXPECT_WIRE(At(0, 256, 360));
  Play("wait 11");
  EXPECT_WIRE(At(100, 299, 360), At(105, 342, 360), At(110, 384, 360));
}

TEST_F(SwipeholdSlide, ANegativeDelayIsNone) {
  SwipeholdConfigItem* item = AddWalk();
  item->first_press_delay_ms = -1;
  item->first_press_steps = 1;
  Load();
  Play("down D; wait 1");
  EXPECT_WIRE(At(0, 256, 360), At(0, 384, 360));
}

TEST_F(SwipeholdSlide, WithoutTheCentreItsFirstStepIsThePress) {
  AddWalk()->no_center_press = true;
  Load();
  Play("down W; wait 31");
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE(At(32, 256, 339));
}

// At 70 ms the finger is at (256, 297) with 3 steps left: 91 / 3 = 30.3, and (269 - 297) / 3 = -9.3.
TEST_F(SwipeholdSlide, AKeyOnTheWayTurnsIt) {
  AddWalk();
  Load();
  Play("down W; wait 70");
  Forget();
  Play("down D; wait 42");
  EXPECT_WIRE(At(80, 286, 288), At(96, 316, 279), At(112, 347, 269));
}

// At 40 ms the finger is at (271, 345) with 5 steps left: 113 / 5 = 22.6, 15 / 5 = 3.
TEST_F(SwipeholdSlide, AReleaseOnTheWayTurnsItToo) {
  AddWalk();
  Load();
  Play("down W; down D; wait 40");
  Forget();
  Play("up W; wait 72");
  EXPECT_WIRE(At(48, 294, 348), At(64, 317, 351), At(80, 340, 354), At(96, 363, 357), At(112, 384, 360));
}

// Opposite keys have the centre as their target, which is where the slide began: the next tick ends it.
TEST_F(SwipeholdSlide, AnOppositeKeyEndsItOnTheCentre) {
  AddWalk();
  Load();
  Play("down W; wait 40");
  Forget();
  Play("down S; wait 8");
  EXPECT_WIRE(At(48, 256, 360));
  Play("wait 500");
  EXPECT_WIRE_NONE();
}

TEST_F(SwipeholdSlide, WithoutKeysItsNextTickLiftsTheFinger) {
  AddWalk();
  Load();
  Play("down W; wait 40; up W; wait 7");
  EXPECT_WIRE(At(0, 256, 360), At(32, 256, 339));
  Play("wait 1");
  EXPECT_WIRE(Up(48));
  Play("wait 500");
  EXPECT_WIRE_NONE();
}

TEST_F(SwipeholdSlide, WithoutKeysItsNextTickMayRestOnTheCentre) {
  AddWalk()->hold_center_ms = 50;
  Load();
  Play("down W; wait 40; up W; wait 57");
  EXPECT_WIRE(At(0, 256, 360), At(32, 256, 339), At(48, 256, 360));
  Play("wait 1");
  EXPECT_WIRE(Up(98));
}

TEST_F(SwipeholdSlide, ATapNeverLeavesTheCentre) {
  AddWalk();
  Load();
  Play("down W; wait 10; up W; wait 21");
  EXPECT_WIRE(At(0, 256, 360));
  Play("wait 1");
  EXPECT_WIRE(Up(32));
}

TEST_F(SwipeholdSlide, LetGoAndPressedAgainItBeginsAnew) {
  AddWalk();
  Load();
  Play("down W; wait 40; up W; wait 4");
  Forget();
  Play("down D; wait 32");
  EXPECT_WIRE(At(44, 256, 360), At(76, 277, 360));
}

TEST_F(SwipeholdSlide, AClickJumps) {
  AddWalk()->press_mode = "Click";
  Load();
  Play("down W; wait 31");
  EXPECT_WIRE(At(0, 256, 360));
  Play("wait 1");
  EXPECT_WIRE(At(32, 256, 232));
  Play("wait 500");
  EXPECT_WIRE_NONE();
}

TEST_F(SwipeholdSlide, AClickJumpsToTheKeysOfThatMoment) {
  AddWalk()->press_mode = "Click";
  Load();
  Play("down W; wait 10; down D; wait 22");
  EXPECT_WIRE(At(0, 256, 360), At(32, 347, 269));
}

TEST_F(SwipeholdSlide, AClickLetGoInTimeMakesNoMove) {
  AddWalk()->press_mode = "Click";
  Load();
  Play("down W; wait 10; up W; wait 21");
  EXPECT_WIRE(At(0, 256, 360));
  Play("wait 1");
  EXPECT_WIRE(Up(32));
}

// The item that the walk began with determines whether it is a click: the other's is at (768, 360).
TEST_F(SwipeholdSlide, AKeyOfAnotherItemMakesNoClickOfItNorASlideOfAClick) {
  for (const bool is_click : {false, true}) {
    AddWalk()->press_mode = is_click ? "Move" : "Click";
    auto* first = Add<SwipeholdConfigItem>("Swipehold", {}, {0.6, 0.5});
    SetKeys(first, "I", "J", "K", "L");
    first->press_mode = is_click ? "Click" : "Move";
    Load();
    Play("down I; wait 10; down D; wait 32");
    if (is_click) {
      EXPECT_WIRE(At(0, 768, 360), At(32, 859, 269));
    } else {
      EXPECT_WIRE(At(0, 768, 360), At(32, 783, 345));  // 91 / 6 = 15.2
    }
    Play("up D; up I; wait 500");
  }
}

TEST_F(SwipeholdSlide, AnyNumberOfStepsMayBeAskedFor) {
  AddWalk()->first_press_steps = 2000000000;
  Load();
  Play("down D; wait 48; up D; wait 16");
  EXPECT_WIRE(At(0, 256, 360), At(32, 256, 360), At(48, 256, 360), Up(64));
}

}  // namespace
}  // namespace taviinputmanager
