#include <gtest/gtest.h>

#include "host/target/line_rate.h"
#include "host/target/retry_pause.h"

namespace tavi {
namespace {

TEST(LineRate, IsThatOfTheLastWholeSecond) {
  LineRate rate;
  for (const int ms : {1000, 1500, 1999}) rate.Count(ms);
  EXPECT_EQ(rate.PerSecond(1999), 0);  // the second is not over
  EXPECT_EQ(rate.PerSecond(2000), 3);
  rate.Count(2001);
  EXPECT_EQ(rate.PerSecond(2999), 3);
  EXPECT_EQ(rate.PerSecond(3000), 1);
  EXPECT_EQ(rate.PerSecond(4000), 0);
}

TEST(LineRate, IsNothingAfterARest) {
  LineRate rate;
  rate.Count(1000);
  EXPECT_EQ(rate.PerSecond(3000), 0);  // nothing came between 2000 and 3000
  rate.Count(9000);
  EXPECT_EQ(rate.PerSecond(9999), 0);
  EXPECT_EQ(rate.PerSecond(10000), 1);
}

TEST(RetryPause, DoublesUpToHalfAMinute) {
  RetryPause pause;
  for (const int ms : {1000, 2000, 4000, 8000, 16000, 30000, 30000}) EXPECT_EQ(pause.NextMs(), ms);
}

TEST(RetryPause, IsShortAgainAfterAConnectionThatHeld) {
  RetryPause pause;
  pause.NextMs();
  pause.TakeConnection(9999);
  EXPECT_EQ(pause.NextMs(), 2000);
  pause.TakeConnection(10000);
  EXPECT_EQ(pause.NextMs(), 1000);
  pause.NextMs();
  pause.Reset();
  EXPECT_EQ(pause.NextMs(), 1000);
}

}  // namespace
}  // namespace tavi
