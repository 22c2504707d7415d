#include "simulators/cast/spell_aim.h"

#include <algorithm>
#include <cmath>

#include "core/display_geometry.h"
#include "core/numbers.h"
#include "core/pixels.h"
#include "keymap/spell_config_item.h"

namespace taviinputmanager::spell_aim {

using tavikeymapmanager::SpellConfigItem;
namespace keywords = tavikeymapmanager::keywords;

namespace {

int StepBetween(int from, int to, int i, int steps) {
  const double way = static_cast<double>(to) - from;
  return Round(from + i * way / steps);
}

int Limit(int value, int centre, double radius) {
  return std::max(Truncate(centre - radius), std::min(value, Truncate(centre + radius)));
}

}  // namespace

bool IsAimedByWalk(const SpellConfigItem& item) {
  return item.touch_location == keywords::kLocationSwipehold ||
         item.touch_location == keywords::kLocationInnerSwipehold;
}

QPoint StepBetween(const QPoint& from, const QPoint& to, int i, int steps) {
  return {StepBetween(from.x(), to.x(), i, steps), StepBetween(from.y(), to.y(), i, steps)};
}

QPoint CurvePoint(const SpellConfigItem& item, const QPoint& from, const QPoint& to, int i, const QSize& display) {
  const QPoint step = DisplayGeometry::ScaleToLength(Difference(to, from), display.height() * item.curve_step_length);
  const double times = i;
  return {Truncate(from.x() + times * step.x()), Truncate(from.y() + times * step.y())};
}

QPoint PressPoint(const SpellConfigItem& item, const QSize& display) {
  const QPointF other(item.alt_rel_x, item.alt_rel_y);
  const QPointF point = other.isNull() ? QPointF(item.rel_x, item.rel_y) : other;
  return {Truncate(display.width() * point.x()), Truncate(display.height() * point.y())};
}

QPoint CircleTarget(const SpellConfigItem& item, const QPoint& pointer, const QPoint& button, const QSize& display) {
  const int cx = Truncate(display.width() * item.circle_rel_x);
  const int cy = Truncate(display.height() * item.circle_rel_y);
  const double ratio = item.circle_percent * item.circle_size / 100.0;
  const int limit = Truncate(display.height() * ratio);
  const double dx = static_cast<double>(pointer.x()) - cx;
  const double dy = static_cast<double>(pointer.y()) - cy;
  const int distance = Truncate(std::sqrt(dx * dx + dy * dy));

  double mx = pointer.x();
  double my = pointer.y();
  if (distance > limit) {
    const double s = static_cast<double>(limit) / distance;
    mx = Truncate(dx * s + cx);
    my = Truncate(dy * s + cy);
  }
  const double k = item.swipe_radius / ratio;  // no circle, no movement: 0 times infinity rounds to 0
  return Sum({Round((mx - cx) * k), Round((my - cy) * k)}, button);
}

QPoint WalkTarget(const SpellConfigItem& item, const QPointF& direction, const QPoint& button, const QSize& display) {
  const int radius = Round(display.height() * item.swipe_radius);
  return Sum({Round(direction.x() * radius), Round(direction.y() * radius)}, button);
}

QPoint StickTarget(const SpellConfigItem& item, const QPointF& stick, const QPoint& button, const QSize& display) {
  if (stick.isNull()) return button;
  const double w = display.width();
  return Sum({Truncate(item.swipe_radius * stick.x() * w), Truncate(item.swipe_radius * stick.y() * w)}, button);
}

QPoint LimitToSquare(const SpellConfigItem& item, const QPoint& point, const QPoint& button, const QSize& display) {
  const int radius = Round(display.width() * item.swipe_radius);
  return {Limit(point.x(), button.x(), radius), Limit(point.y(), button.y(), radius)};
}

}  // namespace taviinputmanager::spell_aim
