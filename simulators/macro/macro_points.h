// The points of the macro language.
//
// A list is one or more points separated by ";". A point is "(x,y)", two fractions of the display, or "mouse", the
// pointer. Text that cannot be parsed is the null point, which is always skipped: (0, 0) cannot be used.
#ifndef SIMULATORS_MACRO_MACRO_POINTS_H_
#define SIMULATORS_MACRO_MACRO_POINTS_H_

#include <optional>

#include <QPoint>
#include <QPointF>
#include <QString>
#include <QStringList>
#include <QVector>

namespace taviinputmanager {

constexpr char kMacroPointSeparator = ';';

// A parsed element of a list: a position, or the pointer, whose position is read when it is used.
struct MacroPoint {
  QString element;
  QPointF place;  // null if the element is not a point, and for the pointer
  bool is_mouse = false;

  // The current position, as a fraction of the display.
  QPointF Now() const;
};

// A list that is parsed once and used many times. Copies share the result.
struct MacroPoints {
  MacroPoints() = default;
  explicit MacroPoints(const QString& list);

  bool IsEmpty() const { return elements.isEmpty(); }

  QString text;
  QVector<MacroPoint> elements;  // including those that are not points
};

// Every element of a list, including those that are not points.
QStringList SplitMacroPoints(const QString& list);
MacroPoint ParseMacroPoint(const QString& element);
bool IsMouseWord(const QString& element);
// Fractions of the display. "mouse" is the pointer's current position; null on a display without a size.
QPointF ReadMacroPoint(const QString& element);
// Converts fractions to touch coordinates; nothing without a display.
std::optional<QPoint> MacroPointToTouch(const QPointF& point);

}  // namespace taviinputmanager

#endif  // SIMULATORS_MACRO_MACRO_POINTS_H_
