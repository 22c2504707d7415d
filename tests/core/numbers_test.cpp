#include "core/numbers.h"

#include <cmath>
#include <gtest/gtest.h>

namespace taviinputmanager {
namespace {

TEST(Numbers, TruncateGoesTowardsZero) {
  EXPECT_EQ(2, Truncate(2.9));
  EXPECT_EQ(-2, Truncate(-2.9));
  EXPECT_EQ(0, Truncate(-0.5));
}

TEST(Numbers, RoundTakesHalvesUpwards) {
  EXPECT_EQ(1, Round(0.5));
  EXPECT_EQ(0, Round(0.49));
  EXPECT_EQ(0, Round(-0.5));
  EXPECT_EQ(-1, Round(-0.51));
  EXPECT_EQ(-1, Round(-1.5));
  EXPECT_EQ(-2, Round(-1.51));
}

// Like qRound of Qt 5. That of Qt 6 rounds halves away from zero. Eighths and their sums are exact.
TEST(Numbers, RoundIsThatOfQt5) {
  for (int i = -4000; i <= 4000; ++i) EXPECT_EQ(std::floor(i / 8.0 + 0.5), Round(i / 8.0)) << i / 8.0;
}

TEST(Numbers, WhatNoIntHoldsSaturates) {
  constexpr int kHighest = std::numeric_limits<int>::max();
  constexpr int kLowest = std::numeric_limits<int>::min();
  EXPECT_EQ(kHighest, Round(1e300));
  EXPECT_EQ(kLowest, Round(-1e300));
  EXPECT_EQ(kHighest, Truncate(std::numeric_limits<double>::infinity()));
  EXPECT_EQ(kLowest, Truncate(-std::numeric_limits<double>::infinity()));
  EXPECT_EQ(0, Round(std::nan("")));
  EXPECT_EQ(0, Truncate(std::nan("")));
}

TEST(Numbers, CountsWrapAndPositionsStop) {
  constexpr int kHighest = std::numeric_limits<int>::max();
  constexpr int kLowest = std::numeric_limits<int>::min();
  EXPECT_EQ(kLowest, AddWrapped(kHighest, 1));
  EXPECT_EQ(kHighest, AddWrapped(kLowest, -1));
  EXPECT_EQ(-3, AddWrapped(2, -5));
  EXPECT_EQ(4, MultiplyWrapped(42949673, 100));  // 4 more than 2^32
  EXPECT_EQ(-6, MultiplyWrapped(2, -3));
  EXPECT_EQ(kHighest, AddSaturated(kHighest, 1));
  EXPECT_EQ(kLowest, AddSaturated(kLowest, -1));
  EXPECT_EQ(-1, AddSaturated(kHighest, kLowest));
  EXPECT_EQ(kLowest, SubtractSaturated(kLowest, 1));
  EXPECT_EQ(kHighest, SubtractSaturated(0, kLowest));
  EXPECT_EQ(kHighest, NegateSaturated(kLowest));
}

}  // namespace
}  // namespace taviinputmanager
