// The position of a replay in its record, without a replay.
#include "record/replay_context.h"

#include <gtest/gtest.h>
#include <limits>

namespace taviinputmanager {
namespace {

TEST(ReplayContext, TakesTimeOffTheDelayDownToNone) {
  ReplayContext context;
  context.next_delay = 1000;
  context.ReduceDelay(300);
  EXPECT_EQ(700, context.next_delay);
  context.ReduceDelay(700);
  EXPECT_EQ(0, context.next_delay);
  context.next_delay = 5;
  context.ReduceDelay(6);
  EXPECT_EQ(0, context.next_delay);
}

// Negative elapsed time, because the clock was set back.
TEST(ReplayContext, ADelayStaysWithinItsRange) {
  ReplayContext context;
  context.next_delay = 1000;
  context.ReduceDelay(-300);
  EXPECT_EQ(1300, context.next_delay);
  context.ReduceDelay(std::numeric_limits<int>::max() * -1 - 1);
  EXPECT_EQ(std::numeric_limits<int>::max(), context.next_delay);
}

TEST(ReplayContext, WithoutActionsThereIsNothingToPlay) {
  ReplayContext context;
  context.ApplySpeed(2);
  context.First();
  context.Next();
  RecordAction action;
  EXPECT_FALSE(context.CurrentAction(&action));
  EXPECT_FALSE(context.CurrentAction(nullptr));
  EXPECT_EQ(1.0, context.speed_ratio);
  EXPECT_EQ(0, context.next_delay);
}

TEST(ReplayContext, AnActionWithoutTypeIsNone) {
  ReplayContext context;
  context.current_action.data = "press";
  RecordAction action;
  EXPECT_FALSE(context.CurrentAction(&action));
  EXPECT_EQ("press", action.data.toStdString());  // copied all the same
  context.current_action.type = "touch";
  EXPECT_TRUE(context.CurrentAction(&action));
}

}  // namespace
}  // namespace taviinputmanager
