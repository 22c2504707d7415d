// Where a fraction of the display is truncated to a pixel and where it is rounded: displays and points at which the two
// differ.
#include "keymap/tavikeymapmanager.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using namespace tavikeymapmanager;

class Pixels : public Story {
 protected:
  static void SetDisplay(int width, int height) {
    Host().window = {0, 0, width, height};
    Host().display = Host().touch = QRect(0, 0, width, height);
  }
  StaringConfigItem* AddStaring(const QString& range_mode) {
    auto* item = Add<StaringConfigItem>("Staring", "F", {0.5, 0.5});
    item->range_mode = range_mode;
    return item;
  }
};

// 0.1 * 1366 = 136.6: the range begins at 136. The centre is 683.
TEST_F(Pixels, ThePaddedRangeIsCutOff) {
  SetDisplay(1366, 768);
  AddStaring("Range_Have_Padding_To_Window");
  Load();
  Play("down F; rel 0,0; rel -547,0");
  EXPECT_WIRE("0ms 1:SLOTRELEASE:1", "0ms 1:SLOTPRESS:1:1:1:1:683:384", "0ms 1:SLOTPRESS:1:1:1:1:136:384");
  Play("rel -1,0");
  EXPECT_WIRE("0ms 1:SLOTRELEASE:1");
}

// 0.5 * 1366 = 683, half of which is 341: the range ends at 1024.
TEST_F(Pixels, HalfTheUserRangeIsCutOff) {
  SetDisplay(1366, 768);
  AddStaring("Range_User_Allow_Outside")->range_size = {0.5, 0.5};
  Load();
  Play("down F; rel 0,0; rel 341,0");
  EXPECT_EQ("0ms 1:SLOTPRESS:1:1:1:1:1024:384", TakeWire().last().toStdString());
  Play("rel 1,0");
  EXPECT_WIRE("0ms 1:SLOTRELEASE:1");
}

// 0.1249 * 1280 = 159.872; 0.2499 * 720 = 179.928
TEST_F(Pixels, APointToGiveUpACastIsCutOff) {
  auto* fire = Add<FireConfigItem>("Fire", "Mouse Left", {0.5, 0.5});
  fire->relative_mode = true;
  fire->cancel_swipe_steps = 1;
  AddStaring("Infinite");
  auto* cancel = Add<SpellCancelConfigItem>("SpellCancel", "G", {0.1249, 0.2499});
  cancel->cancel_immediately = true;
  cancel->cancel_delay_ms = -1;
  Load();
  Play("down F; mouse down left 5,5");
  Forget();
  Play("down G");
  EXPECT_WIRE("0ms 1:SLOTPRESS:3:3:1:1:159:179");
}

TEST_F(Pixels, TheCentreOfALeftStickIsCutOff) {
  auto* walk = Add<JoystickLeftWalkConfigItem>("LeftStickWalk", "", {0.1249, 0.2499});
  walk->key = Key("Pad Left_Stick");
  walk->walk_radius = 0.1;
  LoadJoystick();
  Load();
  Play("joy axis 0 1,0");
  EXPECT_EQ("0ms 1:SLOTPRESS:8:8:1:1:159:179", TakeWire().first().toStdString());
}

}  // namespace
}  // namespace taviinputmanager
