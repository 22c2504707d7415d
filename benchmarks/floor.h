// The baseline of each path: the same bytes, formatted with std::to_chars into a buffer on the stack, and one call
// through a function pointer; if the path needs the time, also one reading of the clock per event.
#ifndef BENCHMARKS_FLOOR_H_
#define BENCHMARKS_FLOOR_H_

#include <benchmark/benchmark.h>
#include <charconv>
#include <cstddef>
#include <cstring>

#include <QDateTime>

namespace taviinputmanager::bench {

using SendFunction = void (*)(const char* data, int length);

// Where baselines send. Written before a baseline runs; volatile, so that the call through the pointer is not optimized
// away.
extern SendFunction volatile floor_send;

inline char* PutNumber(char* at, int value) {
  constexpr int kDigits = 11;
  benchmark::DoNotOptimize(value);  // all numbers are known only at run time
  return std::to_chars(at, at + kDigits, value).ptr;
}

inline char* PutField(char* at, int value) {
  *at = ':';
  return PutNumber(at + 1, value);
}

template <std::size_t kSize, typename... Fields>
void SendFloorLine(const char (&word)[kSize], Fields... fields) {
  char line[128];
  char* at = PutNumber(line, 1);  // the display
  *at++ = ':';
  std::memcpy(at, word, kSize - 1);
  at += kSize - 1;
  ((at = PutField(at, fields)), ...);
  *at++ = '\n';
  *at = '\0';
  floor_send(line, static_cast<int>(at - line));
}

inline void ReadClock() { benchmark::DoNotOptimize(QDateTime::currentMSecsSinceEpoch()); }

}  // namespace taviinputmanager::bench

#endif  // BENCHMARKS_FLOOR_H_
