// Conversion from double to int, the same on every Qt.
#ifndef HOST_GUEST_ROUNDING_H_
#define HOST_GUEST_ROUNDING_H_

#include <QPoint>
#include <QPointF>

namespace tavi {

// Rounds to nearest, halves up: -0.5 gives 0, -1.5 gives -1. This is qRound of Qt 5; that of Qt 6, and with it
// QPointF::toPoint, rounds halves away from zero. `v` must fit an int.
// NOLINTBEGIN(bugprone-incorrect-roundings): this is how Qt 5 rounds
inline int Rounded(double v) {
  if (v >= 0) return static_cast<int>(v + 0.5);
  const int below = static_cast<int>(v - 1);
  return static_cast<int>(v - below + 0.5) + below;
}
// NOLINTEND(bugprone-incorrect-roundings)

inline QPoint Rounded(const QPointF& v) { return {Rounded(v.x()), Rounded(v.y())}; }

}  // namespace tavi

#endif  // HOST_GUEST_ROUNDING_H_
