#include "record/merge_record_actions.h"

#include <gtest/gtest.h>
#include <random>

#include "record/record_action.h"
#include "tests/record/record_files.h"

namespace taviinputmanager {
namespace {

using Gap = QPair<int, int>;

TEST(MergeRecordActions, PlaysItsItemsWithOnePauseBetweenTwo) {
  const auto list = Merged({Single({{10, "a"}, {1, "b"}}, WithGap(100)), Single({{20, "c"}}, WithGap(999))});
  EXPECT_STEPS(list.get(), "10 a", "1 b", "100 timer", "20 c");
}

TEST(MergeRecordActions, AGapOfNoTimeIsAStepTooAndAGapBehindTheLastIsNone) {
  const auto list = Merged({Single({{1, "a"}}), Single({{2, "b"}}), Single({{3, "c"}}, WithGap(50))});
  EXPECT_STEPS(list.get(), "1 a", "0 timer", "2 b", "0 timer", "3 c");
}

TEST(MergeRecordActions, EachGapOfEachPassPausesOnce) {
  const auto list =
      Merged({Single({{10, "a"}}, WithGap(100)), Single({{20, "b"}}), Single({{30, "c"}})}, Repeated(2, 500));
  EXPECT_STEPS(list.get(), "10 a", "100 timer", "20 b", "0 timer", "30 c",  // first pass
               "500 timer", "10 a", "100 timer", "20 b", "0 timer", "30 c");
  EXPECT_EQ((QSet<Gap>{{0, 1}, {1, 1}, {0, 2}, {1, 2}}), list->delays_issued);
}

TEST(MergeRecordActions, RepeatsWithoutADelayFollowAtOnce) {
  const auto list = Merged({Single({{1, "a"}}), Single({{2, "b"}})}, Repeated(2));
  EXPECT_STEPS(list.get(), "1 a", "0 timer", "2 b", "1 a", "0 timer", "2 b");
}

TEST(MergeRecordActions, AnItemPlaysAllItsRepeatsBeforeTheGap) {
  MergeParam twice = Repeated(2, 50);
  twice.till_next_item_delay = 100;
  const auto list = Merged({Single({{1, "a"}}, twice), Single({{2, "b"}})});
  EXPECT_STEPS(list.get(), "1 a", "50 timer", "1 a", "100 timer", "2 b");
}

TEST(MergeRecordActions, FirstStartsOverWithAllItsGaps) {
  const auto list = Merged({Single({{1, "a"}}, WithGap(5)), Single({{2, "b"}})}, Repeated(2, 7));
  EXPECT_STEPS(list.get(), "1 a", "5 timer", "2 b", "7 timer", "1 a", "5 timer", "2 b");
  EXPECT_STEPS(list.get(), "1 a", "5 timer", "2 b", "7 timer", "1 a", "5 timer", "2 b");
}

TEST(MergeRecordActions, AnEndStaysTheEnd) {
  const auto list = Merged({Single({{1, "a"}}), Single({{2, "b"}})});
  EXPECT_STEPS(list.get(), "1 a", "0 timer", "2 b");
  RecordAction action;
  int delay = 0;
  EXPECT_FALSE(list->Next(&action, &delay));
  EXPECT_FALSE(list->Next(&action, &delay));
}

TEST(MergeRecordActions, WithoutAPlaceForTheActionOnlyTheGapsAreForgotten) {
  const auto list = Merged({Single({{1, "a"}}), Single({{2, "b"}})}, Repeated(2));
  Walk(list.get());
  ASSERT_EQ(2, list->delays_issued.size());
  RecordAction action;
  int delay = 0;
  EXPECT_FALSE(list->First(nullptr, &delay));
  EXPECT_EQ(0, list->delays_issued.size());
  EXPECT_EQ(2, list->repeat_index);
  EXPECT_EQ(1, list->action_index);

  Walk(list.get());
  EXPECT_FALSE(list->First(&action, nullptr));
  EXPECT_EQ(0, list->delays_issued.size());
}

// ---- Speed ----

TEST(MergeRecordActions, SpeedsMultiplyOnTheWayDown) {
  // 2 * 3 = 6: 60 ms become 10, and the gap of 120 ms 20.
  const auto fast = Single({{60, "a"}}, WithGap(120, 2.0));
  const auto list = Merged({fast, Single({{60, "b"}})});
  list->speed = 3.0;
  EXPECT_STEPS(list.get(), "10 a", "20 timer", "20 b");
  EXPECT_EQ(6.0, fast->speed);
}

TEST(MergeRecordActions, SpeedsMultiplyOverAllLevels) {
  const auto inner = Single({{80, "a"}}, AtSpeed(2.0));
  const auto list = Merged({Merged({inner}, AtSpeed(2.0))});
  list->speed = 2.0;
  EXPECT_STEPS(list.get(), "10 a");
  EXPECT_EQ(8.0, inner->speed);
}

TEST(MergeRecordActions, TheProductOfSpeedsIsTestedAndNotItsFactors) {
  const struct {
    const char* name;
    double list;
    double item;
    const char* delay;
  } rows[] = {
      {"two negative ones make 2", -1.0, -2.0, "5 a"},
      {"one of 0 makes 0, which is normal speed", 0.0, 5.0, "10 a"},
      {"an item of 0 too", 5.0, 0.0, "10 a"},
      {"one negative one makes it negative, which is normal speed", -1.0, 5.0, "10 a"},
  };
  for (const auto& row : rows) {
    const auto list = Merged({Single({{10, "a"}}, AtSpeed(row.item))});
    list->speed = row.list;
    EXPECT_STEPS(list.get(), row.delay) << row.name;
  }
}

TEST(MergeRecordActions, TheSpeedIsTakenAnewAtEachEntry) {
  const auto list = Merged({Single({{12, "a"}})});
  EXPECT_STEPS(list.get(), "12 a");
  list->speed = 4.0;
  EXPECT_STEPS(list.get(), "3 a");
}

TEST(MergeRecordActions, GapsAndRepeatDelaysAreCutOffAtTheirSpeeds) {
  // The gap at the speed of the item before it, 2 * 1.5 = 3; the pause between repeats at that of the list, 1.5.
  const auto list = Merged({Single({{3, "a"}}, WithGap(100, 2.0)), Single({{3, "b"}})}, Repeated(2, 100));
  list->speed = 1.5;
  EXPECT_STEPS(list.get(), "1 a", "33 timer", "2 b", "66 timer", "1 a", "33 timer", "2 b");
}

TEST(MergeRecordActions, AGapOfAnItemWithoutSpeedIsAtNormalSpeed) {
  EXPECT_STEPS(Merged({Single({{3, "a"}}, WithGap(100, -2.0)), Single({{3, "b"}})}).get(), "3 a", "100 timer", "3 b");
}

TEST(MergeRecordActions, ANegativeGapIsGivenAsItStands) {
  EXPECT_STEPS(Merged({Single({{3, "a"}}, WithGap(-100)), Single({{3, "b"}})}).get(), "3 a", "-100 timer", "3 b");
}

// ---- Nesting ----

TEST(MergeRecordActions, AnInnerListIsGovernedByItsOwnControl) {
  MergeParam twice = Repeated(2, 5);
  twice.till_next_item_delay = 9;
  const auto inner = Merged({Single({{1, "x"}}, WithGap(7)), Single({{2, "y"}})}, twice);
  EXPECT_STEPS(Merged({inner, Single({{3, "z"}})}).get(),                    //
               "1 x", "7 timer", "2 y", "5 timer", "1 x", "7 timer", "2 y",  // the inner list, twice
               "9 timer", "3 z");
}

TEST(MergeRecordActions, AnInnerListGivesItsGapsAgainInEachPassOfTheOuter) {
  const auto inner = Merged({Single({{1, "x"}}, WithGap(7)), Single({{2, "y"}})});
  EXPECT_STEPS(Merged({inner}, Repeated(2)).get(), "1 x", "7 timer", "2 y", "1 x", "7 timer", "2 y");
}

// ---- Items without actions ----

TEST(MergeRecordActions, AnEmptyItemPlaysNothingAndItsGapIsIssued) {
  const auto empty = [] { return Single({}, WithGap(40)); };
  EXPECT_STEPS(Merged({empty(), Single({{1, "a"}})}).get(), "none", "40 timer", "1 a");
  EXPECT_STEPS(Merged({Single({{1, "a"}}, WithGap(10)), empty(), Single({{2, "b"}})}).get(),  //
               "1 a", "10 timer", "none", "40 timer", "2 b");
  EXPECT_STEPS(Merged({empty(), empty(), Single({{1, "a"}})}).get(),  //
               "none", "40 timer", "none", "40 timer", "1 a");
}

TEST(MergeRecordActions, AReplayGoesOnBehindAnEmptyItem) {
  const auto empty = [] { return Single({}, WithGap(40)); };
  ReplayContext context;
  context.actions = Merged({Single({{1, "a"}}, WithGap(10)), empty(), Single({{2, "b"}})});
  EXPECT_EQ("1 a, 10 timer, 40 timer, 2 b", StepsOfReplay(&context).join(", ").toStdString());
  context.actions = Merged({Merged({empty(), Single({{1, "a"}})}), Single({{2, "b"}})});
  EXPECT_EQ("40 timer, 1 a, 0 timer, 2 b", StepsOfReplay(&context).join(", ").toStdString());
}

TEST(MergeRecordActions, AnEmptyLastItemHasNoGap) {
  const auto items = [] { return MergeRecordActions::Items{Single({{1, "a"}}, WithGap(10)), Single({}, WithGap(40))}; };
  EXPECT_STEPS(Merged(items()).get(), "1 a", "10 timer");
  EXPECT_STEPS(Merged(items(), Repeated(2)).get(), "1 a", "10 timer", "none", "1 a", "10 timer");
  EXPECT_STEPS(Merged(items(), Repeated(2, 5)).get(), "1 a", "10 timer", "none", "5 timer", "1 a", "10 timer");
}

TEST(MergeRecordActions, RepeatsOfAnEmptyItemPauseNothing) {
  MergeParam often = Repeated(5, 100);
  often.till_next_item_delay = 3;
  EXPECT_STEPS(Merged({Single({}, often), Single({{1, "a"}})}).get(), "none", "3 timer", "1 a");
  EXPECT_STEPS(Merged({Merged({Single({}, often)}, often), Single({{1, "a"}})}).get(), "none", "3 timer", "1 a");
  // As the last item it has no gap, neither at the end of a pass nor at that of the list.
  EXPECT_STEPS(Merged({Single({{1, "a"}}), Single({}, often)}, Repeated(2)).get(),  //
               "1 a", "0 timer", "none", "1 a", "0 timer");
  EXPECT_STEPS(Merged({Merged({Single({{1, "a"}}), Single({}, often)}), Single({{2, "b"}})}).get(),  //
               "1 a", "0 timer", "0 timer", "2 b");
}

TEST(MergeRecordActions, TheGapOfAnEmptyItemIsAtItsSpeed) {
  const auto list = Merged({Single({}, WithGap(40, 2.0)), Single({{1, "a"}})});
  EXPECT_STEPS(list.get(), "none", "20 timer", "1 a");
}

TEST(MergeRecordActions, AnEmptyInnerListIsAnItemWithoutActions) {
  const auto inner = Merged({Single({}, WithGap(1)), Single({})}, WithGap(40));
  EXPECT_STEPS(Merged({inner, Single({{1, "a"}})}).get(),  //
               "none", "40 timer", "1 a");
}

// ---- Items without actions in an inner list ----

// a, a gap of 10, nothing, a gap of 40, b.
std::shared_ptr<MergeRecordActions> AroundNothing(const MergeParam& control = {}) {
  return Merged({Single({{1, "a"}}, WithGap(10)), Single({}, WithGap(40)), Single({{2, "b"}})}, control);
}

TEST(MergeRecordActions, AnInnerListGoesOnBehindItsEmptyItem) {
  EXPECT_STEPS(Merged({AroundNothing()}).get(), "1 a", "10 timer", "40 timer", "2 b");
  EXPECT_STEPS(Merged({AroundNothing()}, Repeated(2)).get(),  //
               "1 a", "10 timer", "40 timer", "2 b",          //
               "1 a", "10 timer", "40 timer", "2 b");
  EXPECT_STEPS(Merged({AroundNothing()}, Repeated(2, 5)).get(),  //
               "1 a", "10 timer", "40 timer", "2 b", "5 timer",  //
               "1 a", "10 timer", "40 timer", "2 b");
}

TEST(MergeRecordActions, AnInnerListWithAnEmptyItemPlaysAllItsRepeatsBeforeTheGap) {
  MergeParam twice = Repeated(2, 5);
  twice.till_next_item_delay = 400;
  EXPECT_STEPS(Merged({AroundNothing(twice), Single({{3, "c"}})}).get(),  //
               "1 a", "10 timer", "40 timer", "2 b", "5 timer",           //
               "1 a", "10 timer", "40 timer", "2 b", "400 timer", "3 c");
  EXPECT_STEPS(Merged({AroundNothing(WithGap(400)), Single({{3, "c"}})}).get(),  //
               "1 a", "10 timer", "40 timer", "2 b", "400 timer", "3 c");
}

TEST(MergeRecordActions, AnInnerListThatEndsWithAnEmptyItemIsRepeated) {
  const auto inner = Merged({Single({{1, "a"}}, WithGap(10)), Single({}, WithGap(40))}, Repeated(2, 5));
  EXPECT_STEPS(Merged({inner, Single({{2, "b"}})}).get(),  //
               "1 a", "10 timer", "5 timer", "1 a", "10 timer", "0 timer", "2 b");
}

TEST(MergeRecordActions, AnInnerListThatBeginsWithAnEmptyItemIsRepeated) {
  const auto inner = Merged({Single({}, WithGap(40)), Single({{1, "a"}})}, Repeated(2, 5));
  EXPECT_STEPS(Merged({inner, Single({{2, "b"}})}).get(),  //
               "none", "40 timer", "1 a", "5 timer", "40 timer", "1 a", "0 timer", "2 b");
}

TEST(MergeRecordActions, AnInnerListOfNothingStandsForNothingOnAnyLevel) {
  const auto nothing = [] { return Merged({Single({}, WithGap(1)), Single({})}, Repeated(3, 7)); };
  const auto inner = Merged({Single({{1, "a"}}), nothing(), nothing(), Single({{2, "b"}})});
  EXPECT_STEPS(Merged({Merged({inner})}, Repeated(2)).get(),   //
               "1 a", "0 timer", "0 timer", "0 timer", "2 b",  //
               "1 a", "0 timer", "0 timer", "0 timer", "2 b");
}

TEST(MergeRecordActions, AReplayPlaysWhatIsAroundNothing) {
  ReplayContext context;
  context.actions = Merged({Single({}, Repeated(3, 100)), AroundNothing(Repeated(2))}, Repeated(2));
  const QStringList pass{"1 a", "10 timer", "40 timer", "2 b"};
  EXPECT_EQ((QStringList{"0 timer"} + pass + pass + QStringList{"0 timer"} + pass + pass).join(", ").toStdString(),
            StepsOfReplay(&context).join(", ").toStdString());
}

// The playback of a list of items, computed without an iterator: its steps, and the gaps between its items.
QStringList StepsOf(const RecordActions& actions) {
  QStringList steps;
  if (actions.IsEmpty()) return steps;
  const auto* list = dynamic_cast<const MergeRecordActions*>(&actions);
  for (int repeat = 1; repeat <= qMax(1, actions.control.repeat_times); ++repeat) {
    if (repeat > 1 && actions.control.repeat_delay > 0) {
      steps += QStringLiteral("%1 timer").arg(actions.control.repeat_delay);
    }
    if (!list) {
      for (const RecordAction* action : static_cast<const SingleRecordActions&>(actions).actions) {
        steps += QStringLiteral("%1 %2").arg(action->timing).arg(action->data);
      }
      continue;
    }
    for (int i = 0; i < list->items.size(); ++i) {
      steps += StepsOf(*list->items.at(i));
      if (i + 1 < list->items.size()) {
        steps += QStringLiteral("%1 timer").arg(list->items.at(i)->control.till_next_item_delay);
      }
    }
  }
  return steps;
}

// A list of up to 3 items, with `levels` levels of them; about every fourth item is empty.
std::shared_ptr<RecordActions> AnyList(std::mt19937* random, int levels) {
  const auto up_to = [&](unsigned most) { return static_cast<int>((*random)() % (most + 1)); };
  MergeParam control = Repeated(up_to(3), up_to(2) * 5);
  control.till_next_item_delay = up_to(3) * 10;
  if (levels == 0 || up_to(2) == 0) {
    return up_to(2) == 0 ? Single({}, control) : Single({{up_to(9), "a"}, {up_to(9), "b"}}, control);
  }
  MergeRecordActions::Items items;
  for (int count = 1 + up_to(2); count > 0; --count) items.append(AnyList(random, levels - 1));
  return Merged(items, control);
}

TEST(MergeRecordActions, ListsOfAnyShapePlayWhatIsInThem) {
  constexpr int kLists = 3000;
  constexpr int kLevels = 4;
  std::mt19937 random(7);
  for (int i = 0; i < kLists; ++i) {
    ReplayContext context;
    context.actions = AnyList(&random, kLevels);
    const QStringList expected = StepsOf(*context.actions);
    ASSERT_EQ(expected.join(", ").toStdString(), StepsOfReplay(&context, 100000).join(", ").toStdString()) << i;
  }
}

TEST(MergeRecordActions, AnItemThatIsNullHasNothingToPlay) {
  EXPECT_STEPS(Merged({nullptr, Single({{1, "a"}}), nullptr}).get(), "none", "0 timer", "1 a", "0 timer");
}

TEST(MergeRecordActions, AListWithNothingToPlayEndsAtOnce) {
  const auto empty = [] { return Single({}, WithGap(40)); };
  EXPECT_NO_STEPS(Merged({}).get());
  EXPECT_NO_STEPS(Merged({empty()}).get());
  EXPECT_NO_STEPS(Merged({empty(), empty()}, Repeated(1000000000, 10)).get());
  EXPECT_NO_STEPS(Merged({empty(), Merged({empty(), Merged({empty()})})}, Repeated(3)).get());
  const auto item = empty();
  const auto list = Merged({item}, AtSpeed(1));
  list->speed = 3;
  RecordAction action;
  int delay = 0;
  EXPECT_FALSE(list->First(&action, &delay));
  EXPECT_EQ(item, list->current);  // entered all the same
  EXPECT_EQ(3, item->speed);
}

// Another implementation of the iterator is played in the same way.
class Twice : public RecordActions {
 public:
  bool First(RecordAction* action, int* delay) override {
    left_ = 2;
    return Next(action, delay);
  }
  bool Next(RecordAction* action, int* delay) override {
    if (left_-- <= 0) return false;
    action->data = "x";
    *delay = 5;
    return true;
  }

 private:
  int left_ = 0;
};

TEST(MergeRecordActions, PlaysItemsOfAnyKind) {
  EXPECT_STEPS(Merged({std::make_shared<Twice>(), std::make_shared<Twice>()}).get(),  //
               "5 x", "5 x", "0 timer", "5 x", "5 x");
}

// The item in `current` is played, however it got there.
TEST(MergeRecordActions, GoesOnWithTheCurrentItem) {
  const auto item = Single({{1, "a"}, {20, "b"}});
  const auto list = Merged({item, Single({{3, "c"}})});
  list->current = item;
  RecordAction action;
  int delay = 0;
  EXPECT_TRUE(list->Next(&action, &delay));
  EXPECT_EQ("b", action.data.toStdString());
  EXPECT_EQ(20, delay);
}

TEST(MergeRecordActions, NothingIsGivenBeforeTheFirst) {
  const auto list = Merged({Single({{1, "a"}})});
  EXPECT_EQ(nullptr, list->current);
  RecordAction action;
  int delay = 0;
  EXPECT_FALSE(list->Next(&action, &delay));
  EXPECT_TRUE(action.type.isEmpty());
}

}  // namespace
}  // namespace taviinputmanager
