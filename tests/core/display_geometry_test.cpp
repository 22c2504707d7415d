#include "core/display_geometry.h"

#include <limits>

#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

class Geometry : public Story {
 protected:
  static void SetWindow(int width, int height) { Host().window = {100, 50, width, height}; }
  static void SetDisplay(int width, int height) { Host().display = QRect(3, 4, width, height); }
  static void SetTouch(int width, int height) { Host().touch = QRect(0, 0, width, height); }

  static QPoint WindowToTouch(int x, int y) {
    DisplayGeometry::GetInstance()->WindowToTouch(x, y);
    return {x, y};
  }
  static QPoint RelativeToTouch(double rel_x, double rel_y) {
    int x = kNoPosition;
    int y = kNoPosition;
    DisplayGeometry::GetInstance()->RelativeToTouch(x, y, rel_x, rel_y);
    return {x, y};
  }
  static QPoint WindowToAndroid(int x, int y) {
    DisplayGeometry::GetInstance()->WindowPositionToAndroid(x, y);
    return {x, y};
  }
};

// A size is last - first + 1, and Qt computes it from left to right: last - first must fit too.
TEST_F(Geometry, ExtentsThatNoIntHoldsStopAtItsEnds) {
  constexpr int kHighest = std::numeric_limits<int>::max();
  constexpr int kLowest = std::numeric_limits<int>::min();
  const struct {
    const char* name;
    int first;
    int last;
    int extent;
  } rows[] = {
      {"an ordinary one stays", 3, 12, 10},
      {"as wide as an int", 0, kHighest - 1, kHighest},
      {"one more", 0, kHighest, kHighest},
      {"from end to end", kLowest, kHighest, kHighest},
      {"as far below 0 as it may", 0, kLowest, -kHighest},
      {"one more below 0", 1, kLowest, -kHighest},
      {"from end to end, backwards", kHighest, kLowest, -kHighest},
      {"empty", 5, 4, 0},
  };
  for (const auto& row : rows) {
    Host().display.setCoords(row.first, row.first, row.last, row.last);
    const QRect display = DisplayGeometry::GetInstance()->GetDisplayRect();
    EXPECT_EQ(QSize(row.extent, row.extent), display.size()) << row.name;
    EXPECT_EQ(QPoint(row.first, row.first), display.topLeft()) << row.name;
    Host().touch.setCoords(row.first, row.first, row.last, row.last);
    // The far corner; Round saturates where the size does.
    EXPECT_EQ(QPoint(row.extent, row.extent), RelativeToTouch(1, 1)) << row.name;
  }
}

TEST_F(Geometry, TurnsWindowPositionsIntoTouchCoordinates) {
  const struct {
    const char* name;
    int rotation;
    QSize window;
    QSize touch;
    QPoint position;
    QPoint expected;
  } rows[] = {
      {"upright is scaled alone", 0, {640, 360}, {1280, 720}, {320, 90}, {640, 180}},
      {"180 is like 0", 180, {640, 360}, {1280, 720}, {320, 90}, {640, 180}},
      // a = 1 - 360/720 = 0.5, b = 640/1280 = 0.5
      {"90 in the middle", 90, {1280, 720}, {720, 1280}, {640, 360}, {360, 640}},
      // a = 1 - 180/720 = 0.75 of 720 = 540, b = 0.5 of 1280 = 640
      {"90 swaps and mirrors y", 90, {1280, 720}, {720, 1280}, {640, 180}, {540, 640}},
      // a = 540/720 = 0.75 of 720 = 540, b = 1 - 320/1280 = 0.75 of 1280 = 960
      {"270 swaps and mirrors x", 270, {1280, 720}, {720, 1280}, {320, 540}, {540, 960}},
      // 1/3 of 100 = 33.3, 2/3 of 100 = 66.7
      {"to the nearest", 0, {300, 300}, {100, 100}, {100, 200}, {33, 67}},
      // -1/2 = -0.5 rounds to 0; -3/2 = -1.5 to -1
      {"halves go up below zero too", 0, {200, 200}, {100, 100}, {-1, -3}, {0, -1}},
      {"a portrait window", 0, {360, 640}, {720, 1280}, {90, 320}, {180, 640}},
  };
  for (const auto& row : rows) {
    SetWindow(row.window.width(), row.window.height());
    SetTouch(row.touch.width(), row.touch.height());
    Host().rotation = row.rotation;
    EXPECT_EQ(row.expected, WindowToTouch(row.position.x(), row.position.y())) << row.name;
  }
}

TEST_F(Geometry, TurnsFractionsIntoTouchCoordinates) {
  SetWindow(333, 444);  // not used
  SetTouch(720, 1280);
  const struct {
    int rotation;
    QPoint expected;
  } rows[] = {
      {0, {180, 960}},    // 0.25 * 720, 0.75 * 1280
      {180, {180, 960}},  // as 0
      {90, {180, 320}},   // (1 - 0.75) * 720, 0.25 * 1280
      {270, {540, 960}},  // 0.75 * 720, (1 - 0.25) * 1280
  };
  for (const auto& row : rows) {
    Host().rotation = row.rotation;
    EXPECT_EQ(row.expected, RelativeToTouch(0.25, 0.75)) << row.rotation;
  }
}

TEST_F(Geometry, ScalesForTheHostByOneFactor) {
  SetTouch(720, 1280);
  SetWindow(640, 360);
  Host().rotation = 0;
  // 640 / 720 = 0.888...; 320 / 0.888... = 360, 100 / 0.888... = 112.5, which rounds up
  EXPECT_EQ(QPoint(360, 113), WindowToAndroid(320, 100));
  Host().rotation = 90;
  // across is 1280: the factor is 0.5; axes stay
  EXPECT_EQ(QPoint(640, 200), WindowToAndroid(320, 100));
  Host().rotation = 270;
  EXPECT_EQ(QPoint(640, 200), WindowToAndroid(320, 100));
  int x = 320;
  int y = 100;
  ConvertWindowPositionToAndroid(x, y);
  EXPECT_EQ(QPoint(640, 200), QPoint(x, y));
}

TEST_F(Geometry, TheWindowsShapeTurnsTheDisplay) {
  const DisplayGeometry* geometry = DisplayGeometry::GetInstance();
  SetDisplay(1920, 1080);
  SetWindow(720, 1280);
  EXPECT_EQ(QSize(1080, 1920), geometry->GetOrientedDisplaySize());
  EXPECT_DOUBLE_EQ(720.0 / 1080, geometry->GetWindowScale());
  SetWindow(1280, 720);
  EXPECT_EQ(QSize(1920, 1080), geometry->GetOrientedDisplaySize());
  EXPECT_DOUBLE_EQ(1280.0 / 1920, geometry->GetWindowScale());
  SetDisplay(1080, 1920);
  EXPECT_EQ(QSize(1920, 1080), geometry->GetOrientedDisplaySize());
  SetWindow(500, 500);  // not taller than wide
  EXPECT_EQ(QSize(1920, 1080), geometry->GetOrientedDisplaySize());
}

TEST_F(Geometry, FractionsAreOfTheDisplay) {
  SetDisplay(1920, 1080);
  const DisplayGeometry* geometry = DisplayGeometry::GetInstance();
  EXPECT_EQ(QPointF(480, 540), geometry->RelativeToDisplay({0.25, 0.5}));
  EXPECT_EQ(QPointF(0.25, 0.5), geometry->DisplayToRelative({480, 540}));
}

TEST_F(Geometry, TheWindowRecordIsTheHosts) {
  SetWindow(640, 360);
  const WindowGeometry window = DisplayGeometry::GetInstance()->GetWindowGeometry();
  EXPECT_EQ(QRect(100, 50, 640, 360), QRect(window.x, window.y, window.width, window.height));
}

TEST_F(Geometry, WithoutTableTheDisplayIs1280By720AndPositionsStay) {
  SetWindow(640, 360);
  SetDisplay(1920, 1080);
  DisplayGeometry* geometry = DisplayGeometry::GetInstance();
  geometry->SetCallbacks(nullptr);
  EXPECT_EQ(QRect(0, 0, 1280, 720), geometry->GetDisplayRect());
  EXPECT_EQ(1280, geometry->GetWindowGeometry().width);
  EXPECT_EQ(720, geometry->GetWindowGeometry().height);
  EXPECT_EQ(QSize(1280, 720), geometry->GetOrientedDisplaySize());
  EXPECT_DOUBLE_EQ(1.0, geometry->GetWindowScale());
  EXPECT_EQ(QPoint(11, 12), WindowToTouch(11, 12));
  EXPECT_EQ(QPoint(kNoPosition, kNoPosition), RelativeToTouch(0.5, 0.5));
  EXPECT_EQ(QPoint(11, 12), WindowToAndroid(11, 12));
  geometry->SetGravity(1, 2, 3);
  EXPECT_CALLS_NONE();
}

TEST_F(Geometry, GravityGoesToTheHostWhereItTakesIt) {
  DisplayGeometry::GetInstance()->SetGravity(1, -2, 3);
  EXPECT_CALLS("0ms gravity 1 -2 3");
  Host().table.SetGravity = nullptr;
  DisplayGeometry::GetInstance()->SetGravity(1, -2, 3);
  EXPECT_CALLS_NONE();
}

TEST_F(Geometry, AWindowOfNoSizeGivesNoPosition) {
  SetWindow(0, 360);
  EXPECT_EQ(QPoint(kNoPosition, kNoPosition), WindowToTouch(10, 10));
  EXPECT_EQ(QPoint(10, 10), WindowToAndroid(10, 10));
  SetWindow(640, 0);
  EXPECT_EQ(QPoint(kNoPosition, kNoPosition), WindowToTouch(10, 10));
}

TEST_F(Geometry, ClampsToARadius) {
  // d = (30, 40) is 50 long; at radius 25 it is halved.
  EXPECT_EQ(QPoint(115, 120), DisplayGeometry::ClampToRadius({100, 100}, {30, 40}, {100, 100}, 25));
  EXPECT_EQ(QPoint(130, 140), DisplayGeometry::ClampToRadius({100, 100}, {30, 40}, {100, 100}, 50));
  EXPECT_EQ(QPoint(100, 100), DisplayGeometry::ClampToRadius({100, 100}, {0, 0}, {100, 100}, 0));
  // (-3, 4) at radius 2.5: (-1.5, 2), and halves go away from zero.
  EXPECT_EQ(QPoint(-2, 2), DisplayGeometry::ClampToRadius({0, 0}, {-3, 4}, {0, 0}, 2.5));
  // Sums that no int holds.
  constexpr int kHighest = 0x7FFFFFFF;
  EXPECT_EQ(QPoint(150, 100), DisplayGeometry::ClampToRadius({100, 100}, {kHighest, 0}, {100, 100}, 50));
  EXPECT_EQ(QPoint(kHighest, 0), DisplayGeometry::ClampToRadius({100, 0}, {kHighest, 0}, {-100, 0}, 1e300));
}

TEST_F(Geometry, ScalesAVectorToALength) {
  EXPECT_EQ(QPoint(6, 8), DisplayGeometry::ScaleToLength({3, 4}, 10));
  EXPECT_EQ(QPoint(-2, 2), DisplayGeometry::ScaleToLength({-3, 4}, 2.5));  // (-1.5, 2)
  EXPECT_EQ(QPoint(0, 0), DisplayGeometry::ScaleToLength({0, 0}, 10));
  // Squares that no int holds.
  EXPECT_EQ(QPoint(60, 80), DisplayGeometry::ScaleToLength({300000, 400000}, 100));
}

// For example, a fraction of a window without a size.
TEST_F(Geometry, APlaceThatIsNoNumberIsNowhere) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  for (const double nowhere : {std::numeric_limits<double>::quiet_NaN(), kInfinity, -kInfinity}) {
    EXPECT_EQ(QPoint(kNoPosition, kNoPosition), RelativeToTouch(nowhere, 0.5)) << nowhere;
    EXPECT_EQ(QPoint(kNoPosition, kNoPosition), RelativeToTouch(0.5, nowhere)) << nowhere;
  }
}

}  // namespace
}  // namespace taviinputmanager
