#include "simulators/cast/ground_projection.h"

#include <cmath>

#include <QStringList>

#include "core/numbers.h"
#include "keymap/spell_config_item.h"
#include "qt/numbers.h"

namespace taviinputmanager {

using tavikeymapmanager::SpellConfigItem;

namespace {

constexpr int kRows = 4;
constexpr int kCells = kRows * kRows;
constexpr double kForwardY = 0.8;           // normalized height of a point straight ahead of the character
constexpr double kReferenceWidth = 1280.0;  // display width that ground_scale is defined for, whatever the actual one

double Length(const QPointF& v) { return std::sqrt(v.x() * v.x() + v.y() * v.y()); }

bool DescribesView(const SpellConfigItem& item) {
  return !QPointF(item.character_rel_x, item.character_rel_y).isNull() && item.ground_reference != 0 &&
         item.ground_scale != 0 && !item.view_matrix.isEmpty();
}

}  // namespace

std::optional<GroundView> GroundView::Parse(const QString& text) {
  const QList<QStringView> parts = QStringView(text).split(QLatin1Char(','));
  if (parts.size() != kCells) return std::nullopt;
  GroundView view;
  for (int row = 0; row < kRows; ++row) {
    for (int column = 0; column < kRows; ++column) {
      view.m_[kRows * row + column] = qt::ToDouble(parts[kRows * column + row]);
    }
  }
  return view;
}

QPointF GroundView::Solve(const QPointF& normalised) const {
  const double x = normalised.x();
  const double y = normalised.y();
  const double a = m_[0] - m_[3] * x;
  const double b = m_[1] - m_[3] * y;
  const double c = m_[8] - m_[11] * x;
  const double d = m_[9] - m_[11] * y;
  const double e = m_[12] - m_[15] * x;
  const double f = m_[13] - m_[15] * y;
  const double det = a * d - b * c;
  if (det == 0) return {};
  const double ground_x = -(e * d - f * c) / det;
  // Divided by the larger of the two, which at least is not 0.
  const double ground_y = std::abs(c) > std::abs(d) ? -(a * ground_x + e) / c : -(b * ground_x + f) / d;
  return {ground_x, ground_y};
}

QPointF Normalise(const QPoint& point, const QSize& display) {
  const double w = display.width();
  const double h = display.height();
  return {2 * (point.x() / w) - 1, 2 * ((h - point.y()) / h) - 1};
}

QPoint ProjectOnGround(const SpellConfigItem& item, const QPoint& pointer, const QPoint& button, const QSize& display) {
  if (!DescribesView(item)) return {};
  const auto view = GroundView::Parse(item.view_matrix);
  if (!view) return {};

  const QPoint character(Round(display.width() * item.character_rel_x), Round(display.height() * item.character_rel_y));
  const QPointF here = Normalise(character, display);
  const QPointF origin = view->Solve(here);
  const QPointF forward = view->Solve({here.x(), kForwardY}) - origin;
  const QPointF aim = view->Solve(Normalise(pointer, display)) - origin;

  // The aim in the frame of the forward direction. Lengths of 0 make the rest NaN, and the result (0, 0).
  const double reach = Length(forward);
  const QPointF u(forward.x() / reach, forward.y() / reach);  // QPointF may assert on a division by 0
  const QPointF turned(aim.x() * u.y() - aim.y() * u.x(), aim.x() * u.x() + aim.y() * u.y());
  const double scale = Length(aim) * item.ground_scale * display.width() / kReferenceWidth;
  const double length = Length(turned);
  return {Truncate(button.x() - (turned.x() / length) * scale), Truncate(button.y() - (turned.y() / length) * scale)};
}

}  // namespace taviinputmanager
