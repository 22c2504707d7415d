// From doubles to ints: the only two ways in use. They are not interchangeable. And sums of ints that may not fit one.
#ifndef CORE_NUMBERS_H_
#define CORE_NUMBERS_H_

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace taviinputmanager {

// Towards zero. NaN gives 0; what no int can hold gives the nearest one that an int can.
inline int Truncate(double v) {
  constexpr double kLowest = std::numeric_limits<int>::min();
  constexpr double kHighest = std::numeric_limits<int>::max();
  if (v > kLowest && v < kHighest) return static_cast<int>(v);
  if (std::isnan(v)) return 0;
  return v < 0 ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
}

// The same for whole numbers beyond an int.
template <typename Wide>
Wide TruncateTo(double v) {
  // Both ends are powers of two, or 0, so that they are exact as doubles; the upper one is the first that does not fit.
  constexpr auto kLowest = static_cast<double>(std::numeric_limits<Wide>::min());
  const double end = std::ldexp(1.0, std::numeric_limits<Wide>::digits);
  if (std::isnan(v)) return 0;
  if (v <= kLowest) return std::numeric_limits<Wide>::min();
  if (v >= end) return std::numeric_limits<Wide>::max();
  return static_cast<Wide>(v);
}

// To the nearest, halves upwards: -0.5 gives 0, -1.5 gives -1. The same limits as Truncate.
inline int Round(double v) {
  constexpr int kHighest = std::numeric_limits<int>::max();
  if (v >= 0) return v + 0.5 < kHighest ? static_cast<int>(v + 0.5) : kHighest;
  const double k = Truncate(v - 1);
  return Truncate(static_cast<double>(Truncate(v - k + 0.5)) + k);
}

// Counts run on past the range of an int, modulo 2^32.
inline int AddWrapped(int a, int b) { return static_cast<int>(static_cast<unsigned>(a) + static_cast<unsigned>(b)); }
inline int MultiplyWrapped(int a, int b) {
  return static_cast<int>(static_cast<unsigned>(a) * static_cast<unsigned>(b));
}

// The signed distance between two counts of 64 bits of which the low 32 are looked at.
inline int LowDistance(std::int64_t from, std::int64_t to) {
  return static_cast<int>(static_cast<std::uint32_t>(to) - static_cast<std::uint32_t>(from));
}

// Positions stop at the ends of an int.
inline int Saturate(std::int64_t v) {
  constexpr std::int64_t kLowest = std::numeric_limits<int>::min();
  constexpr std::int64_t kHighest = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(v, kLowest, kHighest));
}
inline int AddSaturated(int a, int b) { return Saturate(std::int64_t{a} + b); }
inline int SubtractSaturated(int a, int b) { return Saturate(std::int64_t{a} - b); }
inline int NegateSaturated(int a) { return Saturate(-std::int64_t{a}); }

}  // namespace taviinputmanager

#endif  // CORE_NUMBERS_H_
