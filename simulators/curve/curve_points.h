// The points of a curve, written or generated.
#ifndef SIMULATORS_CURVE_CURVE_POINTS_H_
#define SIMULATORS_CURVE_CURVE_POINTS_H_

#include <optional>

#include <QPointF>
#include <QStringList>

namespace tavikeymapmanager {
struct CurveConfigItem;
}

namespace taviinputmanager {

// Offsets from the curve's origin, as fractions of the display.
//
// A straight curve has a point for every 2% of the display, with six digits like a written one; its points are computed
// one by one, because its length is not limited. One of less than 2% on both axes has a single point, the origin. A
// written list of fewer than two entries has no points at all.
class CurvePoints {
 public:
  explicit CurvePoints(const tavikeymapmanager::CurveConfigItem& item);

  // Entries, good and bad.
  qint64 Count() const;
  // `index` from 0 to Count() - 1. Nothing for an entry that does not consist of two texts separated by a comma; a text
  // that is not a number reads as 0.
  std::optional<QPointF> At(int index) const;

 private:
  QPointF StraightPoint(int index) const;

  bool is_straight_;
  QPointF start_;  // of a straight curve
  QPointF span_;
  int steps_ = 0;
  QStringList entries_;  // of a written one
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_CURVE_CURVE_POINTS_H_
