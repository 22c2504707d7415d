#include "keymap/tavikeymapmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigItem;

class Tap : public Story {};

TEST_F(Tap, HoldsAFingerForAsLongAsItsKey) {
  Add<ConfigItem>("Click", "W", {0.25, 0.5});
  Load();
  // 1280 * 0.25 = 320, 720 * 0.5 = 360; the first slot of the pool is 11.
  Play("down W; wait 40; up W");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360", "40ms 1:SLOTRELEASE:11");
}

TEST_F(Tap, GivesEachPointAFingerOfItsOwn) {
  Add<ConfigItem>("Click", "W", {0.25, 0.5});
  Add<ConfigItem>("Click", "E", {0.5, 0.5});
  Load();
  Play("down W; down E; up W; up E");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360", "0ms 1:SLOTPRESS:12:12:1:1:640:360", "0ms 1:SLOTRELEASE:11",
              "0ms 1:SLOTRELEASE:12");
}

TEST_F(Tap, TwoKeysOnOnePointShareAFinger) {
  Add<ConfigItem>("Click", "W", {0.25, 0.5});
  Add<ConfigItem>("Click", "E", {0.25, 0.5});
  Load();
  Play("down W; down E; up W; up E");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360", "0ms 1:SLOTPRESS:11:11:1:1:320:360", "0ms 1:SLOTRELEASE:11",
              "0ms 1:SLOTRELEASE:11");
}

TEST_F(Tap, AnEighthFingerIsLost) {
  const char* const keys[] = {"1", "2", "3", "4", "5", "6", "7", "8"};
  for (int i = 0; i < 8; ++i) Add<ConfigItem>("Click", keys[i], {0.1 + 0.1 * i, 0.5});
  Load();
  Play("down 1; down 2; down 3; down 4; down 5; down 6; down 7");
  Forget();
  Play("down 8; up 8");
  EXPECT_WIRE_NONE();
  Play("up 7; down 8");  // the point of 7 is overwritten: its slot is the free one
  // 1280 * 0.8 = 1024
  EXPECT_WIRE("0ms 1:SLOTRELEASE:17", "0ms 1:SLOTPRESS:17:17:1:1:1024:360");
}

TEST_F(Tap, TheTopLeftCornerIsAPointLikeAnyOther) {
  Add<ConfigItem>("Click", "W", {0, 0});
  Load();
  Play("down W; up W");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:0:0", "0ms 1:SLOTRELEASE:11");
}

TEST_F(Tap, AStrayReleaseOfAnUnknownPointSendsNothing) {
  Add<ConfigItem>("Click", "W", {0.25, 0.5});
  Load();
  Play("up W");
  EXPECT_WIRE_NONE();
}

TEST_F(Tap, AReleaseAfterTheReleaseStillKnowsThePoint) {
  Add<ConfigItem>("Click", "W", {0.25, 0.5});
  Load();
  Play("down W; up W; up W");
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:320:360", "0ms 1:SLOTRELEASE:11", "0ms 1:SLOTRELEASE:11");
}

}  // namespace
}  // namespace taviinputmanager
