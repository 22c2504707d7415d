// Converts decimal digits to the nearest double.
#ifndef GUEST_LINE_DECIMAL_H_
#define GUEST_LINE_DECIMAL_H_

#include <string_view>

namespace taviguest {

// The double nearest to `digits` times 10 to the power of `exponent`, the even one of two equally near; infinity beyond
// the largest. `digits` are '0' to '9', any number of them.
//
// The standard library's own conversion is as exact, but its code is a tenth of the size limit of a static guest.
double NearestDouble(std::string_view digits, int exponent);

}  // namespace taviguest

#endif  // GUEST_LINE_DECIMAL_H_
