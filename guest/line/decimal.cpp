#include "guest/line/decimal.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace taviguest {

namespace {

constexpr int kMantissaBits = std::numeric_limits<double>::digits;
constexpr int kLowestExponent = std::numeric_limits<double>::min_exponent - kMantissaBits;  // of the last bit of all

// No double, and no midpoint of two, needs more digits: after these it only matters whether any is not 0.
constexpr size_t kMostDigits = 800;

// A number whose first digit is beyond these is 0 or infinity as a double.
constexpr int kHighestPower = 310;
constexpr int kLowestPower = -345;

constexpr int kWordBits = 32;

// A whole number of any size, from its lowest word to its highest, which is not 0.
class BigNumber {
 public:
  void MultiplyAndAdd(uint32_t factor, uint32_t summand) {
    uint64_t carry = summand;
    for (uint32_t& word : words_) {
      carry += static_cast<uint64_t>(word) * factor;
      word = static_cast<uint32_t>(carry);
      carry >>= kWordBits;
    }
    if (carry != 0) words_.push_back(static_cast<uint32_t>(carry));
  }

  // Returns the remainder.
  uint32_t Divide(uint32_t divisor) {
    uint64_t rest = 0;
    for (size_t i = words_.size(); i-- > 0;) {
      rest = rest << kWordBits | words_[i];
      words_[i] = static_cast<uint32_t>(rest / divisor);
      rest %= divisor;
    }
    if (!words_.empty() && words_.back() == 0) words_.pop_back();
    return static_cast<uint32_t>(rest);
  }

  void ShiftUpByWords(int count) { words_.insert(words_.begin(), static_cast<size_t>(count), 0); }

  int CountBits() const {
    if (words_.empty()) return 0;
    int bits = static_cast<int>(words_.size() - 1) * kWordBits;
    for (uint32_t word = words_.back(); word != 0; word >>= 1U) ++bits;
    return bits;
  }

  bool Bit(int index) const {
    const auto word = static_cast<size_t>(index / kWordBits);
    return word < words_.size() && (words_[word] >> static_cast<uint32_t>(index % kWordBits) & 1U) != 0;
  }

  bool HasBitBelow(int index) const {
    for (int i = 0; i < index; ++i) {
      if (Bit(i)) return true;
    }
    return false;
  }

 private:
  std::vector<uint32_t> words_;
};

// `number`, and a little more if `has_rest`, times 2 to the power of `exponent`.
double Round(const BigNumber& number, bool has_rest, int exponent) {
  const int dropped = std::max(number.CountBits() - kMantissaBits, kLowestExponent - exponent);
  uint64_t mantissa = 0;
  for (int i = number.CountBits() - 1; i >= dropped; --i) {
    mantissa = mantissa << 1U | static_cast<uint64_t>(i >= 0 && number.Bit(i));
  }
  const bool is_half = dropped > 0 && number.Bit(dropped - 1);
  const bool is_more = has_rest || number.HasBitBelow(dropped - 1);
  const bool is_odd = (mantissa & 1U) != 0;
  if (is_half && (is_more || is_odd)) ++mantissa;
  return std::ldexp(static_cast<double>(mantissa), exponent + dropped);
}

}  // namespace

double NearestDouble(std::string_view digits, int exponent) {
  digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
  if (digits.empty()) return 0;
  const int64_t power = static_cast<int64_t>(digits.size()) + exponent;  // of the digit before the first
  if (power > kHighestPower) return std::numeric_limits<double>::infinity();
  if (power < kLowestPower) return 0;
  bool has_rest = digits.substr(0, kMostDigits).size() < digits.size() &&
                  digits.find_first_not_of('0', kMostDigits) != std::string_view::npos;
  digits = digits.substr(0, kMostDigits);
  int tens = static_cast<int>(power) - static_cast<int>(digits.size());
  BigNumber number;
  for (const char digit : digits) number.MultiplyAndAdd(10, static_cast<uint32_t>(digit - '0'));
  for (; tens > 0; --tens) number.MultiplyAndAdd(10, 0);
  // One word for eight divisions, which need 27 bits, and two for the mantissa.
  const int words = -tens / 8 + 3;
  number.ShiftUpByWords(words);
  for (; tens < 0; ++tens) has_rest = number.Divide(10) != 0 || has_rest;
  return Round(number, has_rest, -words * kWordBits);
}

}  // namespace taviguest
