// The differences for Android.
#include <algorithm>
#include <linux/input.h>

#include "guest/translation/device_description.h"
#include "tests/guest/played_lines.h"

namespace taviguest {
namespace {

GuestOptions ForAndroid() {
  GuestOptions options;
  options.system = GuestSystem::kAndroid;
  return options;
}

GuestOptions WithKeyboard() {
  GuestOptions options = ForAndroid();
  options.has_full_keyboard = true;
  return options;
}

class AndroidLines : public PlayedLines {
 protected:
  AndroidLines() : PlayedLines(ForAndroid()) {}

  Texts Press(int slot) {
    const std::string number = std::to_string(slot);
    return Play("SLOTPRESS:" + number + ":" + number + ":1:1:10:20");
  }
};

// From the middle, 640,360, which is the initial position of Android's cursor.
TEST_F(AndroidLines, TheMouseIsRelative) {
  EXPECT_EQ(Play("MOUSEMOVE_REL:650:340"),
            (Texts{"pointer EV_REL REL_X 10", "pointer EV_REL REL_Y -20", "pointer EV_SYN SYN_REPORT 0"}));
  EXPECT_EQ(Play("MOUSEMOVE_REL:650:341"), (Texts{"pointer EV_REL REL_Y 1", "pointer EV_SYN SYN_REPORT 0"}));
  EXPECT_EQ(Play("MOUSEMOVE_REL:650:341"), Texts{});
  EXPECT_EQ(Play("MOUSEMOVE_REL:2000:341").at(0), "pointer EV_REL REL_X 629");  // to the edge, 1279
}

TEST_F(AndroidLines, TheWheelTurnsWhereTheMouseWent) {
  EXPECT_EQ(Play("WHEEL:640:361:100:0"),
            (Texts{"pointer EV_REL REL_Y 1", "pointer EV_SYN SYN_REPORT 0", "pointer EV_REL REL_WHEEL_HI_RES 120",
                   "pointer EV_REL REL_WHEEL 1", "pointer EV_SYN SYN_REPORT 0"}));
}

TEST(AndroidDevices, TheMouseHasNoPlace) {
  const DeviceDescription pointer = DescribeDevice(KernelDevice::kPointer, ForAndroid());
  EXPECT_EQ(pointer.relative_axes, (std::vector<int>{REL_X, REL_Y, REL_WHEEL, REL_WHEEL_HI_RES}));
  EXPECT_TRUE(pointer.absolute_axes.empty());
}

TEST_F(AndroidLines, TheSeventeenthFingerIsLeftOutAndToldOnce) {
  for (int slot = 0; slot < 16; ++slot) EXPECT_FALSE(Press(slot).empty());
  EXPECT_EQ(ProblemOf("SLOTPRESS:20:20:1:1:1:1"), "more than 16 fingers at once are not supported; ignored");
  EXPECT_EQ(Press(20), Texts{});  // it moves
  EXPECT_FALSE(Press(3).empty());
  EXPECT_EQ(Play("SLOTRELEASE:20"), Texts{});
  EXPECT_EQ(ProblemOf("SLOTPRESS:20:20:1:1:1:1"), "more than 16 fingers at once are not supported; ignored");
}

TEST_F(AndroidLines, AFingerThatMovesWhenThereIsRoomComesDown) {
  for (int slot = 0; slot < 16; ++slot) Press(slot);
  ProblemOf("SLOTPRESS:20:20:1:1:1:1");
  Play("SLOTRELEASE:3");
  EXPECT_EQ(Press(20).at(1), "screen EV_ABS ABS_MT_TRACKING_ID 20");
}

TEST_F(AndroidLines, NoKeyTypesUnlessItIsAsked) {
  EXPECT_EQ(ProblemOf("KBDPR:30:1"), "there is no such key");
  EXPECT_EQ(ProblemOf("TEXT:a"), "no key types U+0061");
  EXPECT_EQ(Play("KBDPR:158:1").at(0), "keyboard EV_KEY KEY_BACK 1");
  EXPECT_EQ(Play("TEXT_CONTROL:ENTER").at(0), "keyboard EV_KEY KEY_ENTER 1");
  EXPECT_EQ(Play("TEXT:\n").at(0), "keyboard EV_KEY KEY_ENTER 1");
}

class AndroidKeyboardLines : public PlayedLines {
 protected:
  AndroidKeyboardLines() : PlayedLines(WithKeyboard()) {}
};

TEST_F(AndroidKeyboardLines, KeysTypeWhenItIsAsked) {
  EXPECT_EQ(Play("TEXT:a").at(0), "keyboard EV_KEY KEY_A 1");
  EXPECT_EQ(DescribeDevice(KernelDevice::kKeyboard, WithKeyboard()).keys.size(), 248u);
}

// On Linux all 26 slots are contacts.
TEST(LinuxLines, FingersAreAsManyAsSlots) {
  GuestTranslator translator{GuestOptions()};
  for (int slot = 0; slot < kSlotCount; ++slot) {
    const std::string number = std::to_string(slot);
    const std::string line = "SLOTPRESS:" + number + ":" + number + ":1:1:1:1";
    EXPECT_EQ(translator.Translate(ParseGuestLine(line)).problem, "");
  }
}

}  // namespace
}  // namespace taviguest
