// The curves that a keymap can name.
#ifndef SIMULATORS_WALK_CURVE_VALUE_H_
#define SIMULATORS_WALK_CURVE_VALUE_H_

#include <QString>

namespace taviinputmanager {

// The curve `name` at t * factor + offset; "X2" is t * factor * t + offset. 0 for any other name. Sine and cosine have
// the precision of Qt's fast tables, and are 0 if an argument is too large for them.
double CurveValue(const QString& name, double t, double factor, double offset);

}  // namespace taviinputmanager

#endif  // SIMULATORS_WALK_CURVE_VALUE_H_
