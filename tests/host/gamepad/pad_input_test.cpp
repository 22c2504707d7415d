#include "host/gamepad/pad_input.h"

#include <gtest/gtest.h>

#include "tests/host/gamepad/pad_fixture.h"

namespace tavi {
namespace {

constexpr int kPad = 7;

class PadInputTest : public testing::Test {
 protected:
  void Axis(const char* axis, double value) { pad_.SetAxis(QLatin1String(axis), value); }
  void Down(const char* button) { pad_.SetButton(QLatin1String(button), true); }
  void Up(const char* button) { pad_.SetButton(QLatin1String(button), false); }
  QStringList Told() { return record_.Take(); }

  PadRecord record_{kPad};
  PadInput pad_{kPad, PadFamily::kLettered, record_.Sink()};
};

TEST_F(PadInputTest, EveryButtonHasItsName) {
  const struct {
    const char* button;
    const char* text;
  } rows[] = {
      {"a", "A"},
      {"b", "B"},
      {"x", "X"},
      {"y", "Y"},
      {"back", "Back"},
      {"start", "Start"},
      {"guide", "Guide"},
      {"leftstick", "LA"},
      {"rightstick", "RA"},
      {"leftshoulder", "LB"},
      {"rightshoulder", "RB"},
      {"dpup", "\u2191"},
      {"dpdown", "\u2193"},
      {"dpleft", "\u2190"},
      {"dpright", "\u2192"},
      {"misc1", "Misc"},
      {"paddle1", "Paddle1"},
      {"paddle2", "Paddle2"},
      {"paddle3", "Paddle3"},
      {"paddle4", "Paddle4"},
  };
  for (const auto& row : rows) {
    Down(row.button);
    EXPECT_EQ(Told(), QStringList(QStringLiteral("press ") + QString::fromUtf8(row.text)));
    Up(row.button);
    EXPECT_EQ(Told(), QStringList(QStringLiteral("release ") + QString::fromUtf8(row.text)));
  }
}

TEST_F(PadInputTest, AButtonThatNobodyKnowsIsLeftOut) {
  Down("touchpad");  // only of a PlayStation gamepad
  Down("laser");
  Up("laser");
  Axis("tilt", 1);
  pad_.SendSticks();
  EXPECT_EQ(Told(), QStringList());
}

TEST_F(PadInputTest, APlayStationsOwnButtonsHaveNumbersOfASecondDevice) {
  PadInput pad(kPad, PadFamily::kPlayStation, record_.Sink());
  pad.SetButton(QStringLiteral("a"), true);
  pad.SetButton(QStringLiteral("guide"), true);
  pad.SetButton(QStringLiteral("touchpad"), true);
  EXPECT_EQ(Told(), (QStringList{"press A", "1000007: press 12", "1000007: press 13"}));
  pad.ReleaseAll();
  EXPECT_EQ(Told(), (QStringList{"1000007: release 13", "1000007: release 12", "release A"}));
}

// 1 is the layout with letters, 2 the one in which guide and touchpad have numbers.
TEST_F(PadInputTest, TheSecondDeviceIsOfAnotherKind) {
  EXPECT_EQ(KindOfDevice(kPad), 1);
  EXPECT_EQ(KindOfDevice(999), 1);     // the buttons of macros
  EXPECT_EQ(KindOfDevice(100801), 1);  // the virtual gamepad
  EXPECT_EQ(KindOfDevice(1000007), 2);
}

TEST_F(PadInputTest, AButtonIsToldOnce) {
  Down("a");
  Down("a");
  Up("a");
  Up("a");
  EXPECT_EQ(Told(), (QStringList{"press A", "release A"}));
}

// The release of either end of an axis of the cross centres the axis.
TEST_F(PadInputTest, TheOtherEndOfTheCrossIsReleasedFirst) {
  Down("dpleft");
  Down("dpup");
  Down("dpright");
  EXPECT_EQ(Told(), (QStringList{"press \u2190", "press \u2191", "release \u2190", "press \u2192"}));
  Up("dpleft");
  EXPECT_EQ(Told(), QStringList());
  Up("dpright");
  EXPECT_EQ(Told(), QStringList{"release \u2192"});
}

TEST_F(PadInputTest, ATriggerIsAButtonWithALeeway) {
  const struct {
    const char* name;
    double value;
    QStringList told;
  } rows[] = {
      {"just short of it", 0.4, {}},     {"down", 0.41, {"press LT"}},    {"all the way", 1, {}},
      {"still down", 0.25, {}},          {"up", 0.24, {"release LT"}},    {"a little", 0.4, {}},
      {"down again", 0.5, {"press LT"}}, {"released", 0, {"release LT"}},
  };
  for (const auto& row : rows) {
    Axis("lefttrigger", row.value);
    EXPECT_EQ(Told(), row.told) << row.name;
  }
  Axis("righttrigger", 1);
  EXPECT_EQ(Told(), QStringList{"press RT"});
}

// The dead zone is 0.15, the remaining range 0.85.
TEST_F(PadInputTest, AStickValueBeginsBehindTheDeadZone) {
  EXPECT_TRUE(StickValue({0, 0}).isNull());
  EXPECT_TRUE(StickValue({0.15, 0}).isNull());
  EXPECT_TRUE(StickValue({0.1, -0.1}).isNull());       // 0.141 from its rest
  EXPECT_NEAR(StickValue({0.575, 0}).x(), 0.5, 1e-9);  // 0.15 + 0.85 / 2
  EXPECT_NEAR(StickValue({0, -0.575}).y(), -0.5, 1e-9);
  EXPECT_EQ(StickValue({-1, 0}), QPointF(-1, 0));
}

// A stick with a square range is at 1.41 in the corner; the direction stays, the length becomes 1.
TEST_F(PadInputTest, AStickStaysInTheCircle) {
  EXPECT_NEAR(StickValue({1, 1}).x(), 0.7071, 1e-4);
  EXPECT_NEAR(StickValue({1, 1}).y(), 0.7071, 1e-4);
}

TEST_F(PadInputTest, ALeftStickIsToldWhenItMoved) {
  Axis("leftx", 1);
  pad_.SendSticks();
  pad_.SendSticks();
  EXPECT_EQ(Told(), QStringList{"left 1,0"});
  Axis("leftx", 0.995);  // 0.006 less than before, of 0.85
  pad_.SendSticks();
  EXPECT_EQ(Told(), QStringList());
  Axis("leftx", 0);
  Axis("lefty", -1);
  pad_.SendSticks();
  EXPECT_EQ(Told(), QStringList{"left 0,-1"});
  Axis("lefty", 0.1);
  pad_.SendSticks();
  pad_.SendSticks();
  EXPECT_EQ(Told(), QStringList{"left 0,0"});
}

// Each call turns the view by a step.
TEST_F(PadInputTest, ARightStickIsToldWhileItIsOut) {
  pad_.SendSticks();
  EXPECT_EQ(Told(), QStringList());
  Axis("righty", 1);
  pad_.SendSticks();
  pad_.SendSticks();
  EXPECT_EQ(Told(), (QStringList{"right 0,1", "right 0,1"}));
  Axis("righty", 0);
  pad_.SendSticks();
  pad_.SendSticks();
  EXPECT_EQ(Told(), QStringList{"right 0,0"});
}

TEST_F(PadInputTest, ReleasingAllEndsWithTheFirst) {
  Down("leftshoulder");
  Down("a");
  Axis("righttrigger", 1);
  Axis("leftx", -1);
  Axis("rightx", 1);
  pad_.SendSticks();
  EXPECT_EQ(pad_.Pressed(), (QStringList{"LB", "A", "RT"}));
  Told();
  pad_.ReleaseAll();
  EXPECT_EQ(Told(), (QStringList{"release RT", "release A", "release LB", "left 0,0", "right 0,0"}));
  EXPECT_EQ(pad_.Pressed(), QStringList());
  pad_.ReleaseAll();
  EXPECT_EQ(Told(), QStringList());

  Up("a");  // was sent already
  Down("a");
  pad_.SendSticks();
  EXPECT_EQ(Told(), (QStringList{"press A", "left -1,0", "right 1,0"}));
}

TEST_F(PadInputTest, WhileNobodyListensNothingIsTold) {
  Down("a");
  Down("b");
  Axis("rightx", 1);
  pad_.SendSticks();
  Told();
  pad_.SetListening(false);
  Up("a");
  Down("x");
  Axis("leftx", 1);
  pad_.SendSticks();
  EXPECT_EQ(Told(), QStringList());
  EXPECT_EQ(pad_.Pressed(), (QStringList{"A", "B"}));

  pad_.SetListening(true);
  EXPECT_EQ(Told(), QStringList{"release A"});
  Up("x");  // its press was never sent
  Up("b");
  EXPECT_EQ(Told(), QStringList{"release B"});
  pad_.SendSticks();
  EXPECT_EQ(Told(), (QStringList{"left 1,0", "right 1,0"}));
}

}  // namespace
}  // namespace tavi
