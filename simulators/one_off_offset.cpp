#include "simulators/one_off_offset.h"

#include <cmath>

#include "core/display_geometry.h"
#include "simulators/relative_counts.h"

namespace taviinputmanager {

void OneOffOffset::Start(bool enabled) {
  offset_ = QPoint();
  swipe_pending_ = enabled;
}

void OneOffOffset::OnMovement(const RelativeCounts& counts, const QPointF& sensitivity, double threshold,
                              double length) {
  if (!swipe_pending_ || counts.IsZero()) return;  // already applied, or without a direction
  const QPointF way = counts.Scaled(sensitivity);
  const double travel = std::sqrt(way.y() * way.y() + way.x() * way.x());
  if (!(threshold <= travel)) return;  // too short to be a real movement
  offset_ = DisplayGeometry::ScaleToLength(counts.ToPoint(), length);
  swipe_pending_ = false;
}

}  // namespace taviinputmanager
