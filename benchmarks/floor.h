// What each path is measured against: the same bytes, formatted with std::to_chars into a buffer on the stack, and one
// call through a function pointer; where the path's behaviour asks for the time, one reading of the clock an event.
#ifndef BENCHMARKS_FLOOR_H_
#define BENCHMARKS_FLOOR_H_

#include <benchmark/benchmark.h>
#include <charconv>
#include <cstddef>
#include <cstring>

#include <QDateTime>

namespace taviinputmanager::bench {

using SendFunction = void (*)(const char* data, int length);

// Where floors send to. Written before a floor runs; volatile, so that the call stays one through a pointer.
extern SendFunction volatile floor_send;

inline char* PutNumber(char* at, int value) {
  constexpr int kDigits = 11;
  benchmark::DoNotOptimize(value);  // no number is known beforehand
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
