// The position of a stick for listeners and queries: in radii from its centre.
#include "simulators/walk/swipehold_async_worker.h"
#include "simulators/walk/swipehold_event_simulator.h"
#include "tests/simulators/walk/swipehold_story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::SwipeholdConfigItem;

using Points = QVector<QPointF>;

class SwipeholdPoint : public SwipeholdStory {
 protected:
  SwipeholdPoint() {
    QObject::connect(SwipeholdEventSimulator::GetInstance(), &SwipeholdEventSimulator::sigSwipeholdTargetPointChanged,
                     [this](QPointF& point) { points_.append(point); });
  }
  Points TakePoints() { return std::exchange(points_, {}); }
  static QPointF Query() {
    QPointF answer(7, 7);
    SwipeholdEventSimulator::GetInstance()->QueryPoint([&answer](QPointF point) { answer = point; });
    return answer;
  }
  static QPointF QueryVirtual() {
    QPointF answer(7, 7);
    SwipeholdEventSimulator::GetInstance()->QueryVirtualPoint([&answer](QPointF point) { answer = point; });
    return answer;
  }
  static void PressWorker(int index, SwipeholdConfigItem* item, const QString& name) {
    ConfigKey key = Key(name);
    SwipeholdAsyncWorker::GetInstance(index)->Press(item, &key);
  }
  static void ReleaseWorker(int index, SwipeholdConfigItem* item, const QString& name) {
    ConfigKey key = Key(name);
    SwipeholdAsyncWorker::GetInstance(index)->Release(item, &key);
  }

  Points points_;
};

// Steps of 21 of 128 pixels.
TEST_F(SwipeholdPoint, FollowsASlide) {
  AddWalk();
  Load();
  Play("down W; wait 31");
  EXPECT_EQ(Points(), TakePoints());  // the press on the centre is not reported
  Play("wait 81");
  EXPECT_EQ(
      (Points{{0, -21 / 128.0}, {0, -42 / 128.0}, {0, -63 / 128.0}, {0, -84 / 128.0}, {0, -105 / 128.0}, {0, -1}}),
      TakePoints());
  Play("up W");
  EXPECT_EQ((Points{{0, 0}}), TakePoints());
}

// Whole pixels: (23, -119), (46, -109), (68, -100) from the centre, and (91, -91).
TEST_F(SwipeholdPoint, FollowsAMove) {
  AddWalk();
  Load();
  RestAt("W");
  TakePoints();
  Play("down D; wait 32");
  EXPECT_EQ((Points{{23 / 128.0, -119 / 128.0},
                    {46 / 128.0, -109 / 128.0},
                    {68 / 128.0, -100 / 128.0},
                    {91 / 128.0, -91 / 128.0}}),
            TakePoints());
}

TEST_F(SwipeholdPoint, TheRestOnTheCentreIsLettingGoTwice) {
  AddWalk()->hold_center_ms = 50;
  Load();
  RestAt("W");
  TakePoints();
  Play("up W; wait 49");
  EXPECT_EQ((Points{{0, 0}}), TakePoints());
  Play("wait 1");
  EXPECT_EQ((Points{{0, 0}}), TakePoints());
}

TEST_F(SwipeholdPoint, AStopFromOutsideIsNoNews) {
  AddWalk();
  Load();
  RestAt("D");
  TakePoints();
  SwipeholdAsyncWorker::GetInstance(0)->StopAndRelease();
  EXPECT_WIRE(Up(200));
  EXPECT_EQ(Points(), TakePoints());
  EXPECT_EQ(QPointF(0, 0), Query());
}

TEST_F(SwipeholdPoint, AWiggleIsNoNews) {
  SwipeholdConfigItem* item = AddWalk();
  item->compensate = true;
  item->compensate_amplitude = 0.5;
  Load();
  Play("down D; wait 112");
  TakePoints();
  Play("wait 500");
  EXPECT_EQ(Points(), TakePoints());
}

// Points are in current radii.
TEST_F(SwipeholdPoint, TheRadiusSwitchIsNoNewDirection) {
  AddWalk();
  Load();
  RestAt("D");
  TakePoints();
  SwipeholdEventSimulator::GetInstance()->SetRadiusFactor(1.5);
  EXPECT_EQ((Points{{1, 0}}), TakePoints());
}

TEST_F(SwipeholdPoint, AStickWithoutRadiusStaysOnItsCentre) {
  AddWalk()->radius = 0;
  Load();
  Play("down D; wait 32");
  EXPECT_EQ((Points{{0, 0}}), TakePoints());
  EXPECT_EQ(QPointF(), Query());
  EXPECT_WIRE(At(0, 256, 360), At(32, 256, 360));
}

TEST_F(SwipeholdPoint, IsAskedForItsTarget) {
  AddWalk();
  Load();
  EXPECT_EQ(QPointF(0, 0), Query());
  Play("down W");
  EXPECT_EQ(QPointF(0, -1), Query());  // before the first step
  Play("down D");
  EXPECT_EQ(QPointF(91 / 128.0, -91 / 128.0), Query());
  Play("up W; up D");
  EXPECT_EQ(QPointF(0, 0), Query());
}

TEST_F(SwipeholdPoint, IsSilentUntilThePressOrQuestionThatComesFirst) {
  SwipeholdConfigItem* item = AddWalk();
  Load();
  Play("up W");  // a release does not count
  PressWorker(0, item, "D");
  Play("wait 50");
  EXPECT_EQ(Points(), TakePoints());
  Query();
  Play("wait 14");
  EXPECT_EQ((Points{{63 / 128.0, 0}}), TakePoints());
  Query();
  QueryVirtual();
  Play("wait 16");
  EXPECT_EQ(1, TakePoints().size());  // connected once
}

TEST_F(SwipeholdPoint, AQuestionForTheVirtualStickCountsToo) {
  SwipeholdConfigItem* item = AddWalk();
  Load();
  QueryVirtual();
  PressWorker(0, item, "D");
  Play("wait 32");
  EXPECT_EQ((Points{{21 / 128.0, 0}}), TakePoints());
}

// The complete state machine runs: slide, move, rest and end, with the times of a walk.
TEST_F(SwipeholdPoint, AStickWithoutSlotIsHeardAndNotSeen) {
  for (const int index : {2, 3}) {
    SwipeholdConfigItem item;
    item.rel_x = 0.2;
    item.rel_y = 0.5;
    item.first_press_steps = 2;
    item.subsequent_steps = 2;
    item.hold_center_ms = 50;
    SetKeys(&item, "W", "A", "S", "D");
    Load();
    Points points;
    const auto connection = QObject::connect(SwipeholdAsyncWorker::GetInstance(index),
                                             &SwipeholdAsyncWorker::sigSwipeholdTargetPointChanged,
                                             [&points](QPointF& point) { points.append(point); });
    PressWorker(index, &item, "D");
    Play("wait 48");
    EXPECT_EQ((Points{{0.5, 0}, {1, 0}}), points);
    EXPECT_EQ(index == 2 ? QPointF(1, 0) : QPointF(0, 0), QueryVirtual()) << index;
    PressWorker(index, &item, "W");
    Play("wait 16");  // to (91, -91): half way are (109.5, -45.5), rounded to (110, -45)
    ReleaseWorker(index, &item, "D");
    ReleaseWorker(index, &item, "W");
    Play("wait 50");
    EXPECT_EQ((Points{{0.5, 0}, {1, 0}, {110 / 128.0, -45 / 128.0}, {91 / 128.0, -91 / 128.0}, {0, 0}, {0, 0}}),
              points);
    EXPECT_WIRE_NONE();
    QObject::disconnect(connection);
  }
}

TEST_F(SwipeholdPoint, TheFlagWordsOfItsKeys) {
  AddWalk();
  Load();
  const SwipeholdAsyncWorker* walk = SwipeholdAsyncWorker::GetInstance(0);
  EXPECT_EQ(QPoint(0, 0), walk->GetDirections());
  Play("down W; down D");
  EXPECT_EQ(QPoint(1, 16), walk->GetDirections());
  Play("down S; down A");
  EXPECT_EQ(QPoint(17, 17), walk->GetDirections());
}

}  // namespace
}  // namespace taviinputmanager
