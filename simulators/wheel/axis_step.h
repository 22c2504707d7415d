// Direction, speed and axis of the keys for wheel and pinch.
#ifndef SIMULATORS_WHEEL_AXIS_STEP_H_
#define SIMULATORS_WHEEL_AXIS_STEP_H_

#include <QPointF>
#include <QString>

#include "keymap/keywords.h"

namespace taviinputmanager {

// How far a contact moves in one tick, as a fraction of the display.
inline double StepOfSpeed(int speed) { return speed * 0.01 / 100.0; }

// Along the axis; any value but "vertical" means the horizontal one.
inline QPointF AxisVector(const QString& axis, double length) {
  return axis == tavikeymapmanager::keywords::kAxisVertical ? QPointF(0, length) : QPointF(length, 0);
}

// 1 for direction 1, -1 for 2; any other value moves nothing.
inline int DirectionSign(int direction) { return direction == 1 ? 1 : direction == 2 ? -1 : 0; }

}  // namespace taviinputmanager

#endif  // SIMULATORS_WHEEL_AXIS_STEP_H_
