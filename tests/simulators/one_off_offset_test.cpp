#include "simulators/one_off_offset.h"

#include <gtest/gtest.h>

#include "simulators/relative_counts.h"

namespace taviinputmanager {
namespace {

RelativeCounts Counts(int x, int y) {
  RelativeCounts counts;
  counts.Add(x, y);
  return counts;
}

const QPointF kPixelACount(1.0, 1.0);

TEST(OneOffOffset, IsNoneBeforeAStart) {
  OneOffOffset offset;
  offset.OnMovement(Counts(100, 0), kPixelACount, 10, 20);
  EXPECT_EQ(QPoint(0, 0), offset.Get());
}

TEST(OneOffOffset, IsTakenAtTheThresholdAndStays) {
  OneOffOffset offset;
  offset.Start(true);
  offset.OnMovement(Counts(9, 0), kPixelACount, 10, 20);
  EXPECT_EQ(QPoint(0, 0), offset.Get());
  offset.OnMovement(Counts(-10, 0), kPixelACount, 10, 20);
  EXPECT_EQ(QPoint(-20, 0), offset.Get());
  offset.OnMovement(Counts(0, 50), kPixelACount, 10, 20);
  EXPECT_EQ(QPoint(-20, 0), offset.Get());
}

TEST(OneOffOffset, AStartForgetsWhatWasTaken) {
  OneOffOffset offset;
  offset.Start(true);
  offset.OnMovement(Counts(10, 0), kPixelACount, 10, 20);
  offset.Start(false);
  EXPECT_EQ(QPoint(0, 0), offset.Get());
  offset.OnMovement(Counts(10, 0), kPixelACount, 10, 20);
  EXPECT_EQ(QPoint(0, 0), offset.Get());
}

TEST(OneOffOffset, SensitivityDecidesOnTheTravelAndNotOnTheJump) {
  OneOffOffset offset;
  offset.Start(true);
  offset.OnMovement(Counts(3, 4), {0.0, 2.0}, 8, 10);  // a travel of 8; (3, 4) is 5 long
  EXPECT_EQ(QPoint(6, 8), offset.Get());
}

TEST(RelativeCounts, RunOnPastTheRangeOfAnInt) {
  RelativeCounts counts;
  counts.Add(0x7FFFFFFF, -0x7FFFFFFF);
  counts.Add(2, -2);
  EXPECT_EQ(QPoint(-0x7FFFFFFF, 0x7FFFFFFF), counts.ToPoint());
}

}  // namespace
}  // namespace taviinputmanager
