#include "simulators/walk/swipe_path.h"

#include <gtest/gtest.h>
#include <limits>

#include <QVector>

#include "tests/support/print_points.h"

namespace taviinputmanager {
namespace {

QVector<int> Steps(int delta, int count, const QString& mode) {
  AxisSteps steps;
  steps.Plan(delta, count, mode);
  QVector<int> list;
  while (!steps.IsEmpty()) list.append(steps.TakeFirst());
  return list;
}

const char kConstant[] = "Constant";
const char kSmall[] = "Small_Variable";
const char kBig[] = "Big_Variable";

// n steps over d pixels: base = round(d / n); tail = n / 2, one middle step, the rest head. In big steps the head is
// round(base / 5) and the middle takes the remainder.
const struct {
  const char* name;
  int delta;
  int count;
  const char* mode;
  QVector<int> steps;
} kPlans[] = {
    {"even", 128, 6, kConstant, {21, 21, 21, 21, 21, 21}},  // 21.3
    {"odd", 128, 5, kConstant, {26, 26, 26, 26, 26}},       // 25.6
    {"backwards, even", -128, 6, kConstant, {-21, -21, -21, -21, -21, -21}},
    {"backwards, odd", -128, 5, kConstant, {-26, -26, -26, -26, -26}},
    {"a half goes up", 3, 2, kConstant, {2, 2}},                   // 1.5
    {"a half backwards goes up too", -3, 2, kConstant, {-1, -1}},  // -1.5
    {"too short to step", 2, 5, kConstant, {0, 0, 0, 0, 0}},       // 0.4
    {"no travel", 0, 4, kConstant, {0, 0, 0, 0}},
    {"one step", 128, 1, kConstant, {128}},
    {"two steps have no head", 128, 2, kConstant, {64, 64}},
    {"a mode of its own is constant", 128, 2, "Odd_Variable", {64, 64}},

    {"small steps are even ones", 128, 6, kSmall, {21, 21, 21, 21, 21, 21}},
    {"small steps backwards, odd", -128, 5, kSmall, {-26, -26, -26, -26, -26}},
    {"without travel they tremble", 0, 6, kSmall, {1, -1, 1, -1, 1, -1}},
    {"odd without travel", 0, 5, kSmall, {1, -1, 1, -1, 1}},
    {"one trembling step", 0, 1, kSmall, {1}},

    // tail 3 x 21, head 2 x round(4.2); 128 - 63 - 8 = 57
    {"big steps, even", 128, 6, kBig, {4, 4, 57, 21, 21, 21}},
    // tail 2 x 26, head 2 x round(5.2); 128 - 52 - 10 = 66
    {"big steps, odd", 128, 5, kBig, {5, 5, 66, 26, 26}},
    {"big steps backwards, even", -128, 6, kBig, {-4, -4, -57, -21, -21, -21}},
    {"big steps backwards, odd", -128, 5, kBig, {-5, -5, -66, -26, -26}},
    // base round(0.375) = 0: all is left to the middle, and it goes the wrong way
    {"big steps, short: backwards", 3, 8, kBig, {0, 0, 0, -3, 0, 0, 0, 0}},
    {"big steps, short, to the left", -3, 8, kBig, {0, 0, 0, -3, 0, 0, 0, 0}},
    // base round(-0.5) = 0
    {"big steps, half a pixel each", -3, 6, kBig, {0, 0, -3, 0, 0, 0}},
    // base round(-2.5) = -2, head round(-0.4) = 0; 15 - 6 - 0 = 9
    {"big steps, slow head", -15, 6, kBig, {0, 0, -9, -2, -2, -2}},
    {"big steps without travel stand still", 0, 4, kBig, {0, 0, 0, 0}},
    {"one big step", 7, 1, kBig, {7}},
    {"two big steps", 7, 2, kBig, {3, 4}},  // 3.5 gives 4; 7 - 4 = 3

    // Modes are searched within the word, so that one word may contain both.
    {"both, with travel", 128, 6, "Big_Variable|Small_Variable", {4, 4, 57, 21, 21, 21}},
    {"both, without", 0, 3, "Big_Variable|Small_Variable", {1, -1, 1}},

    {"no step", 128, 0, kConstant, {}},
    {"fewer than no step", 128, -3, kBig, {}},
    {"no step to tremble", 0, 0, kSmall, {}},
};

TEST(SwipePlan, SplitsAnAxis) {
  for (const auto& row : kPlans) EXPECT_EQ(row.steps, Steps(row.delta, row.count, row.mode)) << row.name;
}

TEST(SwipePlan, TakesAnyNumberOfSteps) {
  AxisSteps steps;
  steps.Plan(1280, std::numeric_limits<int>::max(), kBig);
  EXPECT_FALSE(steps.IsEmpty());
  EXPECT_EQ(0, steps.TakeFirst());
}

TEST(SwipePlan, TakesAnyDistance) {
  constexpr int kLeast = std::numeric_limits<int>::min();
  // 2^31 / 2 = 2^30 each way
  EXPECT_EQ((QVector<int>{-1073741824, -1073741824}), Steps(kLeast, 2, kBig));
}

SwipePath MakePath(const QPoint& target, int remaining, const QString& mode = kConstant) {
  SwipePath path;
  path.start = path.current = QPoint(256, 360);
  path.target = target;
  path.mode = mode;
  path.remaining = remaining;
  path.Rebuild();
  return path;
}

QVector<QPoint> Play(SwipePath* path, int most = 100) {
  QVector<QPoint> points;
  while (points.size() < most && path->HasStep()) {
    path->TakeStep();
    points.append(path->current);
  }
  return points;
}

TEST(SwipePathTest, LeavesTheLastStepToAJump) {
  SwipePath path = MakePath({347, 269}, 4);  // 91 / 4 = 22.75, -91 / 4 = -22.75
  EXPECT_EQ((QVector<QPoint>{{279, 337}, {302, 314}, {325, 291}}), Play(&path));
  EXPECT_EQ(1, path.remaining);
}

TEST(SwipePathTest, TremblesOnTheAxisWithoutTravel) {
  SwipePath path = MakePath({384, 360}, 4, kSmall);  // 128 / 4 = 32
  EXPECT_EQ((QVector<QPoint>{{288, 361}, {320, 360}, {352, 361}}), Play(&path));
}

TEST(SwipePathTest, ANewTargetBeginsTheTremblingAnew) {
  SwipePath path = MakePath({384, 360}, 4, kSmall);
  Play(&path, 1);  // (288, 361), 3 left
  path.target = QPoint(384, 361);
  path.Rebuild();  // 96 / 3 = 32
  EXPECT_EQ((QVector<QPoint>{{320, 362}, {352, 361}}), Play(&path));
}

TEST(SwipePathTest, OneStepOrLessIsNone) {
  for (const int steps : {1, 0, -4}) EXPECT_FALSE(MakePath({384, 360}, steps).HasStep()) << steps;
}

TEST(SwipePathTest, ATargetAtTheStartEndsIt) {
  SwipePath path = MakePath({384, 360}, 4, kSmall);
  Play(&path, 1);
  path.target = path.start;
  path.Rebuild();
  EXPECT_FALSE(path.HasStep());
  EXPECT_TRUE(path.x_steps.IsEmpty() && path.y_steps.IsEmpty());
}

TEST(SwipePathTest, ANewTargetIsReachedInTheStepsThatAreLeft) {
  SwipePath path = MakePath({384, 360}, 4);
  Play(&path, 1);  // (288, 360), 3 left
  path.target = QPoint(347, 269);
  path.Rebuild();  // 59 / 3 = 19.7, -91 / 3 = -30.3
  EXPECT_EQ((QVector<QPoint>{{308, 330}, {328, 300}}), Play(&path));
}

TEST(SwipePathTest, ATargetUnderTheFingerIsStillStepped) {
  SwipePath path = MakePath({384, 360}, 4);
  Play(&path, 1);
  path.target = path.current;
  path.Rebuild();
  EXPECT_EQ((QVector<QPoint>{{288, 360}, {288, 360}}), Play(&path));
}

TEST(SwipePathTest, ClearedHasNoStep) {
  SwipePath path = MakePath({384, 360}, 4);
  path.Clear();
  EXPECT_FALSE(path.HasStep());
  EXPECT_TRUE(path.x_steps.IsEmpty() && path.y_steps.IsEmpty());
  path.Rebuild();  // a new target does not restart it
  EXPECT_FALSE(path.HasStep());
}

TEST(SwipePathTest, PointsAtTheEndsOfAnIntStayThere) {
  constexpr int kMost = std::numeric_limits<int>::max();
  constexpr int kLeast = std::numeric_limits<int>::min();
  SwipePath path;
  path.start = path.current = QPoint(kLeast, 0);
  path.target = QPoint(kMost, 0);
  path.mode = kConstant;
  path.remaining = 2;
  path.Rebuild();  // the way is 2^32 - 1; as much as an int holds of it, halved, is 2^30
  EXPECT_EQ((QVector<QPoint>{{-1073741824, 0}}), Play(&path));
}

}  // namespace
}  // namespace taviinputmanager
