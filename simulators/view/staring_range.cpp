#include "simulators/view/staring_range.h"

#include <algorithm>

#include <QPointF>
#include <QSizeF>
#include <QString>

#include "core/display_geometry.h"
#include "core/numbers.h"
#include "keymap/config_key.h"
#include "slots/position_slot_manager.h"

namespace taviinputmanager {

using tavikeymapmanager::IsSameText;
namespace keywords = tavikeymapmanager::keywords;

namespace {

constexpr int kWindowRim = 5;         // pixels at each edge that a swipe avoids
constexpr double kPaddingNear = 0.1;  // of the display
constexpr double kPaddingFar = 0.9;

// Half of a size that is given as a fraction, in whole pixels.
int HalfExtent(int display, double fraction) { return Truncate(display * fraction) >> 1; }

}  // namespace

bool StaringRange::Bounds::Contains(const QPoint& point) const {
  return point.x() >= left && point.x() <= right && point.y() >= top && point.y() <= bottom;
}

QPoint StaringRange::Bounds::Nearest(const QPoint& point) const {
  return {std::max(left, std::min(point.x(), right)), std::max(top, std::min(point.y(), bottom))};
}

void StaringRange::Prepare(const QPointF& centre, const QSizeF& size) {
  const QRect display = DisplayGeometry::GetInstance()->GetDisplayRect();
  const int w = display.width();
  const int h = display.height();
  centre_ = QPoint(Round(w * centre.x()), Round(h * centre.y()));
  const int hx = HalfExtent(w, size.width());
  const int hy = HalfExtent(h, size.height());
  user_range_ = {AddSaturated(centre_.x(), -hx), AddSaturated(centre_.y(), -hy), AddSaturated(centre_.x(), hx),
                 AddSaturated(centre_.y(), hy)};
  window_range_ = {kWindowRim, kWindowRim, SubtractSaturated(w, kWindowRim), SubtractSaturated(h, kWindowRim)};
  padded_range_ = {Truncate(w * kPaddingNear), Truncate(h * kPaddingNear), Truncate(w * kPaddingFar),
                   Truncate(h * kPaddingFar)};
  user_range_in_window_ = {std::max(user_range_.left, window_range_.left), std::max(user_range_.top, window_range_.top),
                           std::min(user_range_.right, window_range_.right),
                           std::min(user_range_.bottom, window_range_.bottom)};
}

const StaringRange::Bounds& StaringRange::BoundsOf(const QString& range_mode) const {
  if (IsSameText(range_mode, keywords::kRangeUser)) return user_range_in_window_;
  if (IsSameText(range_mode, keywords::kRangeUserAllowOutside)) return user_range_;
  if (IsSameText(range_mode, keywords::kRangePadded)) return padded_range_;
  return window_range_;
}

void StaringRange::Apply(PositionSlotManager* finger, bool auto_reset, const QString& range_mode) const {
  if (!auto_reset) {
    finger->position = user_range_.Nearest(finger->position);
  } else if (!IsSameText(range_mode, keywords::kRangeInfinite) && !BoundsOf(range_mode).Contains(finger->position)) {
    finger->Reset();
  }
}

}  // namespace taviinputmanager
