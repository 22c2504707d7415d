#include "record/single_record_actions.h"

#include <gtest/gtest.h>

#include "record/record_action.h"
#include "tests/record/record_files.h"

namespace taviinputmanager {
namespace {

TEST(SingleRecordActions, StartsAsOneRepeatAtNormalSpeed) {
  const SingleRecordActions actions;
  EXPECT_EQ(1, actions.repeat_index);
  EXPECT_EQ(0, actions.delay_issued_for);
  EXPECT_EQ(0, actions.action_index);
  EXPECT_EQ(1.0, actions.speed);
  EXPECT_EQ(1, actions.control.repeat_times);
  EXPECT_EQ(0, actions.control.repeat_delay);
  EXPECT_EQ(1.0, actions.control.speed_ratio);
  EXPECT_EQ(0, actions.control.till_next_item_delay);
  EXPECT_EQ("", actions.control.file_name.toStdString());
}

TEST(SingleRecordActions, GivesEachActionWithItsGap) {
  EXPECT_STEPS(Single({{5, "a"}, {0, "b"}, {70, "c"}}).get(), "5 a", "0 b", "70 c");
}

TEST(SingleRecordActions, CopiesAllFieldsOfAnAction) {
  SingleRecordActions actions;
  actions.actions.append(new RecordAction{12, "touch", "press_rel:(0.5,0.5)", "3", "more"});
  RecordAction action;
  int delay = 0;
  ASSERT_TRUE(actions.First(&action, &delay));
  EXPECT_EQ(12, action.timing);
  EXPECT_EQ("touch", action.type.toStdString());
  EXPECT_EQ("press_rel:(0.5,0.5)", action.data.toStdString());
  EXPECT_EQ("3", action.extra1.toStdString());
  EXPECT_EQ("more", action.extra2.toStdString());
  EXPECT_EQ(12, delay);
}

TEST(SingleRecordActions, AnEmptyListEndsAtOnce) {
  EXPECT_NO_STEPS(Single({}).get());
  EXPECT_NO_STEPS(Single({}, Repeated(3, 100)).get());
}

TEST(SingleRecordActions, NothingIsGivenWithoutAPlaceForIt) {
  const auto actions = Single({{1, "a"}, {2, "b"}});
  RecordAction action;
  int delay = 77;
  ASSERT_TRUE(actions->First(&action, &delay));
  ASSERT_TRUE(actions->Next(&action, &delay));

  EXPECT_FALSE(actions->First(nullptr, &delay));
  EXPECT_FALSE(actions->First(&action, nullptr));
  EXPECT_FALSE(actions->First(nullptr, nullptr));
  EXPECT_EQ(1, actions->action_index) << "a refused start does not rewind";
  EXPECT_EQ("b", action.data.toStdString());
  EXPECT_EQ(2, delay);
}

TEST(SingleRecordActions, RepeatTimesBelowTwoPlayOnce) {
  for (const int times : {-3, 0, 1}) {
    EXPECT_STEPS(Single({{1, "a"}, {2, "b"}}, Repeated(times, 1000)).get(), "1 a", "2 b") << times;
  }
}

TEST(SingleRecordActions, PausesBetweenTwoRepeatsAndNotBehindTheLast) {
  EXPECT_STEPS(Single({{7, "a"}, {2, "b"}}, Repeated(2, 1000)).get(), "7 a", "2 b", "1000 timer", "7 a", "2 b");
}

TEST(SingleRecordActions, PausesOnceAfterEveryRepeat) {
  EXPECT_STEPS(Single({{1, "a"}}, Repeated(3, 20)).get(), "1 a", "20 timer", "1 a", "20 timer", "1 a");
}

TEST(SingleRecordActions, WithoutARepeatDelayThereIsNoTimer) {
  for (const int delay : {0, -5}) {
    EXPECT_STEPS(Single({{1, "a"}}, Repeated(3, delay)).get(), "1 a", "1 a", "1 a") << delay;
  }
  EXPECT_STEPS(Single({{1, "a"}}, Repeated(2, 1)).get(), "1 a", "1 timer", "1 a");
}

TEST(SingleRecordActions, AnEndStaysTheEnd) {
  const auto actions = Single({{1, "a"}}, Repeated(2, 10));
  EXPECT_STEPS(actions.get(), "1 a", "10 timer", "1 a");
  RecordAction action;
  int delay = 0;
  EXPECT_FALSE(actions->Next(&action, &delay));
  EXPECT_FALSE(actions->Next(&action, &delay));
}

TEST(SingleRecordActions, FirstStartsOverInTheMiddleOfARepeat) {
  const auto actions = Single({{1, "a"}, {2, "b"}}, Repeated(2, 10));
  RecordAction action;
  int delay = 0;
  ASSERT_TRUE(actions->First(&action, &delay));
  for (int i = 0; i < 3; ++i) ASSERT_TRUE(actions->Next(&action, &delay));  // b, the pause, a of the second repeat
  EXPECT_EQ(2, actions->repeat_index);
  EXPECT_EQ(1, actions->delay_issued_for);
  EXPECT_STEPS(actions.get(), "1 a", "2 b", "10 timer", "1 a", "2 b");
}

TEST(SingleRecordActions, ATimerHasNothingButItsType) {
  const auto actions = Single({{9, "a"}}, Repeated(2, 10));
  RecordAction action;
  int delay = 0;
  ASSERT_TRUE(actions->First(&action, &delay));
  action = RecordAction();
  ASSERT_TRUE(actions->Next(&action, &delay));
  EXPECT_EQ("timer", action.type.toStdString());
  EXPECT_EQ("", (action.data + action.extra1 + action.extra2).toStdString());
  EXPECT_EQ(0, action.timing);
}

// (1 / speed) is computed first, then the product is truncated.
TEST(SingleRecordActions, SpeedDividesAndCutsOff) {
  const struct {
    const char* name;
    double speed;
    int timing;
    int delay;
  } rows[] = {
      {"twice as fast: 16.5 is cut off", 2.0, 33, 16},
      {"half as fast", 0.5, 33, 66},
      {"a third: 33.3 is cut off", 3.0, 100, 33},
      {"towards zero below it: -16.5", 2.0, -33, -16},
      {"no speed is normal speed", 0.0, 33, 33},
      {"a negative one too", -2.0, 33, 33},
      {"1 / 49 is a little small, and so 49 of it are below 1", 49.0, 49, 0},
      {"a delay stops at what an int holds", 0.001, 2147483647, 2147483647},
  };
  for (const auto& row : rows) {
    const auto actions = Single({{row.timing, "a"}});
    actions->speed = row.speed;
    EXPECT_STEPS(actions.get(), QString::number(row.delay) + " a") << row.name;
  }
}

TEST(SingleRecordActions, NoRestIsCarriedFromActionToAction) {
  const auto actions = Single({{33, "a"}, {33, "b"}, {33, "c"}});
  actions->speed = 2.0;
  EXPECT_STEPS(actions.get(), "16 a", "16 b", "16 c");
}

TEST(SingleRecordActions, ThePauseBetweenRepeatsIsAtItsSpeed) {
  const auto actions = Single({{10, "a"}}, Repeated(2, 1001));
  actions->speed = 2.0;
  EXPECT_STEPS(actions.get(), "5 a", "500 timer", "5 a");
  actions->speed = -1.0;
  EXPECT_STEPS(actions.get(), "10 a", "1001 timer", "10 a");
}

TEST(SingleRecordActions, TheOwnRatioIsNotAppliedTwice) {
  const auto actions = Single({{10, "a"}}, AtSpeed(5.0));
  EXPECT_STEPS(actions.get(), "10 a") << "the caller includes the ratio in the speed";
}

TEST(RecordActions, TheBaseOnlyStartsOver) {
  RecordActions actions;
  actions.repeat_index = 4;
  actions.delay_issued_for = 3;
  RecordAction action;
  int delay = 0;
  EXPECT_FALSE(actions.First(nullptr, &delay));
  EXPECT_FALSE(actions.First(&action, nullptr));
  EXPECT_EQ(4, actions.repeat_index);
  EXPECT_EQ(3, actions.delay_issued_for);
  EXPECT_TRUE(actions.First(&action, &delay));
  EXPECT_EQ(1, actions.repeat_index);
  EXPECT_EQ(0, actions.delay_issued_for);
  EXPECT_TRUE(actions.Next(&action, &delay));
}

}  // namespace
}  // namespace taviinputmanager
