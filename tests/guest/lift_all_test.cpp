// When a front end or the guest ends, everything that is down is lifted.
#include "guest/translation/device_description.h"
#include "tests/guest/played_lines.h"

namespace taviguest {
namespace {

class LiftAll : public PlayedLines {
 protected:
  Texts Lift() { return TextsOf(translator_.LiftAll()); }
};

TEST_F(LiftAll, NothingIsDownAtFirst) { EXPECT_EQ(Lift(), Texts{}); }

TEST_F(LiftAll, LiftsEachDeviceOnce) {
  for (const char* line :
       {"SLOTPRESS:2:2:1:1:640:360", "SLOTPRESS:11:11:1:1:10:20", "KBDPR:30:1", "KBDPR:272:1", "LSTICKAXIS:-1000000:0",
        "LTRIGGERAXIS:1", "HATX:1", "GPDBUTTON:304:1", "TOUCHPADLIGHTTOUCH:640:360"}) {
    Play(line);
  }
  EXPECT_EQ(Lift(), (Texts{
                        "screen EV_ABS ABS_MT_SLOT 2",
                        "screen EV_ABS ABS_MT_TRACKING_ID -1",
                        "screen EV_ABS ABS_MT_SLOT 11",
                        "screen EV_ABS ABS_MT_TRACKING_ID -1",
                        "screen EV_KEY BTN_TOUCH 0",
                        "screen EV_SYN SYN_REPORT 0",
                        "keyboard EV_KEY KEY_A 0",
                        "keyboard EV_SYN SYN_REPORT 0",
                        "pointer EV_KEY BTN_LEFT 0",
                        "pointer EV_SYN SYN_REPORT 0",
                        "gamepad EV_KEY BTN_SOUTH 0",
                        "gamepad EV_SYN SYN_REPORT 0",
                        "gamepad EV_ABS ABS_X 0",
                        "gamepad EV_ABS ABS_Z 0",
                        "gamepad EV_ABS ABS_HAT0X 0",
                        "gamepad EV_SYN SYN_REPORT 0",
                        "touchpad EV_KEY BTN_LEFT 0",
                        "touchpad EV_KEY BTN_TOUCH 0",
                        "touchpad EV_KEY BTN_TOOL_FINGER 0",
                        "touchpad EV_SYN SYN_REPORT 0",
                    }));
  EXPECT_EQ(Lift(), Texts{});
}

TEST_F(LiftAll, LeavesWhatWasLetGo) {
  for (const char* line : {"SLOTPRESS:2:2:1:1:640:360", "SLOTRELEASE:2", "KBDPR:30:1", "KBDRL:30:0", "LSTICKAXIS:5:5",
                           "LSTICKAXIS:0:0", "TOUCHPADLIGHTTOUCH:640:360", "TOUCHPADRELEASE"}) {
    Play(line);
  }
  EXPECT_EQ(Lift(), Texts{});
}

// The wheel had turned by 60 parts, and the next 60 do not complete a notch.
TEST_F(LiftAll, ForgetsAPartOfANotch) {
  Play("WHEEL_WITH_DELTA:1:1:50:0");
  Lift();
  EXPECT_EQ(Play("WHEEL_WITH_DELTA:1:1:50:0").size(), 5u);  // the position, the parts and its report, but no REL_WHEEL
}

// Regardless of earlier lines; the kernel drops events that change nothing. 26 slots and the touch; 248 keys.
TEST(RestFrame, LiftsAllThatADeviceCanHoldDown) {
  const Texts screen = TextsOf(RestFrame(KernelDevice::kScreen, {}));
  ASSERT_EQ(screen.size(), 26u * 2 + 2);
  EXPECT_EQ(screen[50], "screen EV_ABS ABS_MT_SLOT 25");
  EXPECT_EQ(screen[51], "screen EV_ABS ABS_MT_TRACKING_ID -1");
  EXPECT_EQ(screen[52], "screen EV_KEY BTN_TOUCH 0");
  EXPECT_EQ(TextsOf(RestFrame(KernelDevice::kKeyboard, {})).size(), 248u + 1);
  EXPECT_EQ(TextsOf(RestFrame(KernelDevice::kGamepad, {})).at(0), "gamepad EV_ABS ABS_X 0");
}

}  // namespace
}  // namespace taviguest
