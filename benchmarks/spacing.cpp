#include "benchmarks/spacing.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <thread>
#include <vector>

#include <QCoreApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QTimer>

#include "benchmarks/bench_host.h"
#include "keymap/tavikeymapmanager.h"
#include "taviinputmanager/taviinputmanager.h"

namespace taviinputmanager::bench {

using namespace tavikeymapmanager;

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kTickMs = 8;
constexpr std::size_t kTicks = 400;

// The times at which lines were sent, or ticks came.
std::vector<Clock::time_point> times;

void NoteTime() {
  if (times.size() < kTicks) times.push_back(Clock::now());
}

bool IsFull() { return times.size() >= kTicks; }

void WaitUntilFull() {
  while (!IsFull()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void PressKey(int scancode, bool down) {
  QKeyEvent event = MakeKey(down ? QEvent::KeyPress : QEvent::KeyRelease, scancode);
  OnQtInputEvent(&event);
}

// Plays an item until it has sent enough lines.
void RunItem(std::unique_ptr<KeymapConfig> config, int scancode) {
  Load(std::move(config));
  SetInputEventSendFunc(reinterpret_cast<void*>(+[](const char*, int) { NoteTime(); }));
  PressKey(scancode, true);
  WaitUntilFull();
  SetInputEventSendFunc(reinterpret_cast<void*>(&Sink));
  PressKey(scancode, false);
  Load(MakeKeymap(1));
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents(QEventLoop::AllEvents, 2 * kTickMs);
}

void RunWalk() {
  auto config = MakeKeymap(1);
  auto walk = std::make_unique<SwipeholdConfigItem>();
  walk->type = keywords::kTypeSwipehold;
  walk->key_up = MakeItem<ConfigItem>(QString(), kWalkUpScanCode)->key;
  walk->first_press_delay_ms = walk->first_press_step_ms = kTickMs;
  walk->first_press_steps = 10 * static_cast<int>(kTicks);
  config->items.append(walk.release());
  RunItem(std::move(config), kWalkUpScanCode);
}

void RunCurve() {
  auto config = MakeKeymap(1);
  auto curve = MakeItem<CurveConfigItem>(keywords::kTypeCurve, kUnmappedScanCode);
  for (std::size_t i = 0; i < 2 * kTicks; ++i) curve->curve_points += QStringLiteral("0.1,0.1;");
  config->items.append(curve.release());
  RunItem(std::move(config), kUnmappedScanCode);
}

void RunBareTimer() {
  QTimer timer;
  timer.setTimerType(Qt::PreciseTimer);
  QObject::connect(&timer, &QTimer::timeout, &timer, [&timer] {
    NoteTime();
    timer.start(kTickMs);
  });
  timer.start(kTickMs);
  WaitUntilFull();
}

void RunNanosleep() {
  constexpr long kNsInMs = 1000000;
  const timespec pause{0, kTickMs * kNsInMs};
  while (!IsFull()) {
    clock_nanosleep(CLOCK_MONOTONIC, 0, &pause, nullptr);
    NoteTime();
  }
}

// One busy thread per core, as long as it exists.
class BusyCores {
 public:
  explicit BusyCores(bool is_on) {
    const unsigned cores = is_on ? std::max(1U, std::thread::hardware_concurrency()) : 0;
    for (unsigned i = 0; i < cores; ++i) {
      threads_.emplace_back([this] {
        while (!stop_.load(std::memory_order_relaxed)) {
        }
      });
    }
  }
  ~BusyCores() {
    stop_ = true;
    for (std::thread& thread : threads_) thread.join();
  }
  BusyCores(const BusyCores&) = delete;
  BusyCores& operator=(const BusyCores&) = delete;

 private:
  std::atomic<bool> stop_{false};
  std::vector<std::thread> threads_;
};

std::vector<double> Spacings() {
  std::vector<double> spacings;
  for (std::size_t i = 1; i < times.size(); ++i) {
    spacings.push_back(std::chrono::duration<double, std::milli>(times[i] - times[i - 1]).count());
  }
  std::sort(spacings.begin(), spacings.end());
  return spacings;
}

}  // namespace

int PrintSpacing() {
  const struct {
    const char* name;
    void (*run)();
  } runs[] = {{"walk, main thread", RunWalk},
              {"curve, thread of its own", RunCurve},
              {"bare precise timer", RunBareTimer},
              {"clock_nanosleep", RunNanosleep}};
  const char* separator = "[";
  for (const bool is_busy : {false, true}) {
    const BusyCores load(is_busy);
    for (const auto& run : runs) {
      times.clear();
      run.run();
      const std::vector<double> spacings = Spacings();
      std::printf("%s\n{\"name\": \"%s\", \"load\": %s, \"median_ms\": %.3f, \"p99_ms\": %.3f}", separator, run.name,
                  is_busy ? "true" : "false", spacings[spacings.size() / 2], spacings[spacings.size() * 99 / 100]);
      std::fflush(stdout);
      separator = ",";
    }
  }
  std::printf("\n]\n");
  return EXIT_SUCCESS;
}

}  // namespace taviinputmanager::bench
