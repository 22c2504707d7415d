#include "host/picture/timeline_picture.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <QXmlStreamReader>

#include "host/picture/timeline_chart.h"
#include "host/simulation/script.h"
#include "host/simulation/simulated_host.h"

namespace tavi {
namespace {

// The axis is 1000 long and begins at 174: a margin of 24 and 150 for the names.
class TimelineDrawing : public testing::Test {
 protected:
  void Key(const QString& name, qint64 from_ms, qint64 to_ms) {
    for (const QString& verb : {QStringLiteral("down "), QStringLiteral("up ")}) {
      const Script script = ParseScript(verb + name);
      ASSERT_EQ(script.commands.size(), 1);
      chart_.AddInput(verb == "down " ? from_ms : to_ms, script.commands[0]);
    }
  }
  void Said(qint64 ms, const QString& text) { chart_.AddEntry({ms, TimelineEntry::Source::kCallback, text}); }

  void Draw(qint64 end_ms) {
    chart_.Finish(end_ms);
    page_ = DrawTimeline(chart_, QStringLiteral("a & b"));
    QXmlStreamReader xml(page_);
    while (!xml.atEnd()) {
      if (xml.readNext() != QXmlStreamReader::StartElement) continue;
      const QXmlStreamAttributes attributes = xml.attributes();
      const auto value = [&](const char* name) { return attributes.value(QLatin1String(name)).toString(); };
      if (xml.name() == QLatin1String("rect") && attributes.hasAttribute("x")) {
        bars_ += value("x") + "+" + value("width");
      }
      if (xml.name() == QLatin1String("path") && attributes.hasAttribute("fill")) ticks_ += value("d").count('M');
      if (xml.name() == QLatin1String("title")) tips_ += xml.readElementText();
      if (xml.name() == QLatin1String("text")) texts_ += xml.readElementText();
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  }

  TimelineChart chart_;
  QByteArray page_;
  QStringList bars_;  // "left+width"
  QVector<int> ticks_;
  QStringList texts_;
  QStringList tips_;  // the page's title first
};

// 100 of 400 ms are 250: from 174 + 250 on, 500 long.
TEST_F(TimelineDrawing, ABarLiesWhereItsTimeIs) {
  Key("W", 100, 300);
  Draw(400);
  EXPECT_EQ(bars_, QStringList{"424.0+500.0"});
  EXPECT_EQ(tips_, (QStringList{"a & b", "W: 100 ms to 300 ms"}));
  for (const char* text :
       {"a & b", "400 ms, 2 commands of input, 0 lines for the guest", "What the player does", "W"}) {
    EXPECT_TRUE(texts_.contains(text)) << text;
  }
}

// A step of 50 ms makes nine ticks of 400 ms; one of 20 would make 21.
TEST_F(TimelineDrawing, TheAxisHasRoundSteps) {
  Key("W", 0, 400);
  Draw(400);
  EXPECT_TRUE(texts_.contains("50 ms"));
  EXPECT_TRUE(texts_.contains("400 ms"));
  EXPECT_FALSE(texts_.contains("20 ms"));
}

TEST_F(TimelineDrawing, LongTimesAreSeconds) {
  Key("W", 0, 400);
  Draw(20000);
  EXPECT_TRUE(texts_.contains("2 s"));
  EXPECT_TRUE(texts_.contains("20 s"));
}

TEST_F(TimelineDrawing, AMomentHasAWidthAllTheSame) {
  Key("W", 100, 100);
  Draw(1000);
  EXPECT_EQ(bars_, QStringList{"274.0+2.5"});
}

// Released and pressed again at the same time: two bars, side by side.
TEST_F(TimelineDrawing, BarsThatFollowEachOtherStayTwo) {
  Key("W", 0, 500);
  Key("W", 500, 1000);
  Draw(1000);
  EXPECT_EQ(bars_, (QStringList{"174.0+500.0", "674.0+500.0"}));
}

TEST_F(TimelineDrawing, WhatIsTooCloseIsDrawnAsOne) {
  for (int i = 0; i < 3; ++i) Key("W", i, i);
  Draw(1000);
  EXPECT_EQ(bars_, QStringList{"174.0+2.5"});
  EXPECT_EQ(tips_.last(), QStringLiteral("W: 0 ms to 2 ms, 3 times"));
}

// A hundred thousand of each: bars are at least 4 apart and ticks 1.5, on an axis of 1000.
TEST_F(TimelineDrawing, ALongRunHasABoundedPicture) {
  for (int i = 0; i < 100000; ++i) {
    Key("W", i * 10, i * 10 + 5);
    Said(i * 10, QStringLiteral("status %1").arg(i));
  }
  Draw(1000000);
  EXPECT_LE(bars_.size(), 251);
  ASSERT_EQ(ticks_.size(), 1);
  EXPECT_LE(ticks_[0], 668);
  EXPECT_LT(page_.size(), 200000);
}

TEST_F(TimelineDrawing, TooManyLanesAreCounted) {
  for (int i = 0; i < 70; ++i) Key(QStringLiteral("Scan %1").arg(400 + i), 0, 10);
  Draw(10);
  EXPECT_EQ(bars_.size(), kMostLanes);
  EXPECT_TRUE(texts_.contains("and 10 more lanes"));
}

TEST_F(TimelineDrawing, WhatWasSaidStandsBesideItsMark) {
  Said(0, QStringLiteral("status 1 Grave"));
  Draw(100);
  EXPECT_TRUE(texts_.contains("status 1 Grave"));
  EXPECT_TRUE(texts_.contains("What the host is told"));
}

TEST_F(TimelineDrawing, NothingAtAllIsAPictureToo) {
  Draw(0);
  EXPECT_TRUE(texts_.contains("0 ms, 0 commands of input, 0 lines for the guest"));
}

}  // namespace
}  // namespace tavi
