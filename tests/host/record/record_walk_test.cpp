#include "host/record/record_walk.h"

#include <gtest/gtest.h>

#include "host/record/record_file.h"

namespace tavi {
namespace {

RecordAction Action(const char* data, int timing) { return {timing, "vcontrol", data, {}, {}}; }

RecordPart List(std::vector<RecordAction> actions, const MergeParam& control = {}) {
  RecordPart part;
  part.actions = std::move(actions);
  part.control = control;
  return part;
}

RecordPart Merged(std::vector<RecordPart> parts, const MergeParam& control = {}) {
  RecordPart part;
  part.is_merged = true;
  part.parts = std::move(parts);
  part.control = control;
  return part;
}

MergeParam Control(int times, int delay, double speed, int gap) { return {QString(), times, delay, speed, gap}; }

// "10 a, 25 -, 30 b": times with the action's data, or a dash for a pause.
QString Walk(const RecordPart& root, double speed = 1) {
  QStringList steps;
  WalkRecord(root, speed, [&](const WalkStep& step) {
    steps += QString::number(step.at_ms) + " " + (step.action ? step.action->data : QString("-"));
  });
  return steps.join(", ");
}

TEST(RecordWalk, AddsUpTheDelays) {
  const RecordPart root = List({Action("a", 10), Action("b", 0), Action("c", 20)});
  EXPECT_EQ(Walk(root), QStringLiteral("10 a, 10 b, 30 c"));
}

// 33 / 2 = 16.5 and each delay is truncated separately: 16 + 16. A delay below 0 is none.
TEST(RecordWalk, CutsEachDelayByItself) {
  EXPECT_EQ(Walk(List({Action("a", 33), Action("b", 33), Action("c", -5)}), 2), QStringLiteral("16 a, 32 b, 32 c"));
}

TEST(RecordWalk, RepeatsAListWithPauses) {
  EXPECT_EQ(Walk(List({Action("a", 10)}, Control(3, 5, 1, 0))), QStringLiteral("10 a, 15 -, 25 a, 30 -, 40 a"));
  EXPECT_EQ(Walk(List({Action("a", 10)}, Control(2, 0, 1, 0))), QStringLiteral("10 a, 20 a"));
  EXPECT_EQ(Walk(List({Action("a", 10)}, Control(-1, 5, 1, 0))), QStringLiteral("10 a"));
}

// The first part runs at 2 x 3: 60 / 6 = 10, its gap 120 / 6 = 20. The second at 3: 30 / 3 = 10. The whole list again
// after 90 / 3 = 30; the second part's own gap is never used.
TEST(RecordWalk, MultipliesSpeedsDownTheLevels) {
  const RecordPart root =
      Merged({List({Action("a", 60)}, Control(1, 0, 2, 120)), List({Action("b", 30)}, Control(1, 0, 1, 99))},
             Control(2, 90, 1, 0));
  EXPECT_EQ(Walk(root, 3), QStringLiteral("10 a, 30 -, 40 b, 70 -, 80 a, 100 -, 110 b"));
}

TEST(RecordWalk, TakesASpeedOfNothingForOne) {
  EXPECT_EQ(Walk(List({Action("a", 10)}, Control(1, 0, 0, 0))), QStringLiteral("10 a"));
  EXPECT_EQ(Walk(List({Action("a", 10)}, Control(1, 0, -2, 0))), QStringLiteral("10 a"));
}

TEST(RecordWalk, KeepsTheGapBehindAPartWithNothingToPlay) {
  const RecordPart empty = List({}, Control(2000000000, 5, 1, 40));
  EXPECT_EQ(Walk(Merged({empty, List({Action("a", 10)})})), QStringLiteral("40 -, 50 a"));
  EXPECT_EQ(Walk(Merged({empty, empty}, Control(2000000000, 5, 1, 0))), QString());
}

TEST(RecordWalk, EndsAtAnActionWithoutType) {
  const RecordPart root = Merged({List({Action("a", 10), RecordAction{50, {}, "b", {}, {}}}), List({Action("c", 10)})});
  EXPECT_EQ(Walk(root), QStringLiteral("10 a"));
  const WalkResult result = WalkRecord(root, 1, [](const WalkStep& /*step*/) {});
  EXPECT_EQ(result.end, WalkResult::End::kNoType);
  EXPECT_EQ(result.total_ms, 10);
  EXPECT_EQ(result.actions, 1);
}

TEST(RecordWalk, GivesUpOnARecordThatGoesOnForYears) {
  const RecordPart root = List({Action("a", 10)}, Control(2000000000, 0, 1, 0));
  const WalkResult result = WalkRecord(root, 1, [](const WalkStep& /*step*/) {});
  EXPECT_EQ(result.end, WalkResult::End::kLimit);
  EXPECT_EQ(result.actions, kLongestWalk);
  EXPECT_EQ(result.total_ms, kLongestWalk * 10);
}

TEST(RecordWalk, StopsWhereItIsTold) {
  const RecordPart root = List({Action("a", 10), Action("b", 10)});
  const auto walk = [&](qint64 most) {
    return WalkRecord(
        root, 1, [](const WalkStep& /*step*/) {}, most);
  };
  EXPECT_EQ(walk(1).end, WalkResult::End::kLimit);
  EXPECT_EQ(walk(1).total_ms, 10);
  EXPECT_EQ(walk(2).end, WalkResult::End::kComplete);
}

TEST(RecordWalk, TellsWhichPartIsPlayed) {
  const RecordPart nested = Merged({List({Action("a", 0)}), List({Action("b", 0)})});
  QVector<int> parts;
  WalkRecord(Merged({nested, List({Action("c", 0)})}), 1, [&](const WalkStep& step) {
    if (step.action) parts.append(step.part);
  });
  EXPECT_EQ(parts, (QVector<int>{0, 0, 1}));
}

}  // namespace
}  // namespace tavi
