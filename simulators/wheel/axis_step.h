// What the keys for wheel and pinch make of direction, speed and axis.
#ifndef SIMULATORS_WHEEL_AXIS_STEP_H_
#define SIMULATORS_WHEEL_AXIS_STEP_H_

#include <QPointF>
#include <QString>

#include "keymap/keywords.h"

namespace taviinputmanager {

// Fraction of the display that a finger moves in one tick.
inline double StepOfSpeed(int speed) { return speed * 0.01 / 100.0; }

// Along the axis; any word but "vertical" means the horizontal one.
inline QPointF AxisVector(const QString& axis, double length) {
  return axis == tavikeymapmanager::keywords::kAxisVertical ? QPointF(0, length) : QPointF(length, 0);
}

// 1 for direction 1, -1 for 2; any other moves nothing.
inline int DirectionSign(int direction) { return direction == 1 ? 1 : direction == 2 ? -1 : 0; }

}  // namespace taviinputmanager

#endif  // SIMULATORS_WHEEL_AXIS_STEP_H_
