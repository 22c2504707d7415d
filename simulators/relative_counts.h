// A sum of relative mouse counts.
#ifndef SIMULATORS_RELATIVE_COUNTS_H_
#define SIMULATORS_RELATIVE_COUNTS_H_

#include <QPoint>
#include <QPointF>

#include "core/numbers.h"

namespace taviinputmanager {

// A sum that leaves the range of an int wraps modulo 2^32.
struct RelativeCounts {
  int x = 0;
  int y = 0;

  void Add(int dx, int dy) {
    x = AddWrapped(x, dx);
    y = AddWrapped(y, dy);
  }
  bool IsZero() const { return x == 0 && y == 0; }
  QPoint ToPoint() const { return {x, y}; }
  // In display pixels, with `sensitivity` in pixels per count; the second is rounded.
  QPointF Scaled(const QPointF& sensitivity) const { return {x * sensitivity.x(), y * sensitivity.y()}; }
  QPoint ToPixels(const QPointF& sensitivity) const { return {Round(x * sensitivity.x()), Round(y * sensitivity.y())}; }
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_RELATIVE_COUNTS_H_
