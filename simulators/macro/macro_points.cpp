#include "simulators/macro/macro_points.h"

#include <cmath>

#include <QRect>

#include "core/clock.h"
#include "core/display_geometry.h"
#include "qt/numbers.h"

namespace taviinputmanager {
namespace {

// "inf", "nan", and a display without a size: the slot of such a point could not be found again.
QPointF FiniteOrNull(const QPointF& point) {
  return std::isfinite(point.x()) && std::isfinite(point.y()) ? point : QPointF();
}

QPointF ReadPair(const QString& element) {
  if (!element.startsWith(QLatin1Char('(')) || !element.endsWith(QLatin1Char(')'))) return {};
  const QList<QStringView> parts = QStringView(element).mid(1, element.size() - 2).split(QLatin1Char(','));
  if (parts.size() != 2) return {};
  return {qt::ToDouble(parts[0]), qt::ToDouble(parts[1])};
}

QPointF ReadPointer() {
  const QRect display = DisplayGeometry::GetInstance()->GetDisplayRect();
  const QPointF pointer = QPointF(Clock::Pointer()) - display.topLeft();
  return {pointer.x() / display.width(), pointer.y() / display.height()};
}

}  // namespace

QStringList SplitMacroPoints(const QString& list) { return list.split(QLatin1Char(kMacroPointSeparator)); }

bool IsMouseWord(const QString& element) { return element == QLatin1String("mouse"); }

MacroPoint ParseMacroPoint(const QString& element) {
  if (IsMouseWord(element)) return {element, QPointF(), true};
  return {element, FiniteOrNull(ReadPair(element)), false};
}

QPointF MacroPoint::Now() const { return is_mouse ? FiniteOrNull(ReadPointer()) : place; }

MacroPoints::MacroPoints(const QString& list) : text(list) {
  const QStringList parts = SplitMacroPoints(list);
  elements.reserve(parts.size());
  for (const QString& element : parts) elements.append(ParseMacroPoint(element));
}

QPointF ReadMacroPoint(const QString& element) { return ParseMacroPoint(element).Now(); }

std::optional<QPoint> MacroPointToTouch(const QPointF& point) {
  int x = kNoPosition;
  int y = kNoPosition;
  DisplayGeometry::GetInstance()->RelativeToTouch(x, y, point.x(), point.y());
  if (x == kNoPosition || y == kNoPosition) return std::nullopt;
  return QPoint(x, y);
}

}  // namespace taviinputmanager
