#include "host/guest/rounding.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tavi {
namespace {

// Eighths and their sums are exact.
TEST(Rounding, TakesHalvesUpwards) {
  EXPECT_EQ(Rounded(-0.5), 0);
  EXPECT_EQ(Rounded(-1.5), -1);
  EXPECT_EQ(Rounded(-1.625), -2);
  EXPECT_EQ(Rounded(0.5), 1);
  for (int i = -4000; i <= 4000; ++i) EXPECT_EQ(Rounded(i / 8.0), std::floor(i / 8.0 + 0.5)) << i / 8.0;
}

TEST(Rounding, TakesBothNumbersOfAPoint) { EXPECT_EQ(Rounded(QPointF(-2.5, 2.5)), QPoint(-2, 3)); }

}  // namespace
}  // namespace tavi
