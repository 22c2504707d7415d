#include "simulators/curve/curve_points.h"

#include <gtest/gtest.h>
#include <limits>

#include "keymap/curve_config_item.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::CurveConfigItem;

CurvePoints Straight(const QPointF& start, const QPointF& end) {
  CurveConfigItem item;
  item.curve_straight = true;
  item.curve_start = start;
  item.curve_end = end;
  return CurvePoints(item);
}

CurvePoints Written(const char* text) {
  CurveConfigItem item;
  item.curve_points = QString::fromLatin1(text);
  return CurvePoints(item);
}

// Exactly, unlike the comparison of points.
void ExpectPoint(double x, double y, const std::optional<QPointF>& point) {
  ASSERT_TRUE(point.has_value());
  EXPECT_EQ(x, point->x());
  EXPECT_EQ(y, point->y());
}

// 0.0625 * 50 = 3.125: 3 steps of 0.02083333... with six digits each.
TEST(CurvePoints, AStraightCurveGoesFromEndToEndInSixDigits) {
  const CurvePoints points = Straight({0, 0}, {0.0625, 0});
  ASSERT_EQ(4, points.Count());
  ExpectPoint(0, 0, points.At(0));
  ExpectPoint(0.0208333, 0, points.At(1));
  ExpectPoint(0.0416667, 0, points.At(2));
  ExpectPoint(0.0625, 0, points.At(3));
}

TEST(CurvePoints, AStraightCurveBeginsAtItsStart) {
  // -0.5 * 50 = -25 steps: the first of 25 is -0.02.
  const CurvePoints points = Straight({0.25, -0.125}, {-0.25, -0.125});
  ASSERT_EQ(26, points.Count());
  ExpectPoint(0.25, -0.125, points.At(0));
  ExpectPoint(0.23, -0.125, points.At(1));
  ExpectPoint(-0.25, -0.125, points.At(25));
}

TEST(CurvePoints, TheLongerAxisGivesTheSteps) {
  const struct {
    QPointF end;
    int count;
  } rows[] = {
      {{0.0625, 0.125}, 7},   // 3 and 6 steps
      {{0.125, 0.0625}, 7},   // 6 and 3
      {{-0.125, 0.0625}, 7},  // the sign plays no part
      {{0.0625, -0.125}, 7},  //
      {{0.021, 0}, 2},        // 1.05
      {{0.0199, 0.0199}, 1},  // 0.995: no step
      {{0.01, 0}, 1},         //
      {{1, 1}, 51},           //
  };
  for (const auto& row : rows) EXPECT_EQ(row.count, Straight({0, 0}, row.end).Count()) << row.count;
}

TEST(CurvePoints, WithoutAStepTheOnlyPointIsTheOrigin) {
  for (const QPointF& end : {QPointF(0.125, 0.25), QPointF(0.13, 0.25), QPointF(0.125, 0.26)}) {
    const CurvePoints points = Straight({0.125, 0.25}, end);
    ASSERT_EQ(1, points.Count());
    ExpectPoint(0, 0, points.At(0));
  }
}

TEST(CurvePoints, AnEnormousStraightCurveIsNotWrittenOut) {
  const CurvePoints points = Straight({0, 0}, {1e300, 0});
  EXPECT_EQ(qint64{std::numeric_limits<int>::max()} + 1, points.Count());
  ExpectPoint(0, 0, points.At(0));
}

TEST(CurvePoints, WrittenEntriesStandBetweenSemicolons) {
  const CurvePoints points = Written("0.5,-0.25;1e-2,.5");
  ASSERT_EQ(2, points.Count());
  ExpectPoint(0.5, -0.25, points.At(0));
  ExpectPoint(0.01, 0.5, points.At(1));
}

TEST(CurvePoints, EmptyEntriesCount) {
  const CurvePoints points = Written(";0.5,0.5;");
  ASSERT_EQ(3, points.Count());
  EXPECT_FALSE(points.At(0));
  EXPECT_TRUE(points.At(1));
  EXPECT_FALSE(points.At(2));
}

TEST(CurvePoints, FewerThanTwoEntriesAreNone) {
  EXPECT_EQ(0, Written("").Count());
  EXPECT_EQ(0, Written("0.5,0.5").Count());
  EXPECT_EQ(2, Written(";").Count());
}

TEST(CurvePoints, AnEntryIsTwoParts) {
  for (const char* entry : {"", "0.5", "0.5;0.5", "1,2,3", "0.5 0.5", ",,"}) {
    EXPECT_FALSE(Written(qPrintable(QString::fromLatin1(entry) + ";0,0")).At(0)) << entry;
  }
}

TEST(CurvePoints, APartThatIsNoNumberIsZero) {
  const CurvePoints points = Written("x,0.5;0.5,;nan,0.5;,");
  ExpectPoint(0, 0.5, points.At(0));
  ExpectPoint(0.5, 0, points.At(1));
  ExpectPoint(0, 0.5, points.At(2));
  ExpectPoint(0, 0, points.At(3));
}

}  // namespace
}  // namespace taviinputmanager
