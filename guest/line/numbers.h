// The numbers of lines, read and rounded as hosts read and round them, to the last bit.
#ifndef GUEST_LINE_NUMBERS_H_
#define GUEST_LINE_NUMBERS_H_

#include <optional>
#include <string_view>

namespace taviguest {

// A whole number of 32 bits: digits with one sign in front or none, and blanks around them. Blanks are those of
// Unicode, and the minus may be U+2212; `text` is valid UTF-8.
std::optional<int> ReadWholeNumber(std::string_view text);

// A finite number, in the same frame: digits with a point anywhere among them or none, and an exponent or none. One too
// large for a double, or so small that it would read as 0, is none.
std::optional<double> ReadNumber(std::string_view text);

// The nearest whole number; halves go up, below zero too. `number` lies within those of an int.
int RoundToInt(double number);

}  // namespace taviguest

#endif  // GUEST_LINE_NUMBERS_H_
