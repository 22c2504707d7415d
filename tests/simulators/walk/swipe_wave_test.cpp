#include "simulators/walk/swipe_wave.h"

#include <gtest/gtest.h>
#include <limits>

#include <QVector>

#include "keymap/swipehold_config_item.h"
#include "tests/support/print_points.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::SwipeholdConfigItem;

const QPoint kCenter(256, 360);
constexpr int kRadius = 128;

SwipeholdConfigItem HalfWay() {
  SwipeholdConfigItem item;
  item.compensate_amplitude = 0.5;
  item.compensate_steps = 3;
  return item;
}

// x = t / 4 and y = t * t / 10 - 1/4; in pixels, times 128 * 0.5 = 64.
SwipeholdConfigItem Curved() {
  SwipeholdConfigItem item = HalfWay();
  item.curve_x = "X";
  item.factor_x = 0.25;
  item.curve_y = "X2";
  item.factor_y = 0.1;
  item.offset_y = -0.25;
  return item;
}

QVector<QPoint> Play(const SwipeholdConfigItem& item, const QPoint& wave_point, int ticks, SwipeWave* wave) {
  wave->Start(wave_point);
  QVector<QPoint> points;
  for (int i = 0; i < ticks; ++i) {
    const auto point = wave->Tick(item, kCenter, kRadius);
    if (point) points.append(point->toPoint());
  }
  return points;
}

// 1, 3/4, 1/2, 3/4, 1 of the way from the centre.
TEST(SwipeWaveTest, GoesInAndBackOnce) {
  SwipeWave wave;
  EXPECT_EQ((QVector<QPoint>{{384, 360}, {352, 360}, {320, 360}, {352, 360}, {384, 360}}),
            Play(HalfWay(), {384, 360}, 5, &wave));
  EXPECT_EQ(1, wave.GetRound());
}

TEST(SwipeWaveTest, ARoundIsThroughAtItsLastTick) {
  SwipeWave wave;
  Play(HalfWay(), {384, 360}, 4, &wave);
  EXPECT_EQ(0, wave.GetRound());
  Play(HalfWay(), {384, 360}, 10, &wave);
  EXPECT_EQ(2, wave.GetRound());
}

TEST(SwipeWaveTest, RewoundItBeginsAgain) {
  SwipeWave wave;
  Play(HalfWay(), {384, 360}, 7, &wave);
  wave.Rewind();
  EXPECT_EQ(0, wave.GetRound());
  EXPECT_EQ(QPoint(384, 360), wave.Tick(HalfWay(), kCenter, kRadius)->toPoint());
}

TEST(SwipeWaveTest, OneCurveByItselfIsNone) {
  SwipeholdConfigItem item = Curved();
  item.curve_y = "Default";
  SwipeWave wave;
  EXPECT_EQ((QVector<QPoint>{{384, 360}, {352, 360}}), Play(item, {384, 360}, 2, &wave));
}

// t = 0, pi, 2 pi. x: 0, 50.3, 100.5. y: -16, 47.2, 236.7.
TEST(SwipeWaveTest, FollowsItsCurves) {
  SwipeWave wave;
  EXPECT_EQ((QVector<QPoint>{{384, 344}, {434, 407}, {485, 597}}), Play(Curved(), {384, 360}, 3, &wave));
  EXPECT_EQ(1, wave.GetRound());
}

// Facing up, x points up and y to the right.
TEST(SwipeWaveTest, TurnsItsCurvesToTheStick) {
  SwipeWave wave;
  EXPECT_EQ((QVector<QPoint>{{240, 232}, {303, 182}, {493, 131}}), Play(Curved(), {256, 232}, 3, &wave));
}

TEST(SwipeWaveTest, AnUnknownCurveStandsStill) {
  SwipeholdConfigItem item = Curved();
  item.curve_x = item.curve_y = "Zigzag";
  SwipeWave wave;
  EXPECT_EQ((QVector<QPoint>{{384, 360}, {384, 360}}), Play(item, {384, 360}, 2, &wave));
}

// A factor of a million shows it: t = 2 pi / 7 in single precision is off by up to 3e-8, which 64 million pixels make
// nearly 2, and around 5.7e7 single precision knows every fourth number only.
TEST(SwipeWaveTest, ComputesInSinglePrecision) {
  SwipeholdConfigItem item = Curved();
  item.compensate_steps = 8;
  item.factor_x = 1e6;
  item.curve_y = "Zigzag";
  SwipeWave wave;
  wave.Start({384, 360});
  wave.Tick(item, kCenter, kRadius);
  const auto point = wave.Tick(item, kCenter, kRadius);
  const float t = static_cast<float>(2 * 3.14159265358979323846 / 7);
  const float u = static_cast<float>(64 * (static_cast<double>(t) * 1e6));
  EXPECT_EQ(384 + static_cast<double>(u), point->x());
}

TEST(SwipeWaveTest, OneStepHasNoGapAndIsNoPlace) {
  SwipeholdConfigItem item = HalfWay();
  item.compensate_steps = 1;
  SwipeWave wave;
  EXPECT_EQ((QVector<QPoint>{}), Play(item, {384, 360}, 1, &wave));
}

TEST(SwipeWaveTest, OneStepOfCurvesIsNoneEither) {
  SwipeholdConfigItem item = Curved();
  item.compensate_steps = 1;
  SwipeWave wave;
  EXPECT_EQ((QVector<QPoint>{}), Play(item, {384, 360}, 1, &wave));
}

TEST(SwipeWaveTest, NoStepIsNoPlace) {
  SwipeholdConfigItem item = HalfWay();
  SwipeWave wave;
  for (const int steps : {0, -1, std::numeric_limits<int>::min()}) {
    item.compensate_steps = steps;
    EXPECT_EQ((QVector<QPoint>{}), Play(item, {384, 360}, 1, &wave)) << steps;
  }
}

TEST(SwipeWaveTest, WhatIsNoNumberIsNoPlace) {
  SwipeholdConfigItem item = Curved();
  item.factor_x = item.factor_y = 1e308;
  SwipeWave wave;
  EXPECT_EQ((QVector<QPoint>{{384, 344}}), Play(item, {384, 360}, 3, &wave));
}

}  // namespace
}  // namespace taviinputmanager
