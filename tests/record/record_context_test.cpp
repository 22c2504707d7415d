#include <gtest/gtest.h>

#include "record/replay_context.h"
#include "tests/record/record_files.h"

namespace taviinputmanager {
namespace {

TEST(ReplayContext, TheSpeedIsOnTopOfWhatTheFileSays) {
  ReplayContext context;
  context.ApplySpeed(2.0);  // without actions there is nothing to speed up
  context.actions = Single({{90, "a"}}, AtSpeed(1.5));
  context.ApplySpeed(2.0);
  EXPECT_EQ(3.0, context.actions->speed);
  EXPECT_EQ(1.0, context.speed_ratio);
  context.First();
  EXPECT_EQ(30, context.next_delay);
}

TEST(ReplayContext, ARatioOfNothingOverAllPlaysAtNormalSpeed) {
  ReplayContext context;
  context.actions = Single({{90, "a"}}, AtSpeed(0.0));
  context.ApplySpeed(2.0);
  context.First();
  EXPECT_EQ(90, context.next_delay);
}

TEST(ReplayContext, GoesFromActionToActionUntilThereIsNone) {
  ReplayContext context;
  context.actions = Single({{1, "a"}, {2, "b"}});
  RecordAction action;
  EXPECT_FALSE(context.CurrentAction(&action)) << "nothing is due before the first";
  context.First();
  ASSERT_TRUE(context.CurrentAction(&action));
  EXPECT_EQ("a", action.data.toStdString());
  context.Next();
  ASSERT_TRUE(context.CurrentAction(&action));
  EXPECT_EQ("b", action.data.toStdString());
  EXPECT_EQ(2, context.next_delay);
  context.Next();
  EXPECT_FALSE(context.CurrentAction(&action));
  EXPECT_EQ("", action.data.toStdString()) << "what is over is forgotten";
  EXPECT_EQ(0, action.timing);
  context.First();
  EXPECT_TRUE(context.CurrentAction(&action));
  EXPECT_FALSE(context.CurrentAction(nullptr));
}

TEST(ReplayContext, AnActionWithoutATypeIsNone) {
  ReplayContext context;
  const auto actions = Single({{1, "a"}, {2, "b"}});
  actions->actions.first()->type.clear();
  context.actions = actions;
  context.First();
  RecordAction action;
  EXPECT_FALSE(context.CurrentAction(&action));
  EXPECT_EQ("a", action.data.toStdString());
}

TEST(ReplayContext, WithoutActionsNothingIsDue) {
  ReplayContext context;
  context.current_action.type = "touch";
  context.First();
  RecordAction action;
  EXPECT_FALSE(context.CurrentAction(&action));
  context.current_action.type = "touch";
  context.Next();
  EXPECT_FALSE(context.CurrentAction(&action));
}

TEST(ReplayContext, TimeThatPassedIsTakenOffTheDelay) {
  const struct {
    const char* name;
    int elapsed;
    int left;
  } rows[] = {
      {"a part", 300, 700},
      {"all but one", 999, 1},
      {"all", 1000, 0},
      {"more", 1001, 0},
      {"a clock that was set back adds", -5, 1005},
  };
  for (const auto& row : rows) {
    ReplayContext context;
    context.next_delay = 1000;
    context.ReduceDelay(row.elapsed);
    EXPECT_EQ(row.left, context.next_delay) << row.name;
  }
}

}  // namespace
}  // namespace taviinputmanager
