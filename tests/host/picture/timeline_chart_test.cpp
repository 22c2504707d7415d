#include "host/picture/timeline_chart.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "host/simulation/script.h"
#include "host/simulation/simulated_host.h"

namespace tavi {
namespace {

using Group = ChartLane::Group;
using Source = TimelineEntry::Source;

class Timeline : public testing::Test {
 protected:
  // The next command of a script.
  void Input(qint64 ms, const char* command) {
    const Script script = ParseScript(QString::fromUtf8(command));
    ASSERT_EQ(script.commands.size(), 1) << command;
    chart_.AddInput(ms, script.commands[0]);
  }
  void Line(qint64 ms, const char* line) { chart_.AddEntry({ms, Source::kLine, QString::fromUtf8(line)}); }

  // "0-50 text; 70-90"; an open end is a "+".
  QString Bars(Group group, const char* lane) {
    QStringList bars;
    for (const ChartBar& bar : Lane(group, lane).bars) {
      const QString range = QStringLiteral("%1-%2").arg(bar.start_ms).arg(bar.end_ms);
      bars += (range + (bar.is_open ? "+ " : " ") + bar.text).trimmed();
    }
    return bars.join("; ");
  }

  // "5 text; 7"
  QString Marks(Group group, const char* lane) {
    QStringList marks;
    for (const ChartMark& mark : Lane(group, lane).marks) {
      marks += QStringLiteral("%1 %2").arg(mark.ms).arg(mark.text).trimmed();
    }
    return marks.join("; ");
  }

  ChartLane Lane(Group group, const char* name) {
    for (const ChartLane& lane : chart_.lanes()) {
      if (lane.group == group && lane.name == QLatin1String(name)) return lane;
    }
    return {};
  }

  TimelineChart chart_;
};

TEST_F(Timeline, AKeyIsABarForAsLongAsItIsHeld) {
  Input(10, "down W");
  Input(20, "repeat W");
  Input(60, "up W");
  Input(80, "down W");
  chart_.Finish(100);
  EXPECT_EQ(Bars(Group::kInput, "W"), QStringLiteral("10-60; 80-100+"));
  EXPECT_EQ(Marks(Group::kInput, "W"), QStringLiteral("20"));
}

TEST_F(Timeline, InputOfEveryKindHasALane) {
  Input(0, "mouse down left 640,360");
  Input(5, "move 650,360");
  Input(9, "mouse up left 650,360");
  Input(10, "wheel -120 1,2");
  Input(11, "rel 3,4");
  Input(12, "type hello");
  Input(13, "joy down LB");
  Input(14, "joy up LB");
  Input(15, "joy axis 1 0.5,0");
  Input(16, "touch begin 1:1,1 2:5,5");
  Input(17, "touch update 1:2,2 2:6,6");
  Input(18, "touch end");
  Input(19, "rotation 90");
  Input(20, "textfield on");
  EXPECT_EQ(Bars(Group::kInput, "Mouse Left"), QStringLiteral("0-9 640,360"));
  EXPECT_EQ(Marks(Group::kInput, "pointer"), QStringLiteral("5"));
  EXPECT_EQ(Marks(Group::kInput, "wheel"), QStringLiteral("10 -120"));
  EXPECT_EQ(Marks(Group::kInput, "mouse counts"), QStringLiteral("11"));
  EXPECT_EQ(Marks(Group::kInput, "text"), QStringLiteral("12 hello"));
  EXPECT_EQ(Bars(Group::kInput, "Pad LB"), QStringLiteral("13-14"));
  EXPECT_EQ(Marks(Group::kInput, "right stick"), QStringLiteral("15"));
  EXPECT_EQ(Bars(Group::kInput, "touch screen"), QStringLiteral("16-18 2 fingers"));
  EXPECT_EQ(Marks(Group::kInput, "touch screen"), QStringLiteral("17"));
  EXPECT_EQ(Marks(Group::kInput, "settings"), QStringLiteral("19 rotation 90; 20 textfield on"));
  EXPECT_EQ(chart_.input_count(), 14);
}

TEST_F(Timeline, AFingerIsABarFromPressToRelease) {
  Line(0, "1:SLOTPRESS:11:11:1:1:640:360");
  Line(40, "1:SLOTRELEASE:11");
  EXPECT_EQ(Bars(Group::kGuest, "finger 11"), QStringLiteral("0-40 640,360"));
  EXPECT_EQ(Lane(Group::kGuest, "finger 11").slot, 11);
}

TEST_F(Timeline, ADragTellsWhereItEndsAndHasAMarkForEachMove) {
  Line(0, "1:SLOTPRESS:2:2:1:1:100:50");
  Line(16, "1:SLOTPRESS:2:2:1:1:110:50");
  Line(32, "1:SLOTPRESS:2:2:1:1:120.5:50");
  Line(40, "1:SLOTRELEASE:2");
  EXPECT_EQ(Bars(Group::kGuest, "finger 2"), QString::fromUtf8("0-40 100,50 \u2192 120.5,50"));
  EXPECT_EQ(Marks(Group::kGuest, "finger 2"), QStringLiteral("16; 32"));
}

TEST_F(Timeline, SeveralFingersComeInOneLine) {
  Line(0, "1:SLOTMULTIPRESS:4:4:10:20:5:5:30:40");
  Line(9, "1:SLOTMULTIRELEASE:4:5");
  EXPECT_EQ(Bars(Group::kGuest, "finger 4"), QStringLiteral("0-9 10,20"));
  EXPECT_EQ(Bars(Group::kGuest, "finger 5"), QStringLiteral("0-9 30,40"));
}

// Each display is separate; the main one has no name before it.
TEST_F(Timeline, AllFingersOfADisplayAreLiftedTogether) {
  Line(0, "1:SLOTPRESS:11:11:1:1:1:1");
  Line(0, "1:SLOTPRESS:12:12:1:1:2:2");
  Line(0, "2:SLOTPRESS:11:11:1:1:3:3");
  Line(5, "1:SLOTRELEASEALL");
  chart_.Finish(9);
  EXPECT_EQ(Bars(Group::kGuest, "finger 11"), QStringLiteral("0-5 1,1"));
  EXPECT_EQ(Bars(Group::kGuest, "finger 12"), QStringLiteral("0-5 2,2"));
  EXPECT_EQ(Bars(Group::kGuest, "display 2: finger 11"), QStringLiteral("0-9+ 3,3"));
}

TEST_F(Timeline, AFingerThatIsOnlyLiftedHasNoLane) {
  Line(0, "1:SLOTRELEASE:7");
  chart_.Finish(1);
  EXPECT_TRUE(chart_.lanes().isEmpty());
  EXPECT_EQ(chart_.line_count(), 1);
}

// 158 is the guest's back key.
TEST_F(Timeline, WhatElseTheGuestGetsHasLanesToo) {
  Line(0, "1:KBDPR:158:1");
  Line(8, "1:KBDRL:158:0");
  Line(9, "1:MOUSEMOVE_REL:5:6");
  Line(10, "1:WHEEL_WITH_DELTA:1:2:1.5:0");
  Line(11, "1:GPDBUTTON:304:1");
  Line(12, "1:GPDBUTTON:304:0");
  Line(13, "1:LSTICKAXIS:1:1");
  Line(14, "1:HATX:-1");
  Line(15, "1:SOMETHING");
  chart_.AddEntry({16, Source::kText, QStringLiteral("TEXT:a b")});
  EXPECT_EQ(Bars(Group::kGuest, "Back"), QStringLiteral("0-8"));
  EXPECT_EQ(Marks(Group::kGuest, "pointer"), QStringLiteral("9"));
  EXPECT_EQ(Marks(Group::kGuest, "wheel"), QStringLiteral("10 1.5"));
  EXPECT_EQ(Bars(Group::kGuest, "button 304"), QStringLiteral("11-12"));
  EXPECT_EQ(Marks(Group::kGuest, "left stick"), QStringLiteral("13"));
  EXPECT_EQ(Marks(Group::kGuest, "hat x"), QStringLiteral("14 -1"));
  EXPECT_EQ(Marks(Group::kGuest, "other lines"), QStringLiteral("15"));
  EXPECT_EQ(Marks(Group::kGuest, "text"), QStringLiteral("16 a b"));
}

// Every event reports the device, which is left out.
TEST_F(Timeline, WhatTheHostIsToldHasOneLane) {
  chart_.AddEntry({3, Source::kCallback, QStringLiteral("mapped 1")});
  chart_.AddEntry({4, Source::kCallback, QStringLiteral("status 2 F")});
  EXPECT_EQ(Marks(Group::kHost, "host"), QStringLiteral("4 status 2 F"));
  EXPECT_EQ(chart_.line_count(), 0);
  EXPECT_EQ(chart_.end_ms(), 4);
}

}  // namespace
}  // namespace tavi
