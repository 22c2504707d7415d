#include "host/guest/guest_model.h"

#include <gtest/gtest.h>

namespace tavi {
namespace {

class GuestModelTest : public testing::Test {
 protected:
  // Lines without their display, which is the model's own.
  void Send(const char* line) { EXPECT_TRUE(model_.ApplyEvent(QStringLiteral("1:") + QLatin1String(line))) << line; }
  void SendText(const char* line) { EXPECT_TRUE(model_.ApplyText(QString::fromUtf8(line))) << line; }
  const GuestState& State() const { return model_.state(); }
  QList<int> Slots() const { return State().contacts.keys(); }

  GuestModel model_{1};
};

TEST_F(GuestModelTest, AFingerGoesDownMovesAndGoesUp) {
  Send("SLOTPRESS:2:7:1:1:640:360");
  EXPECT_EQ(Slots(), QList<int>{2});
  EXPECT_EQ(State().contacts[2].tracking_id, 7);
  EXPECT_EQ(State().contacts[2].point, QPoint(640, 360));

  Send("SLOTPRESS:2:7:1:1:650:370");
  EXPECT_EQ(Slots(), QList<int>{2});
  EXPECT_EQ(State().contacts[2].point, QPoint(650, 370));

  Send("SLOTRELEASE:2");
  EXPECT_TRUE(Slots().isEmpty());
}

TEST_F(GuestModelTest, FingersOfOneReportGoDownTogetherAndUpOneByOne) {
  Send("SLOTMULTIPRESS:18:18:1:2:19:19:3:4:20:20:5:6");
  EXPECT_EQ(Slots(), (QList<int>{18, 19, 20}));
  EXPECT_EQ(State().contacts[20].point, QPoint(5, 6));

  Send("SLOTMULTIRELEASE:19");
  EXPECT_EQ(Slots(), (QList<int>{18, 20}));
  Send("SLOTMULTIRELEASE:18:20");
  EXPECT_TRUE(Slots().isEmpty());
}

TEST_F(GuestModelTest, AllFingersGoUpAtOnce) {
  Send("SLOTPRESS:2:2:1:1:640:360");
  Send("SLOTPRESS:25:25:1:1:10:10");
  Send("SLOTRELEASEALL");
  EXPECT_TRUE(Slots().isEmpty());
}

TEST_F(GuestModelTest, AFingerThatIsUpMayGoUpAgain) {
  Send("SLOTRELEASE:3");
  Send("SLOTMULTIRELEASE:10:0");
  EXPECT_TRUE(Slots().isEmpty());
}

TEST_F(GuestModelTest, ThereAreSlotsFromZeroToTwentyFive) {
  Send("SLOTPRESS:0:0:1:1:1:1");
  Send("SLOTPRESS:25:25:1:1:1:1");
  EXPECT_FALSE(model_.ApplyEvent(QStringLiteral("1:SLOTPRESS:26:26:1:1:1:1")));
  EXPECT_FALSE(model_.ApplyEvent(QStringLiteral("1:SLOTPRESS:-1:-1:1:1:1:1")));
  EXPECT_FALSE(model_.ApplyEvent(QStringLiteral("1:SLOTRELEASE:26")));
  EXPECT_EQ(Slots(), (QList<int>{0, 25}));
}

TEST_F(GuestModelTest, KeysAndMouseButtonsStayDownUntilTheyAreLetGo) {
  Send("KBDPR:30:1");
  Send("KBDPR:272:1");
  EXPECT_EQ(State().held_keys, (QSet<int>{30, 272}));
  Send("KBDRL:30:0");
  EXPECT_EQ(State().held_keys, QSet<int>{272});
}

TEST_F(GuestModelTest, ThePointerStaysWhereItWent) {
  EXPECT_FALSE(State().pointer.has_value());
  Send("MOUSEMOVE_REL:12:34");
  EXPECT_EQ(State().pointer, QPoint(12, 34));
}

TEST_F(GuestModelTest, TheWheelTurnsAtAPlace) {
  Send("WHEEL:640:360:-100:0");
  EXPECT_EQ(State().wheel.point, QPoint(640, 360));
  EXPECT_EQ(State().wheel.amount, -100);
  Send("WHEEL_WITH_DELTA:10:20:12.5:0");
  EXPECT_EQ(State().wheel.point, QPoint(10, 20));
  EXPECT_EQ(State().wheel.amount, 12.5);
  EXPECT_EQ(State().wheel.count, 2);
}

TEST_F(GuestModelTest, TextIsTypedAndTakenBack) {
  SendText("TEXT:a:b");
  SendText("TEXT_CONTROL:ENTER");
  SendText("TEXT:c");
  EXPECT_EQ(State().text, QStringLiteral("a:b\nc"));
  SendText("TEXT_CONTROL:BACKSPACE");
  SendText("TEXT_CONTROL:BACKSPACE");
  EXPECT_EQ(State().text, QStringLiteral("a:b"));
}

TEST_F(GuestModelTest, BackspaceTakesAWholeCharacterOrNothing) {
  SendText("TEXT:\xF0\x9F\x98\x80");
  SendText("TEXT_CONTROL:BACKSPACE");
  EXPECT_EQ(State().text, QString());
  SendText("TEXT_CONTROL:BACKSPACE");
  EXPECT_EQ(State().text, QString());
}

TEST_F(GuestModelTest, AControlThatNobodyKnowsIsNotUnderstood) {
  EXPECT_FALSE(model_.ApplyText(QStringLiteral("TEXT_CONTROL:TAB")));
}

TEST_F(GuestModelTest, AGamepadKeepsItsState) {
  EXPECT_FALSE(State().gamepad.used);
  Send("LSTICKAXIS:-1000000:500000");
  Send("RSTICKAXIS:250000:0");
  Send("LTRIGGERAXIS:1");
  Send("RTRIGGERAXIS:1");
  Send("RTRIGGERAXIS:0");
  Send("GPDBUTTON:304:1");
  Send("GPDBUTTON:305:1");
  Send("GPDBUTTON:304:0");
  Send("HATX:-1");
  Send("HATY:1");
  const GuestGamepad& pad = State().gamepad;
  EXPECT_TRUE(pad.used);
  EXPECT_EQ(pad.left_stick, QPointF(-1, 0.5));
  EXPECT_EQ(pad.right_stick, QPointF(0.25, 0));
  EXPECT_EQ(pad.left_trigger, 1);
  EXPECT_EQ(pad.right_trigger, 0);
  EXPECT_EQ(pad.buttons, QSet<int>{305});
  EXPECT_EQ(pad.hat, QPoint(-1, 1));
}

TEST_F(GuestModelTest, TheTouchpadIsTouchedPressedAndLetGo) {
  Send("TOUCHPADLIGHTTOUCH:640:360");
  EXPECT_EQ(State().gamepad.touchpad, QPoint(640, 360));
  EXPECT_FALSE(State().gamepad.touchpad_pressed);
  Send("TOUCHPADPRESS");
  EXPECT_TRUE(State().gamepad.touchpad_pressed);
  Send("TOUCHPADRELEASE");
  EXPECT_FALSE(State().gamepad.touchpad_pressed);
  EXPECT_FALSE(State().gamepad.touchpad.has_value());
}

TEST_F(GuestModelTest, LinesForOtherDisplaysChangeNothing) {
  EXPECT_TRUE(model_.ApplyEvent(QStringLiteral("2:SLOTPRESS:2:2:1:1:640:360")));
  EXPECT_TRUE(model_.ApplyEvent(QStringLiteral("0:KBDPR:30:1")));
  EXPECT_TRUE(Slots().isEmpty());
  EXPECT_TRUE(State().held_keys.isEmpty());
}

TEST_F(GuestModelTest, WhatIsBrokenIsNotUnderstood) {
  EXPECT_FALSE(model_.ApplyEvent(QStringLiteral("SLOTRELEASE:2")));  // no display
  EXPECT_FALSE(model_.ApplyEvent(QStringLiteral("1:SLOTRELEASE")));
  EXPECT_FALSE(model_.ApplyEvent(QString()));
  EXPECT_FALSE(model_.ApplyText(QStringLiteral("NOTE:a")));
}

}  // namespace
}  // namespace tavi
