// Conversions from doubles to ints: the only two in use. They are not interchangeable. Also sums of ints that may not
// fit one.
#ifndef CORE_NUMBERS_H_
#define CORE_NUMBERS_H_

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace taviinputmanager {

// Rounds towards zero. NaN gives 0; a value out of range gives the nearest int.
inline int Truncate(double v) {
  constexpr double kLowest = std::numeric_limits<int>::min();
  constexpr double kHighest = std::numeric_limits<int>::max();
  if (v > kLowest && v < kHighest) return static_cast<int>(v);
  if (std::isnan(v)) return 0;
  return v < 0 ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
}

// The same for whole numbers that do not fit an int.
template <typename Wide>
Wide TruncateTo(double v) {
  // Both limits are powers of two, or 0, so that they are exact as doubles; the upper one is the first value that does
  // not fit.
  constexpr auto kLowest = static_cast<double>(std::numeric_limits<Wide>::min());
  const double end = std::ldexp(1.0, std::numeric_limits<Wide>::digits);
  if (std::isnan(v)) return 0;
  if (v <= kLowest) return std::numeric_limits<Wide>::min();
  if (v >= end) return std::numeric_limits<Wide>::max();
  return static_cast<Wide>(v);
}

// Rounds to nearest, halves up: -0.5 gives 0, -1.5 gives -1. The same limits as Truncate.
// NOLINTBEGIN(bugprone-incorrect-roundings): this is how Qt 5 rounds
inline int Round(double v) {
  constexpr int kHighest = std::numeric_limits<int>::max();
  if (v >= 0) return v + 0.5 < kHighest ? static_cast<int>(v + 0.5) : kHighest;
  const double k = Truncate(v - 1);
  return Truncate(static_cast<double>(Truncate(v - k + 0.5)) + k);
}
// NOLINTEND(bugprone-incorrect-roundings)

// Counts wrap at the range of an int, modulo 2^32.
inline int AddWrapped(int a, int b) { return static_cast<int>(static_cast<unsigned>(a) + static_cast<unsigned>(b)); }
inline int MultiplyWrapped(int a, int b) {
  return static_cast<int>(static_cast<unsigned>(a) * static_cast<unsigned>(b));
}

// The signed distance between the low 32 bits of two 64-bit counts.
inline int LowDistance(std::int64_t from, std::int64_t to) {
  return static_cast<int>(static_cast<std::uint32_t>(to) - static_cast<std::uint32_t>(from));
}

// Positions saturate at the limits of an int.
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
