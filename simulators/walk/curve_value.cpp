#include "simulators/walk/curve_value.h"

#include <cmath>
#include <qmath.h>

#include "keymap/keywords.h"

namespace taviinputmanager {

namespace keywords = tavikeymapmanager::keywords;

namespace {

constexpr double kTableReach = 5e7;  // the table index of a larger argument does not fit an int

bool IsInTables(double v) { return std::abs(v) <= kTableReach; }  // also false for NaN

}  // namespace

double CurveValue(const QString& name, double t, double factor, double offset) {
  const double v = t * factor + offset;
  if (name == keywords::kCurveSin) return IsInTables(v) ? qFastSin(v) : 0.0;
  if (name == keywords::kCurveCos) return IsInTables(v) ? qFastCos(v) : 0.0;
  if (name == keywords::kCurveX) return v;
  if (name == keywords::kCurveX2) return t * factor * t + offset;
  return 0.0;
}

}  // namespace taviinputmanager
