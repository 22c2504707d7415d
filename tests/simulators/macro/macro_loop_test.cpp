#include "simulators/macro/macro_loop.h"

#include <gtest/gtest.h>

namespace taviinputmanager {
namespace {

// How often the body between two commands runs; at most ten times.
int Runs(int count, int start, int last) {
  MacroLoop loop;
  loop.Start(count, start);
  int runs = 1;
  while (loop.Repeats(last) && runs < 10) ++runs;
  return runs;
}

TEST(MacroLoop, CountsItsBody) {
  EXPECT_EQ(3, Runs(3, 1, 2));
  EXPECT_EQ(1, Runs(1, 1, 2));
  EXPECT_EQ(1, Runs(0, 1, 2));
  EXPECT_EQ(1, Runs(-4, 1, 2));
  EXPECT_EQ(10, Runs(MacroLoop::kUntilRelease, 1, 2));
}

TEST(MacroLoop, ABodyOfOneCommandOrNoneRunsOnce) {
  EXPECT_EQ(1, Runs(5, 1, 1));
  EXPECT_EQ(1, Runs(5, 1, 0));
}

TEST(MacroLoop, AnEndWithoutStartGoesOn) {
  MacroLoop loop;
  EXPECT_FALSE(loop.Repeats(4));
}

TEST(MacroLoop, IsForgottenAtItsEnd) {
  MacroLoop loop;
  loop.Start(2, 1);
  EXPECT_TRUE(loop.Repeats(3));
  EXPECT_FALSE(loop.Repeats(3));
  EXPECT_EQ(0, loop.GetStart());
  EXPECT_FALSE(loop.Repeats(3));
}

TEST(MacroLoop, ALoopUntilReleaseEndsAtTheNextStop) {
  MacroLoop loop;
  loop.Start(MacroLoop::kUntilRelease, 1);
  EXPECT_TRUE(loop.Repeats(3));
  EXPECT_TRUE(loop.IsUntilRelease());
  loop.EndSoon();
  EXPECT_FALSE(loop.IsUntilRelease());
  EXPECT_FALSE(loop.Repeats(3));
}

}  // namespace
}  // namespace taviinputmanager
