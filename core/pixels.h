// Points of whole pixels, for any numbers of a host or a keymap.
#ifndef CORE_PIXELS_H_
#define CORE_PIXELS_H_

#include <QPoint>
#include <QPointF>

#include "core/numbers.h"

namespace taviinputmanager {

// Like QPointF::toPoint and the operators of QPoint, but values out of range saturate at the limits of an int instead
// of being undefined.
inline QPoint RoundedPoint(const QPointF& point) { return {Round(point.x()), Round(point.y())}; }

inline QPoint Sum(const QPoint& a, const QPoint& b) { return {AddSaturated(a.x(), b.x()), AddSaturated(a.y(), b.y())}; }

inline QPoint Difference(const QPoint& a, const QPoint& b) {
  return {SubtractSaturated(a.x(), b.x()), SubtractSaturated(a.y(), b.y())};
}

}  // namespace taviinputmanager

#endif  // CORE_PIXELS_H_
