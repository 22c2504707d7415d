#include "simulators/walk/swipe_wave.h"

#include <cmath>
#include <limits>
#include <qmath.h>

#include "keymap/swipehold_config_item.h"
#include "simulators/walk/curve_value.h"

namespace taviinputmanager {

namespace keywords = tavikeymapmanager::keywords;
using tavikeymapmanager::SwipeholdConfigItem;

namespace {

// `span` divided by the N - 1 gaps between N steps; N must not be 1.
double PerStep(double span, int steps) { return span / (steps - 1.0); }

// Values beyond single precision are infinite.
float ToSingle(double v) {
  if (std::abs(v) <= std::numeric_limits<float>::max()) return static_cast<float>(v);
  return std::numeric_limits<float>::infinity();
}

bool IsFinite(const QPointF& point) { return std::isfinite(point.x()) && std::isfinite(point.y()); }

}  // namespace

void SwipeWave::Start(const QPoint& wave_point) {
  wave_point_ = wave_point;
  Rewind();
}

void SwipeWave::Rewind() { wave_step_ = wave_round_ = 0; }

std::optional<QPointF> SwipeWave::Tick(const SwipeholdConfigItem& item, const QPoint& center, int radius) {
  if (item.compensate_steps == 1) return std::nullopt;  // one step has no gaps
  QPointF position;
  if (item.curve_x == keywords::kCurveDefault || item.curve_y == keywords::kCurveDefault) {
    const std::optional<double> part = TickRadially(item);
    if (!part) return std::nullopt;
    position = QPointF(center) + (QPointF(wave_point_) - center) * *part;
  } else {
    position = wave_point_ + TickAlongCurves(item, center, radius);
  }
  if (!IsFinite(position)) return std::nullopt;
  return position;
}

std::optional<double> SwipeWave::TickRadially(const SwipeholdConfigItem& item) {
  const int steps = item.compensate_steps;
  const qint64 last = 2 * qint64{steps} - 1;
  ++wave_step_;
  if (wave_step_ > last) return std::nullopt;  // steps of 0 or less never complete a round
  const double from_turn = std::abs(static_cast<double>(steps) - wave_step_);
  if (wave_step_ == last) EndRound();
  return from_turn * PerStep(item.compensate_amplitude, steps) + (1 - item.compensate_amplitude);
}

QPointF SwipeWave::TickAlongCurves(const SwipeholdConfigItem& item, const QPoint& center, int radius) {
  const int steps = item.compensate_steps;
  const double reach = radius * item.compensate_amplitude;
  // The contact's position depends on the single precision.
  const float t = ToSingle(PerStep(2 * M_PI, steps) * wave_step_);
  const float u = ToSingle(reach * CurveValue(item.curve_x, t, item.factor_x, item.offset_x));
  const float v = ToSingle(reach * CurveValue(item.curve_y, t, item.factor_y, item.offset_y));
  const QPointF out = QPointF(wave_point_) - center;
  const double angle = std::atan2(out.y(), out.x());
  const double s = qFastSin(angle);
  const double c = qFastCos(angle);
  if (++wave_step_ == steps) EndRound();
  return {u * c - v * s, v * c + u * s};
}

void SwipeWave::EndRound() {
  ++wave_round_;
  wave_step_ = 0;
}

}  // namespace taviinputmanager
