#include "simulators/curve/curve_points.h"

#include <algorithm>
#include <cmath>

#include "core/numbers.h"
#include "keymap/curve_config_item.h"
#include "qt/numbers.h"

namespace taviinputmanager {
namespace {

constexpr double kStepsPerDisplay = 50.0;
constexpr int kDigits = 6;

// Qt accepts "nan" as a number; it is not one here.
double NumberOf(const QString& text) {
  const double number = qt::ToDouble(text);
  return std::isnan(number) ? 0.0 : number;
}

double AsWritten(double number) { return NumberOf(QString::number(number, 'g', kDigits)); }

}  // namespace

CurvePoints::CurvePoints(const tavikeymapmanager::CurveConfigItem& item)
    : is_straight_(item.curve_straight), start_(item.curve_start), span_(item.curve_end - item.curve_start) {
  if (is_straight_) {
    steps_ =
        std::max(Truncate(std::abs(span_.x()) * kStepsPerDisplay), Truncate(std::abs(span_.y()) * kStepsPerDisplay));
    return;
  }
  entries_ = item.curve_points.split(QLatin1Char(';'), Qt::KeepEmptyParts);
  if (entries_.size() <= 1) entries_.clear();
}

qint64 CurvePoints::Count() const { return is_straight_ ? qint64{steps_} + 1 : entries_.size(); }

std::optional<QPointF> CurvePoints::At(int index) const {
  if (is_straight_) return StraightPoint(index);
  const QStringList parts = entries_.at(index).split(QLatin1Char(','));
  if (parts.size() != 2) return std::nullopt;
  return QPointF(NumberOf(parts[0]), NumberOf(parts[1]));
}

QPointF CurvePoints::StraightPoint(int index) const {
  if (steps_ == 0) return {};  // no step to divide by: the entry is not a number
  return {AsWritten(index * (span_.x() / steps_) + start_.x()), AsWritten(index * (span_.y() / steps_) + start_.y())};
}

}  // namespace taviinputmanager
