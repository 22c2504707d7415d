#include "simulators/walk/curve_value.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <qmath.h>

namespace taviinputmanager {
namespace {

// v = t * factor + offset throughout.
TEST(CurveValueTest, NamedCurves) {
  EXPECT_DOUBLE_EQ(4.0, CurveValue("X", 1.5, 2.0, 1.0));
  EXPECT_DOUBLE_EQ(1.5 * 2.0 * 1.5 + 1.0, CurveValue("X2", 1.5, 2.0, 1.0));  // t twice, and not v
  EXPECT_DOUBLE_EQ(-3.5, CurveValue("X", -1.5, 3.0, 1.0));
  EXPECT_NEAR(std::sin(4.0), CurveValue("Sin", 1.5, 2.0, 1.0), 1e-4);
  EXPECT_NEAR(std::cos(4.0), CurveValue("Cos", 1.5, 2.0, 1.0), 1e-4);
}

TEST(CurveValueTest, HasThePrecisionOfTheTable) {
  EXPECT_EQ(qFastSin(0.3), CurveValue("Sin", 0.3, 1.0, 0.0));
  EXPECT_EQ(qFastCos(0.3), CurveValue("Cos", 0.3, 1.0, 0.0));
  EXPECT_NE(std::sin(0.3), CurveValue("Sin", 0.3, 1.0, 0.0));
}

TEST(CurveValueTest, AnyOtherNameIsZero) {
  for (const char* name : {"Default", "", "sin", "X3"}) EXPECT_EQ(0.0, CurveValue(name, 1.5, 2.0, 1.0)) << name;
}

TEST(CurveValueTest, BeyondTheTableIsZero) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double t : {1e9, -1e9, 1e300, infinity, std::nan("")}) {
    EXPECT_EQ(0.0, CurveValue("Sin", t, 1.0, 0.0)) << t;
    EXPECT_EQ(0.0, CurveValue("Cos", t, 1.0, 0.0)) << t;
  }
}

}  // namespace
}  // namespace taviinputmanager
