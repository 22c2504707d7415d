// Decimal digits to the nearest double.
#ifndef GUEST_LINE_DECIMAL_H_
#define GUEST_LINE_DECIMAL_H_

#include <string_view>

namespace taviguest {

// The double that is nearest to `digits` times ten to the power of `exponent`, the even one of two that are equally
// near; infinity beyond the largest. `digits` are '0' to '9', as many as may be.
//
// The standard library's own conversion is as exact, and a tenth of what a static guest may weigh.
double NearestDouble(std::string_view digits, int exponent);

}  // namespace taviguest

#endif  // GUEST_LINE_DECIMAL_H_
