// The host of the benchmarks: a guest view that ignores its input.
#ifndef BENCHMARKS_BENCH_HOST_H_
#define BENCHMARKS_BENCH_HOST_H_

#include <memory>
#include <string>

#include <QKeyEvent>
#include <QString>

#include "keymap/keymap_config.h"

namespace taviinputmanager::bench {

constexpr int kDisplay = 1;

// The keys that the benchmarks press, by Windows scan code.
constexpr int kWalkUpScanCode = 17;    // W
constexpr int kLastScanCode = 59;      // F1: the last item of every keymap
constexpr int kUnmappedScanCode = 48;  // B
constexpr int kFirstFillerScanCode = 1000;

// Receives a line and discards it. Both a path's lines and its baseline's go here.
void Sink(const char* data, int length);

// Call it once, at the start: sets the table and the send functions, and calls Initialize.
void SetUpHost();

// A keymap of `size` items with one key each: a walk, an eye, clicks, rapid taps and casts. The last is a Click on
// kLastScanCode. `size` is at least 1.
std::unique_ptr<tavikeymapmanager::KeymapConfig> MakeKeymap(int size);

// Creates a single item, on kLastScanCode unless `scancode` is set.
template <typename Item>
std::unique_ptr<Item> MakeItem(const QString& type, int scancode = kLastScanCode) {
  auto item = std::make_unique<Item>();
  item->type = type;
  item->key.device = tavikeymapmanager::keywords::kDeviceKeyboard;
  item->key.scancode = item->key.virtual_key = scancode;
  item->rel_x = 0.5;
  item->rel_y = 0.5;
  return item;
}

// Loads `config` as a host would.
void Load(std::unique_ptr<tavikeymapmanager::KeymapConfig> config);

// The lines that `round` sends, each with its display and newline.
std::string Record(void (*round)());

// A key event as the host passes it.
QKeyEvent MakeKey(QEvent::Type type, int scancode);

// From now on each reading of the clock is `ms` later than the previous one: for code that drops events that come too
// early. The real clock is still read, at its cost. 0: the clock runs normally again.
void SetClockStride(int ms);

}  // namespace taviinputmanager::bench

#endif  // BENCHMARKS_BENCH_HOST_H_
