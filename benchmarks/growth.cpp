#include "benchmarks/growth.h"

#include <benchmark/benchmark.h>
#include <limits>

#include <QCoreApplication>
#include <QKeyEvent>

#include "benchmarks/bench_host.h"
#include "keymap/tavikeymapmanager.h"
#include "taviinputmanager/taviinputmanager.h"

namespace taviinputmanager::bench {

using namespace tavikeymapmanager;

namespace {

void SendKey(QEvent::Type type, int scancode) {
  QKeyEvent event = MakeKey(type, scancode);
  OnQtInputEvent(&event);
}

// One line for the guest for each of two events in an iteration.
void MeasureKey(benchmark::State& state, int scancode) {
  QKeyEvent press = MakeKey(QEvent::KeyPress, scancode);
  QKeyEvent release = MakeKey(QEvent::KeyRelease, scancode);
  for (auto _ : state) {
    OnQtInputEvent(&press);
    OnQtInputEvent(&release);
  }
}

void TapByItems(benchmark::State& state) {
  Load(MakeKeymap(static_cast<int>(state.range(0))));
  MeasureKey(state, kLastScanCode);
}

void PassThroughByItems(benchmark::State& state) {
  auto config = MakeKeymap(static_cast<int>(state.range(0)));
  config->settings->keyboard_transparent = true;
  Load(std::move(config));
  MeasureKey(state, kUnmappedScanCode);
}

// A walk that never arrives, with one step per iteration of the event loop; a click; and `count` macros that sleep.
void LoadWithWorkers(int count) {
  auto config = MakeKeymap(30);
  auto* walk = static_cast<SwipeholdConfigItem*>(config->items.first());
  walk->first_press_delay_ms = walk->first_press_step_ms = 0;
  walk->first_press_steps = std::numeric_limits<int>::max();
  const int first = kFirstFillerScanCode + config->items.size();
  for (int i = 0; i < count; ++i) {
    auto macro = MakeItem<MacroConfigItem>(keywords::kTypeMacro, first + i);
    macro->press_commands << QStringLiteral("sleep:1000000000");
    config->items.append(macro.release());
  }
  Load(std::move(config));
  for (int i = 0; i < count; ++i) SendKey(QEvent::KeyPress, first + i);
}

void TapByWorkers(benchmark::State& state) {
  LoadWithWorkers(static_cast<int>(state.range(0)));
  MeasureKey(state, kLastScanCode);
  Load(MakeKeymap(1));
}

// Mirrors lines and text lines alike: both callbacks have the same type.
void TakeMirrored(const QString& command, const QVector<QString>& targets) {
  benchmark::DoNotOptimize(command.constData());
  benchmark::DoNotOptimize(targets.constData());
}

void TapByTargets(benchmark::State& state) {
  Load(MakeKeymap(30));
  SetInputEventSyncFunc(reinterpret_cast<void*>(&TakeMirrored));
  for (int i = 0; i < state.range(0); ++i) StartSync(QString::number(i), QString(), QString());
  MeasureKey(state, kLastScanCode);
  for (int i = 0; i < state.range(0); ++i) StopSync(QString::number(i));
}

void TickByWorkers(benchmark::State& state) {
  LoadWithWorkers(static_cast<int>(state.range(0)));
  SendKey(QEvent::KeyPress, kWalkUpScanCode);
  for (auto _ : state) QCoreApplication::processEvents();
  SendKey(QEvent::KeyRelease, kWalkUpScanCode);
  Load(MakeKeymap(1));
  QCoreApplication::processEvents();
}

void Register(const char* name, void (*function)(benchmark::State&)) {
  auto* registered = benchmark::RegisterBenchmark(name, function);
  for (const int size : {1, 3, 10, 30, 100, 300, 1000}) registered->Arg(size);
}

}  // namespace

void RegisterGrowth() {
  Register("growth/tap/items", TapByItems);
  Register("growth/pass_through/items", PassThroughByItems);
  Register("growth/tap/workers", TapByWorkers);
  Register("growth/walk_tick/workers", TickByWorkers);
  Register("growth/tap/targets", TapByTargets);
}

}  // namespace taviinputmanager::bench
