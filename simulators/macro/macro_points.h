// The points of the macro language.
//
// A list is one or more points joined by ";". A point is "(x,y)", two fractions of the display, or "mouse", the
// pointer. What cannot be read is the null point, which everybody skips: (0, 0) cannot be named.
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

// An element of a list, read: where it is, or that it is the pointer, wherever that is by then.
struct MacroPoint {
  QString element;
  QPointF place;  // null where the element is no point, and for the pointer
  bool is_mouse = false;

  // Fractions of the display, at present.
  QPointF Now() const;
};

// A list, read once for all the times that it is obeyed. Copies share what was read.
struct MacroPoints {
  MacroPoints() = default;
  explicit MacroPoints(const QString& list);

  bool IsEmpty() const { return elements.isEmpty(); }

  QString text;
  QVector<MacroPoint> elements;  // also those that are no points
};

// Every element of a list, also those that are no points.
QStringList SplitMacroPoints(const QString& list);
MacroPoint ParseMacroPoint(const QString& element);
bool IsMouseWord(const QString& element);
// Fractions of the display. "mouse" is where the pointer is now; null on a display of no size.
QPointF ReadMacroPoint(const QString& element);
// Touch coordinates of fractions; nothing without a display.
std::optional<QPoint> MacroPointToTouch(const QPointF& point);

}  // namespace taviinputmanager

#endif  // SIMULATORS_MACRO_MACRO_POINTS_H_
