#include "core/decimal.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace taviinputmanager {
namespace {

std::string Written(int value) {
  char text[kLongestDecimal];
  return {text, WriteDecimal(text, value)};
}

std::string WrittenBefore(int value) {
  char text[kLongestDecimal];
  char* const end = text + sizeof text;
  return {WriteDecimalBefore(end, value), end};
}

int Read(const std::string& text) { return ReadDecimal(text.data(), text.data() + text.size()); }

void ExpectAsTheLibrary(int value) {
  const std::string text = std::to_string(value);
  EXPECT_EQ(text, Written(value));
  EXPECT_EQ(text, WrittenBefore(value));
  EXPECT_EQ(value, Read(text));
}

TEST(Decimal, IsWhatTheLibraryWrites) {
  for (int value = -20000; value <= 20000; ++value) ExpectAsTheLibrary(value);
  constexpr int kHighest = std::numeric_limits<int>::max();
  constexpr int kLowest = std::numeric_limits<int>::min();
  for (int power = 10000; power <= kHighest / 10; power *= 10) {
    for (const int value : {power - 1, power, power + 1, -power}) ExpectAsTheLibrary(value);
  }
  for (const int value : {kHighest, kHighest - 1, kLowest, kLowest + 1}) ExpectAsTheLibrary(value);
}

TEST(Decimal, WhatIsNoIntReadsAsZero) {
  for (const char* text : {"", "-", "x", "1x", "x1", "1.5", " 1", "1 ", "+1", "2147483648", "-2147483649", "1e3",
                           "99999999999", "12345678x"}) {
    EXPECT_EQ(0, Read(text)) << text;
  }
}

// As in padded numbers.
TEST(Decimal, LeadingZerosCountForNothing) { EXPECT_EQ(12, Read("0012")); }

}  // namespace
}  // namespace taviinputmanager
