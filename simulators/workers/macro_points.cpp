#include "simulators/workers/macro_points.h"

#include <cmath>

#include <QRect>

#include "core/clock.h"
#include "core/display_geometry.h"

namespace taviinputmanager {
namespace {

QPointF ReadPair(const QString& element) {
  if (!element.startsWith(QLatin1Char('(')) || !element.endsWith(QLatin1Char(')'))) return {};
  const QStringList parts = element.mid(1, element.size() - 2).split(QLatin1Char(','));
  if (parts.size() != 2) return {};
  return {parts[0].toDouble(), parts[1].toDouble()};
}

QPointF ReadPointer() {
  const QRect display = DisplayGeometry::GetInstance()->GetDisplayRect();
  const QPointF pointer = QPointF(Clock::Pointer()) - display.topLeft();
  return {pointer.x() / display.width(), pointer.y() / display.height()};
}

}  // namespace

QStringList SplitMacroPoints(const QString& list) { return list.split(QLatin1Char(kMacroPointSeparator)); }

bool IsMouseWord(const QString& element) { return element == QLatin1String("mouse"); }

QPointF ReadMacroPoint(const QString& element) {
  const QPointF point = IsMouseWord(element) ? ReadPointer() : ReadPair(element);
  // "inf", "nan", and a display of no size: a slot that holds such a point could not be found again.
  if (!std::isfinite(point.x()) || !std::isfinite(point.y())) return {};
  return point;
}

std::optional<QPoint> MacroPointToTouch(const QPointF& point) {
  int x = kNoPosition;
  int y = kNoPosition;
  DisplayGeometry::GetInstance()->RelativeToTouch(x, y, point.x(), point.y());
  if (x == kNoPosition || y == kNoPosition) return std::nullopt;
  return QPoint(x, y);
}

}  // namespace taviinputmanager
