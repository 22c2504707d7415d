#include "core/input_status_manager.h"
#include "keymap/keywords.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/simulators/cast/spell_story.h"

// Aiming with the relative counts of a captured mouse.

namespace taviinputmanager {
namespace {

using tavikeymapmanager::SpellConfigItem;
using tavikeymapmanager::StaringConfigItem;
namespace keywords = tavikeymapmanager::keywords;

// View control on F, one pixel a count around the middle of the display. The button's square reaches 0.1 * 1280 = 128
// from (960, 540).
class SpellRelative : public SpellStory {
 protected:
  SpellConfigItem* AddAimed() { return AddSpell(keywords::kTriggerOnRelease, keywords::kLocationMouse); }
  void LoadStaring(int sensitivity_x = 100, int sensitivity_y = 100) {
    auto* staring = Add<StaringConfigItem>(keywords::kTypeStaring, "F", {0.5, 0.5});
    staring->sensitivity_x = sensitivity_x;
    staring->sensitivity_y = sensitivity_y;
    staring->range_size = {0.8, 0.8};
    Load();
    Play("down F; up F");
    Forget();
  }
};

TEST_F(SpellRelative, CountsAddUpFromTheButtonWithoutThrottle) {
  AddAimed();
  LoadStaring();
  Play("down Q");
  EXPECT_WIRE(At(0, 960, 540), At(0, 960, 540));
  Play("rel 10,-5");
  EXPECT_WIRE(At(0, 970, 535));
  Play("rel 10,0; rel -40,1");
  EXPECT_WIRE(At(0, 980, 535), At(0, 940, 536));
  Play("up Q");
  EXPECT_WIRE(Lift(0));
  Play("down Q; rel 1,1");  // from 0 again
  EXPECT_WIRE(At(0, 960, 540), At(0, 960, 540), At(0, 961, 541));
}

TEST_F(SpellRelative, TheFingerStaysInASquareOfTheWidthAndCountsGoOn) {
  AddAimed();
  LoadStaring();
  Play("down Q");
  Forget();
  Play("rel 128,-128");
  EXPECT_WIRE(At(0, 1088, 412));  // the corner: not a circle
  Play("rel 1,-1");
  EXPECT_WIRE(At(0, 1088, 412));
  Play("rel -2,2");
  EXPECT_WIRE(At(0, 1087, 413));
  Play("rel -1000,1000");
  EXPECT_WIRE(At(0, 832, 668));
}

TEST_F(SpellRelative, TheViewSensitivityOfEachAxisSteersThem) {
  AddAimed();
  LoadStaring(50, 25);
  Play("down Q");
  Forget();
  Play("rel 5,-10");  // 2.5 rounds to 3, -2.5 to -2
  EXPECT_WIRE(At(0, 963, 538));
  SetHandyStaringSensitivity(2.0, 1.0);  // x: 200 per cent
  Play("rel 0,0");
  EXPECT_WIRE(At(0, 970, 538));
}

TEST_F(SpellRelative, OtherLocationsWithholdTheCounts) {
  for (const QString& location :
       {keywords::kLocationMousePosition, keywords::kLocationSwipehold, keywords::kLocationInnerSwipehold}) {
    SCOPED_TRACE(location.toStdString());
    AddSpell(keywords::kTriggerOnRelease, location);
    LoadStaring();
    Play("down Q");
    Forget();
    Play("rel 10,-5");
    EXPECT_WIRE_NONE();
    Play("up Q");
    Forget();
    Play("rel 10,-5");  // the view gets them again
    EXPECT_WIRE("0ms 1:SLOTPRESS:1:1:1:1:640:360");
  }
}

TEST_F(SpellRelative, TheViewFingerStaysWhereItWasUntilTheSpellEnds) {
  AddAimed();
  LoadStaring();
  Play("rel 1,1; rel 10,10");
  EXPECT_WIRE("0ms 1:SLOTPRESS:1:1:1:1:640:360", "0ms 1:SLOTPRESS:1:1:1:1:650:370");
  Play("down Q; rel 30,0; up Q");
  EXPECT_WIRE(At(0, 960, 540), At(0, 960, 540), At(0, 990, 540), Lift(0));
  Play("rel 1,0");
  EXPECT_WIRE("0ms 1:SLOTPRESS:1:1:1:1:651:370");
}

TEST_F(SpellRelative, TriggersThatDoNotAimWithholdTheCounts) {
  AddSpell(keywords::kTriggerImmediate, keywords::kLocationMouse);
  AddSpell(keywords::kTriggerOnPress, keywords::kLocationMousePosition, "E");
  LoadStaring();
  Play("down Q");
  Forget();
  Play("rel 10,-5; up Q");
  EXPECT_WIRE(Lift(0));
  Play("down E; rel 10,-5");
  EXPECT_WIRE_NONE();
}

TEST_F(SpellRelative, ObservingWithholdsThemToo) {
  AddAimed();
  LoadStaring();
  Play("down Q");
  Forget();
  InputStatusManager::GetInstance()->SetStatus(InputStatus::Observing, "F");
  Play("rel 10,-5");
  EXPECT_WIRE_NONE();
}

TEST_F(SpellRelative, TheFirstRealMovementJumpsOnce) {
  SpellConfigItem* item = AddAimed();
  item->offset_enabled = true;
  item->offset_threshold = 0.01;  // 7.2 pixels
  item->offset_length = 0.05;     // 36 pixels
  LoadStaring();
  Play("down Q");
  Forget();
  Play("rel 3,4");  // 5 long
  EXPECT_WIRE(At(0, 963, 544));
  Play("rel 3,4");  // (6, 8), 10 long: 36 / 10 of it is (21.6, 28.8), rounded
  EXPECT_WIRE(At(0, 960 + 22 + 6, 540 + 29 + 8));
  Play("rel -20,0");  // the offset stays as it is
  EXPECT_WIRE(At(0, 960 + 22 - 14, 540 + 29 + 8));
  Play("rel 300,0");  // and the square does not move with it
  EXPECT_WIRE(At(0, 1088, 577));
  Play("up Q; down Q");
  Forget();
  Play("rel -10,0");  // at the next press it is applied again
  EXPECT_WIRE(At(0, 960 - 36 - 10, 540));
}

TEST_F(SpellRelative, TheThresholdItselfIsAMovementAndScaled) {
  SpellConfigItem* item = AddAimed();
  item->offset_enabled = true;
  item->offset_threshold = 0.0125;  // 9 pixels
  item->offset_length = 0.05;
  LoadStaring(50, 50);
  Play("down Q");
  Forget();
  Play("rel 17,0");  // 8.5 pixels
  EXPECT_WIRE(At(0, 969, 540));
  Play("rel 1,0");  // 9 pixels; the length of the jump depends on no sensitivity
  EXPECT_WIRE(At(0, 960 + 36 + 9, 540));
}

TEST_F(SpellRelative, WithoutItsSwitchThereIsNoJump) {
  SpellConfigItem* item = AddAimed();
  item->offset_threshold = 0.0125;
  item->offset_length = 0.05;
  LoadStaring();
  Play("down Q");
  Forget();
  Play("rel 20,0");
  EXPECT_WIRE(At(0, 980, 540));
}

TEST_F(SpellRelative, ThePortraitSquareIsNarrow) {
  AddAimed();
  LoadStaring();
  Host().display = QRect(0, 0, 720, 1280);
  Play("down Q");  // the button at (540, 960), the square 72 from it
  Forget();
  Play("rel 100,-100");
  EXPECT_WIRE(At(0, 612, 888));
}

}  // namespace
}  // namespace taviinputmanager
