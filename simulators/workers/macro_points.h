// The points of the macro language.
//
// A list is one or more points joined by ";". A point is "(x,y)", two fractions of the display, or "mouse", the
// pointer. What cannot be read is the null point, which everybody skips: (0, 0) cannot be named.
#ifndef SIMULATORS_WORKERS_MACRO_POINTS_H_
#define SIMULATORS_WORKERS_MACRO_POINTS_H_

#include <optional>

#include <QPoint>
#include <QPointF>
#include <QString>
#include <QStringList>

namespace taviinputmanager {

constexpr char kMacroPointSeparator = ';';

// Every element of a list, also those that are no points.
QStringList SplitMacroPoints(const QString& list);
bool IsMouseWord(const QString& element);
// Fractions of the display. "mouse" is where the pointer is now; null on a display of no size.
QPointF ReadMacroPoint(const QString& element);
// Touch coordinates of fractions; nothing without a display.
std::optional<QPoint> MacroPointToTouch(const QPointF& point);

}  // namespace taviinputmanager

#endif  // SIMULATORS_WORKERS_MACRO_POINTS_H_
