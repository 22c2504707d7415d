// Writes and reads ints in decimal.
#ifndef CORE_DECIMAL_H_
#define CORE_DECIMAL_H_

#include <array>
#include <charconv>
#include <cstddef>
#include <system_error>

namespace taviinputmanager {

constexpr std::size_t kLongestDecimal = 11;  // of an int: ten digits and a sign

namespace decimal_detail {

// "00" to "99", concatenated.
constexpr auto kPairs = [] {
  std::array<char, 200> digits{};
  for (std::size_t i = 0; i < 100; ++i) {
    digits[2 * i] = static_cast<char>('0' + i / 10);
    digits[2 * i + 1] = static_cast<char>('0' + i % 10);
  }
  return digits;
}();

inline char* WriteDigit(char* at, unsigned digit) {
  *at = static_cast<char>('0' + digit);
  return at + 1;
}

inline char* WritePair(char* at, unsigned pair) {
  at[0] = kPairs[2 * pair];
  at[1] = kPairs[2 * pair + 1];
  return at + 2;
}

// Like WriteDecimalBefore.
char* WriteLongDecimalBefore(char* end, int value);

}  // namespace decimal_detail

// Writes the same characters as std::to_chars, and returns the end. Needs room for kLongestDecimal characters. Slots,
// flags and pixels are short numbers, which this writes in a third of the time.
inline char* WriteDecimal(char* at, int value) {
  using namespace decimal_detail;  // NOLINT(google-build-using-namespace)
  const auto number = static_cast<unsigned>(value);
  if (number < 10) return WriteDigit(at, number);
  if (number < 100) return WritePair(at, number);
  if (number < 1000) return WritePair(WriteDigit(at, number / 100), number % 100);
  if (number < 10000) return WritePair(WritePair(at, number / 100), number % 100);
  return std::to_chars(at, at + kLongestDecimal, value).ptr;
}

// The same before `end`; returns the start.
inline char* WriteDecimalBefore(char* end, int value) {
  const bool is_digit = static_cast<unsigned>(value) < 10;
  return is_digit ? decimal_detail::WriteDigit(end - 1, static_cast<unsigned>(value)) - 1
                  : decimal_detail::WriteLongDecimalBefore(end, value);
}

// The int written from `begin` to `end`, as above; 0 for anything else.
inline int ReadDecimal(const char* begin, const char* end) {
  constexpr std::ptrdiff_t kSurelyFits = 9;  // digits
  if (begin != end && end - begin <= kSurelyFits) {
    int number = 0;
    const char* at = begin;
    for (; at != end && *at >= '0' && *at <= '9'; ++at) number = 10 * number + (*at - '0');
    if (at == end) return number;
  }
  int number = 0;
  const auto [read_to, error] = std::from_chars(begin, end, number);
  return error == std::errc() && read_to == end ? number : 0;
}

}  // namespace taviinputmanager

#endif  // CORE_DECIMAL_H_
