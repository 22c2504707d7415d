#include "simulators/macro/macro_points.h"

#include <optional>

#include "core/display_geometry.h"
#include "host/simulation/virtual_event_dispatcher.h"
#include "tests/support/print_points.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using MacroPoints = Story;

TEST_F(MacroPoints, APairIsTwoFractions) {
  EXPECT_EQ(QPointF(0.25, 0.5), ReadMacroPoint("(0.25,0.5)"));
  EXPECT_EQ(QPointF(-1, 2), ReadMacroPoint("(-1,2)"));
  EXPECT_EQ(QPointF(0, 0.5), ReadMacroPoint("(x,0.5)"));  // anything but a number is 0
}

TEST_F(MacroPoints, WhatIsNoPointIsNull) {
  for (const char* text : {"", "(", "()", "(0,0)", "(0.1)", "(0.1,0.2,0.3)", "0.1,0.2", "(0.1,0.2", "0.1,0.2)",
                           " (0.1,0.2)", "Mouse", "mouse ", "(a,b)", "(inf,0.5)", "(0.5,nan)"}) {
    EXPECT_TRUE(ReadMacroPoint(text).isNull()) << text;
  }
}

TEST_F(MacroPoints, MouseIsThePointerOnTheDisplay) {
  Host().display = QRect(100, 50, 1000, 500);
  Time().SetPointer({350, 300});
  EXPECT_EQ(QPointF(0.25, 0.5), ReadMacroPoint("mouse"));  // (350 - 100) / 1000, (300 - 50) / 500
}

TEST_F(MacroPoints, ADisplayOfNoSizeHasNoPointer) {
  Host().display = QRect(0, 0, 0, 0);
  Time().SetPointer({350, 300});
  EXPECT_TRUE(ReadMacroPoint("mouse").isNull());
}

// A value of 2^31 pixels or more is not a position either: 1280 * 4e6 and 720 * 4e6 are.
TEST_F(MacroPoints, APointOutOfReachHasNoPlaceOnTheTouchSurface) {
  EXPECT_EQ(QPoint(640, 360), MacroPointToTouch({0.5, 0.5}));
  EXPECT_EQ(std::nullopt, MacroPointToTouch({4e6, 0.5}));
  EXPECT_EQ(std::nullopt, MacroPointToTouch({0.5, 4e6}));
}

TEST_F(MacroPoints, WithoutADisplayNoPointHasAPlace) {
  DisplayGeometry::GetInstance()->SetCallbacks(nullptr);
  EXPECT_EQ(std::nullopt, MacroPointToTouch({0.5, 0.5}));
}

TEST_F(MacroPoints, AListKeepsItsEmptyElements) {
  EXPECT_EQ((QStringList{"(0.1,0.2)", "mouse", ""}), SplitMacroPoints("(0.1,0.2);mouse;"));
}

}  // namespace
}  // namespace taviinputmanager
