// The gamepad and its touchpad.
#include "tests/guest/played_lines.h"

namespace taviguest {
namespace {

class GamepadLines : public PlayedLines {};

TEST_F(GamepadLines, EachNumberMovesItsAxis) {
  const struct {
    const char* name;
    const char* line;
    std::vector<std::string> events;  // without the last, the report
  } rows[] = {
      {"the left stick",
       "LSTICKAXIS:-1000000:500000",
       {"gamepad EV_ABS ABS_X -1000000", "gamepad EV_ABS ABS_Y 500000"}},
      {"the right stick", "RSTICKAXIS:0:-1", {"gamepad EV_ABS ABS_RX 0", "gamepad EV_ABS ABS_RY -1"}},
      {"a stick beyond its end",
       "LSTICKAXIS:1500000:-1500000",
       {"gamepad EV_ABS ABS_X 1000000", "gamepad EV_ABS ABS_Y -1000000"}},
      {"the left trigger", "LTRIGGERAXIS:1", {"gamepad EV_ABS ABS_Z 1"}},
      {"the right trigger", "RTRIGGERAXIS:0", {"gamepad EV_ABS ABS_RZ 0"}},
      {"a trigger beyond its end", "RTRIGGERAXIS:2", {"gamepad EV_ABS ABS_RZ 1"}},
      {"the hat to the left", "HATX:-1", {"gamepad EV_ABS ABS_HAT0X -1"}},
      {"the hat down", "HATY:1", {"gamepad EV_ABS ABS_HAT0Y 1"}},
      {"the hat released", "HATY:0", {"gamepad EV_ABS ABS_HAT0Y 0"}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    Texts expected = row.events;
    expected.push_back("gamepad EV_SYN SYN_REPORT 0");
    EXPECT_EQ(Play(row.line), expected);
  }
}

TEST_F(GamepadLines, EveryButtonThatIsSentIsThere) {
  const struct {
    int code;
    const char* name;
  } rows[] = {
      {304, "BTN_SOUTH"}, {305, "BTN_EAST"},   {307, "BTN_NORTH"},  {308, "BTN_WEST"},   {310, "BTN_TL"},
      {311, "BTN_TR"},    {312, "BTN_TL2"},    {313, "BTN_TR2"},    {314, "BTN_SELECT"}, {315, "BTN_START"},
      {316, "BTN_MODE"},  {317, "BTN_THUMBL"}, {318, "BTN_THUMBR"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const std::string event = std::string("gamepad EV_KEY ") + row.name;
    EXPECT_EQ(Play("GPDBUTTON:" + std::to_string(row.code) + ":1"),
              (Texts{event + " 1", "gamepad EV_SYN SYN_REPORT 0"}));
    EXPECT_EQ(Play("GPDBUTTON:" + std::to_string(row.code) + ":0"),
              (Texts{event + " 0", "gamepad EV_SYN SYN_REPORT 0"}));
  }
  EXPECT_EQ(ProblemOf("GPDBUTTON:272:1"), "there is no such button");
}

TEST_F(GamepadLines, AButtonThatIsUpDoesNotGoUp) {
  EXPECT_EQ(Play("GPDBUTTON:304:0"), Texts{});
  Play("GPDBUTTON:304:1");
  EXPECT_EQ(Play("GPDBUTTON:304:1"), Texts{});
}

TEST_F(GamepadLines, TheTouchpadIsTouchedPressedAndLetGo) {
  EXPECT_EQ(Play("TOUCHPADLIGHTTOUCH:640:360"), (Texts{
                                                    "touchpad EV_ABS ABS_X 640",
                                                    "touchpad EV_ABS ABS_Y 360",
                                                    "touchpad EV_KEY BTN_TOOL_FINGER 1",
                                                    "touchpad EV_KEY BTN_TOUCH 1",
                                                    "touchpad EV_SYN SYN_REPORT 0",
                                                }));
  EXPECT_EQ(Play("TOUCHPADPRESS"), (Texts{"touchpad EV_KEY BTN_LEFT 1", "touchpad EV_SYN SYN_REPORT 0"}));
  EXPECT_EQ(Play("TOUCHPADRELEASE"), (Texts{
                                         "touchpad EV_KEY BTN_LEFT 0",
                                         "touchpad EV_KEY BTN_TOUCH 0",
                                         "touchpad EV_KEY BTN_TOOL_FINGER 0",
                                         "touchpad EV_SYN SYN_REPORT 0",
                                     }));
}

TEST_F(GamepadLines, ALineOfNoFormIsNotUnderstood) { EXPECT_EQ(ProblemOf("SLOTMOVE:1"), "not understood"); }

}  // namespace
}  // namespace taviguest
