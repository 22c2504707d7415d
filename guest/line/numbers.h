// Parses and rounds the numbers of lines exactly as hosts do.
#ifndef GUEST_LINE_NUMBERS_H_
#define GUEST_LINE_NUMBERS_H_

#include <optional>
#include <string_view>

namespace taviguest {

// A whole number of 32 bits: digits with an optional sign, surrounded by optional blanks. Blanks are those of Unicode,
// and the minus sign may be U+2212; `text` is valid UTF-8.
std::optional<int> ReadWholeNumber(std::string_view text);

// A finite number, with the same sign and blanks: digits with an optional decimal point and an optional exponent.
// Nothing for one that is too large for a double, or so small that it would be 0.
std::optional<double> ReadNumber(std::string_view text);

// The nearest whole number; halves are rounded up, below zero too. `number` must fit an int.
int RoundToInt(double number);

}  // namespace taviguest

#endif  // GUEST_LINE_NUMBERS_H_
