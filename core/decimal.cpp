#include "core/decimal.h"

#include <cstring>

namespace taviinputmanager::decimal_detail {

char* WriteLongDecimalBefore(char* end, int value) {
  char digits[kLongestDecimal];
  const auto length = static_cast<std::size_t>(WriteDecimal(digits, value) - digits);
  return static_cast<char*>(std::memcpy(end - length, digits, length));
}

}  // namespace taviinputmanager::decimal_detail
