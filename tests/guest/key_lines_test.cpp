// Keys, mouse buttons, the pointer and its wheel.
#include "tests/guest/played_lines.h"

namespace taviguest {
namespace {

class KeyLines : public PlayedLines {};

TEST_F(KeyLines, AKeyGoesDownAndUp) {
  EXPECT_EQ(Play("KBDPR:30:1"), (Texts{"keyboard EV_KEY KEY_A 1", "keyboard EV_SYN SYN_REPORT 0"}));
  EXPECT_EQ(Play("KBDRL:30:0"), (Texts{"keyboard EV_KEY KEY_A 0", "keyboard EV_SYN SYN_REPORT 0"}));
}

TEST_F(KeyLines, WhatIsSaidTwiceHappensOnce) {
  EXPECT_EQ(Play("KBDRL:30:0"), Texts{});
  Play("KBDPR:30:1");
  EXPECT_EQ(Play("KBDPR:30:1"), Texts{});
  Play("KBDRL:30:0");
  EXPECT_EQ(Play("KBDRL:30:0"), Texts{});
}

TEST_F(KeyLines, EachCodeIsAKeyOfADevice) {
  const struct {
    const char* name;
    const char* line;
    const char* event;
  } rows[] = {
      {"the first key", "KBDPR:1:1", "keyboard EV_KEY KEY_ESC 1"},
      {"the last key", "KBDPR:248:1", "keyboard EV_KEY KEY_MICMUTE 1"},
      {"the guest's back", "KBDPR:158:1", "keyboard EV_KEY KEY_BACK 1"},
      {"the guest's menu", "KBDPR:139:1", "keyboard EV_KEY KEY_MENU 1"},
      {"keypad Enter", "KBDPR:96:1", "keyboard EV_KEY KEY_KPENTER 1"},
      {"the left button", "KBDPR:272:1", "pointer EV_KEY BTN_LEFT 1"},
      {"the right button", "KBDPR:273:1", "pointer EV_KEY BTN_RIGHT 1"},
      {"the middle button", "KBDPR:274:1", "pointer EV_KEY BTN_MIDDLE 1"},
      {"the forward button", "KBDPR:277:1", "pointer EV_KEY BTN_FORWARD 1"},
      {"the back button", "KBDPR:278:1", "pointer EV_KEY BTN_BACK 1"},
      {"the task button", "KBDPR:279:1", "pointer EV_KEY BTN_TASK 1"},
      {"the left Windows key, by scan code", "KBDPR:347:1", "keyboard EV_KEY KEY_LEFTMETA 1"},
      {"Print Screen, by scan code", "KBDPR:311:1", "keyboard EV_KEY KEY_SYSRQ 1"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(Play(row.line).at(0), row.event);
  }
}

TEST_F(KeyLines, OtherCodesAreNoKeys) {
  for (const char* line : {"KBDPR:0:1", "KBDPR:-1:1", "KBDPR:249:1", "KBDPR:400:1", "KBDRL:2147483647:0"}) {
    EXPECT_EQ(ProblemOf(line), "there is no such key") << line;
  }
}

TEST_F(KeyLines, ThePointerGoesToItsPlace) {
  EXPECT_EQ(Play("MOUSEMOVE_REL:12:34"),
            (Texts{"pointer EV_ABS ABS_X 12", "pointer EV_ABS ABS_Y 34", "pointer EV_SYN SYN_REPORT 0"}));
  EXPECT_EQ(Play("MOUSEMOVE_REL:-3:720.4"),
            (Texts{"pointer EV_ABS ABS_X 0", "pointer EV_ABS ABS_Y 719", "pointer EV_SYN SYN_REPORT 0"}));
}

// 100 is a notch, and a notch has 120 parts.
TEST_F(KeyLines, TheWheelTurnsWhereThePointerIs) {
  EXPECT_EQ(Play("WHEEL:640:360:-100:0"), (Texts{
                                              "pointer EV_ABS ABS_X 640",
                                              "pointer EV_ABS ABS_Y 360",
                                              "pointer EV_SYN SYN_REPORT 0",
                                              "pointer EV_REL REL_WHEEL_HI_RES -120",
                                              "pointer EV_REL REL_WHEEL -1",
                                              "pointer EV_SYN SYN_REPORT 0",
                                          }));
}

class WheelTurns : public PlayedLines {
 protected:
  // After the three events of the position.
  Texts Turn(const char* line) {
    Texts events = Play(line);
    return Texts(events.begin() + 3, events.end());
  }
};

// 50 is half a notch, 60 parts: the second half completes it.
TEST_F(WheelTurns, PartsAddUpToNotches) {
  EXPECT_EQ(Turn("WHEEL_WITH_DELTA:1:1:50:0"),
            (Texts{"pointer EV_REL REL_WHEEL_HI_RES 60", "pointer EV_SYN SYN_REPORT 0"}));
  EXPECT_EQ(Turn("WHEEL_WITH_DELTA:1:1:50:0"),
            (Texts{"pointer EV_REL REL_WHEEL_HI_RES 60", "pointer EV_REL REL_WHEEL 1", "pointer EV_SYN SYN_REPORT 0"}));
  EXPECT_EQ(Turn("WHEEL_WITH_DELTA:1:1:-250:0"), (Texts{"pointer EV_REL REL_WHEEL_HI_RES -300",
                                                        "pointer EV_REL REL_WHEEL -2", "pointer EV_SYN SYN_REPORT 0"}));
  EXPECT_EQ(Turn("WHEEL_WITH_DELTA:1:1:-50:0"), (Texts{"pointer EV_REL REL_WHEEL_HI_RES -60",
                                                       "pointer EV_REL REL_WHEEL -1", "pointer EV_SYN SYN_REPORT 0"}));
}

TEST_F(WheelTurns, ALineWithoutAnAmountIsANotch) {
  const Texts up{"pointer EV_REL REL_WHEEL_HI_RES 120", "pointer EV_REL REL_WHEEL 1", "pointer EV_SYN SYN_REPORT 0"};
  const Texts down{"pointer EV_REL REL_WHEEL_HI_RES -120", "pointer EV_REL REL_WHEEL -1",
                   "pointer EV_SYN SYN_REPORT 0"};
  EXPECT_EQ(Turn("WHEEL:640:360:640:360"), up);
  EXPECT_EQ(Turn("WHEEL:640:360:-640:360"), down);
}

TEST_F(WheelTurns, NoAmountIsNoTurn) { EXPECT_EQ(Turn("WHEEL:1:1:0:0"), Texts{}); }

// A thousand notches of 120 parts.
TEST_F(WheelTurns, ATurnHasALimit) {
  EXPECT_EQ(Turn("WHEEL_WITH_DELTA:1:1:2e+09:0").at(0), "pointer EV_REL REL_WHEEL_HI_RES 120000");
}

}  // namespace
}  // namespace taviguest
