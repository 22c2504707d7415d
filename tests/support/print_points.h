// How a failed expectation prints points.
#ifndef TESTS_SUPPORT_PRINT_POINTS_H_
#define TESTS_SUPPORT_PRINT_POINTS_H_

#include <ostream>

#include <QPoint>
#include <QPointF>

inline void PrintTo(const QPoint& point, std::ostream* out) { *out << point.x() << "," << point.y(); }
inline void PrintTo(const QPointF& point, std::ostream* out) { *out << point.x() << "," << point.y(); }

#endif  // TESTS_SUPPORT_PRINT_POINTS_H_
