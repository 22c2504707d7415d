// Which lines make sense to a target that connected late, or that missed part of a gesture.
#include "host/target/target_gestures.h"

#include <gtest/gtest.h>

namespace tavi {
namespace {

class Gestures : public testing::Test {
 protected:
  // The host sends a line while the target is connected; returns the line for the target, without its end.
  QByteArray Hear(const char* line) {
    const OutgoingLine sent = Sent(line);
    const QByteArray told = target_.Tell(sent, host_);
    host_.Take(sent.display, sent.line);
    return told.trimmed();
  }
  // The host sends a line while the target is disconnected.
  void Miss(const char* line) {
    const OutgoingLine sent = Sent(line);
    host_.Take(sent.display, sent.line);
  }

  static QByteArray Joined(const QVector<QByteArray>& lines) {
    QByteArray joined;
    for (const QByteArray& line : lines) joined += line;
    return joined.replace('\n', ' ').trimmed();
  }

  HeldInput host_;
  TargetGestures target_;

 private:
  static OutgoingLine Sent(const char* line) { return OutgoingLine(QByteArray(line) + '\n'); }
};

TEST_F(Gestures, ThatBeganBeforeItCameAreNotContinued) {
  Miss("1:SLOTPRESS:2:2:1:1:230:518");
  EXPECT_EQ(Hear("1:SLOTPRESS:2:2:1:1:230:489"), "");
  EXPECT_EQ(Hear("2:SLOTPRESS:2:2:1:1:5:5"), "2:SLOTPRESS:2:2:1:1:5:5");  // another finger, on another display
  EXPECT_EQ(Hear("1:SLOTRELEASE:2"), "1:SLOTRELEASE:2");
  EXPECT_EQ(Hear("1:SLOTPRESS:2:2:1:1:230:518"), "1:SLOTPRESS:2:2:1:1:230:518");
  EXPECT_EQ(Hear("1:SLOTPRESS:2:2:1:1:230:489"), "1:SLOTPRESS:2:2:1:1:230:489");
}

TEST_F(Gestures, OfSeveralFingersAreContinuedWithThoseThatItKnows) {
  Miss("1:SLOTPRESS:10:10:1:1:600:300");
  EXPECT_EQ(Hear("1:SLOTMULTIPRESS:10:10:601:301:0:0:680:380"), "1:SLOTMULTIPRESS:0:0:680:380");
  EXPECT_EQ(Hear("1:SLOTMULTIPRESS:0:0:681:381"), "1:SLOTMULTIPRESS:0:0:681:381");
  EXPECT_EQ(Hear("1:SLOTMULTIPRESS:10:10:602:302"), "");
  EXPECT_EQ(Joined(target_.Lift()), "1:SLOTRELEASE:0");
}

TEST_F(Gestures, OfKeysAndButtonsAreHeldTheSame) {
  Miss("1:KBDPR:17:1");
  Miss("1:GPDBUTTON:304:1");
  Miss("1:TOUCHPADLIGHTTOUCH:640:360");
  EXPECT_EQ(Hear("1:KBDPR:17:1"), "");
  EXPECT_EQ(Hear("1:KBDPR:30:1"), "1:KBDPR:30:1");
  EXPECT_EQ(Hear("1:GPDBUTTON:304:1"), "");
  EXPECT_EQ(Hear("1:GPDBUTTON:304:0"), "1:GPDBUTTON:304:0");
  EXPECT_EQ(Hear("1:GPDBUTTON:304:1"), "1:GPDBUTTON:304:1");
  EXPECT_EQ(Hear("1:TOUCHPADPRESS"), "");
  EXPECT_EQ(Hear("1:TOUCHPADRELEASE"), "1:TOUCHPADRELEASE");
  EXPECT_EQ(Hear("1:TOUCHPADLIGHTTOUCH:640:360"), "1:TOUCHPADLIGHTTOUCH:640:360");
  EXPECT_EQ(Hear("1:TOUCHPADPRESS"), "1:TOUCHPADPRESS");
}

TEST_F(Gestures, WhatIsNoGestureIsAlwaysTold) {
  Miss("1:LSTICKAXIS:0:-1000000");
  for (const char* line : {"1:LSTICKAXIS:0:-500000", "1:MOUSEMOVE_REL:5:5", "1:WHEEL:1:2:120:0", "1:SLOTRELEASEALL",
                           "1:KBDRL:30:0", "1:SOMETHING:NEW"}) {
    EXPECT_EQ(Hear(line), line);
  }
  EXPECT_EQ(target_.Tell(OutgoingLine(QByteArray("TEXT:1:SLOTPRESS:2\n", 20)), host_),
            QByteArray("TEXT:1:SLOTPRESS:2\n", 20));
}

TEST_F(Gestures, AreLiftedAsFarAsTheyAreDown) {
  for (const char* line : {"1:SLOTPRESS:2:2:1:1:230:518", "1:SLOTPRESS:11:11:1:1:5:5", "1:SLOTRELEASE:11",
                           "1:KBDPR:17:1", "1:LSTICKAXIS:0:-1000000", "1:LTRIGGERAXIS:1", "1:HATX:-1",
                           "1:GPDBUTTON:304:1", "2:KBDPR:30:1", "1:TOUCHPADLIGHTTOUCH:640:360"}) {
    Hear(line);
  }
  EXPECT_EQ(Joined(target_.Lift()),
            "1:SLOTRELEASE:2 1:KBDRL:17:0 1:GPDBUTTON:304:0 1:LSTICKAXIS:0:0 1:LTRIGGERAXIS:0 1:HATX:0 "
            "1:TOUCHPADRELEASE 2:KBDRL:30:0");
  EXPECT_EQ(Joined(target_.Lift()), "");
  EXPECT_EQ(Hear("1:SLOTPRESS:2:2:1:1:230:489"), "");  // the host still holds it
}

// A release may be among the lost lines.
TEST_F(Gestures, AreLiftedOneAndAllWhereNobodyKnowsWhatWasLost) {
  for (const char* line : {"1:SLOTPRESS:11:11:1:1:5:5", "1:SLOTRELEASE:11", "1:KBDPR:17:1", "1:KBDRL:17:0",
                           "1:RSTICKAXIS:1:0", "1:RSTICKAXIS:0:0"}) {
    Hear(line);
  }
  EXPECT_EQ(Joined(target_.Lift()), "");
  EXPECT_EQ(Joined(target_.LiftEverything()), "1:SLOTRELEASE:11 1:KBDRL:17:0 1:RSTICKAXIS:0:0");
}

}  // namespace
}  // namespace tavi
