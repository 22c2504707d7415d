// A walk on displays and windows of other shapes. The press on the centre is a fraction of the touch surface; every
// other position is in pixels of the display and is converted with the window's size.
#include "simulators/walk/swipehold_async_worker.h"
#include "tests/simulators/walk/swipehold_story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::SwipeholdConfigItem;

class SwipeholdGeometry : public SwipeholdStory {
 protected:
  // The press on the centre, one of two steps, and the target.
  void AddShortWalk() { AddWalk()->first_press_steps = 2; }
};

// Stick (256, 360), radius 128, half way 64; through a rotation of 90, (x, y) becomes (720 - y, x).
TEST_F(SwipeholdGeometry, Rotation90) {
  Host().touch = QRect(0, 0, 720, 1280);
  Host().rotation = 90;
  AddShortWalk();
  Load();
  Play("down W; wait 48");
  EXPECT_WIRE(At(0, 360, 256), At(32, 424, 256), At(48, 488, 256));
}

// Through a rotation of 270, (x, y) becomes (y, 1280 - x).
TEST_F(SwipeholdGeometry, Rotation270) {
  Host().touch = QRect(0, 0, 720, 1280);
  Host().rotation = 270;
  AddShortWalk();
  Load();
  Play("down W; wait 48");
  EXPECT_WIRE(At(0, 360, 1024), At(32, 296, 1024), At(48, 232, 1024));
}

// Stick (144, 640), radius 72.
TEST_F(SwipeholdGeometry, Portrait) {
  Host().window = {0, 0, 720, 1280};
  Host().display = Host().touch = QRect(0, 0, 720, 1280);
  AddShortWalk();
  Load();
  Play("down W; wait 48");
  EXPECT_WIRE(At(0, 144, 640), At(32, 144, 604), At(48, 144, 568));
}

// The stick is at (256, 360) of the display with a radius of 128. The window is half as large, which doubles positions
// on their way to the touch surface, and the press on the centre alone is spared.
TEST_F(SwipeholdGeometry, AWindowOfAnotherSizeThanItsDisplay) {
  Host().window = {0, 0, 640, 360};
  AddShortWalk();
  Load();
  Play("down W; wait 48");
  EXPECT_WIRE(At(0, 256, 360), At(32, 512, 592), At(48, 512, 464));
}

// A display of half the size in a window of 1280 x 720: stick (128, 180), radius 64. The touch surface is 4 times as
// wide and as high as the window.
TEST_F(SwipeholdGeometry, ADisplayAndATouchSurfaceOfTheirOwn) {
  Host().display = QRect(0, 0, 640, 360);
  Host().touch = QRect(0, 0, 5120, 2880);
  AddShortWalk();
  Load();
  Play("down D; wait 48");
  EXPECT_WIRE(At(0, 1024, 1440), At(32, 640, 720), At(48, 768, 720));
}

// A window that is rotated during a walk: the stick stays where the walk began, but its conversion to the touch surface
// changes.
TEST_F(SwipeholdGeometry, AWindowThatTurnsDuringAWalk) {
  AddShortWalk();
  Load();
  Play("down D; wait 32");
  EXPECT_WIRE(At(0, 256, 360), At(32, 320, 360));
  Host().window = {0, 0, 720, 1280};
  Play("wait 16");  // 384 / 720 * 1280 = 682.7, 360 / 1280 * 720 = 202.5
  EXPECT_WIRE(At(48, 683, 203));
}

// The state machine continues; positions that cannot be converted are not sent.
TEST_F(SwipeholdGeometry, AWindowWithoutSizeSwallowsPositions) {
  AddShortWalk();
  Load();
  Play("down D");
  Forget();
  Host().window = {0, 0, 0, 0};
  Play("wait 500; up D");
  EXPECT_WIRE(Up(500));
}

TEST_F(SwipeholdGeometry, ARadiusBeyondAllPixelsIsNotSent) {
  SwipeholdConfigItem* item = AddWalk();
  item->radius = 1e12;
  item->compensate = true;
  item->curve_x = item->curve_y = "X2";
  item->factor_x = item->factor_y = 1e300;
  Load();
  Play("down D; down W; wait 500; down S; wait 500; up S; up W; up D");
  EXPECT_EQ(Up(1000), TakeWire().last());
}

}  // namespace
}  // namespace taviinputmanager
