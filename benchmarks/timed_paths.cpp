// Timed gestures: the ticks of a walk, and the commands of a macro.
#include <limits>
#include <memory>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QTimer>

#include "benchmarks/bench_host.h"
#include "benchmarks/floor.h"
#include "benchmarks/path.h"
#include "keymap/tavikeymapmanager.h"
#include "taviinputmanager/taviinputmanager.h"

namespace taviinputmanager::bench {

using namespace tavikeymapmanager;

namespace {

void SendKey(QEvent::Type type, int scancode) {
  QKeyEvent event = MakeKey(type, scancode);
  OnQtInputEvent(&event);
}

// One iteration of the event loop, in which one timer is due.
void Pass() { QCoreApplication::processEvents(); }

// ---- Walk ----

// An endless slide, with one step per iteration of the event loop.
void StartWalk() {
  auto config = MakeKeymap(30);
  auto* walk = static_cast<SwipeholdConfigItem*>(config->items.first());
  walk->first_press_delay_ms = walk->first_press_step_ms = 0;
  walk->first_press_steps = std::numeric_limits<int>::max();
  Load(std::move(config));
  SendKey(QEvent::KeyPress, kWalkUpScanCode);
}

void EndWalk() {
  SendKey(QEvent::KeyRelease, kWalkUpScanCode);
  Load(MakeKeymap(1));
  Pass();  // ends the slide
}

std::unique_ptr<QTimer> bare_timer;

void StartBareTimer() {
  bare_timer = std::make_unique<QTimer>();
  bare_timer->setTimerType(Qt::PreciseTimer);
  QObject::connect(bare_timer.get(), &QTimer::timeout, bare_timer.get(), [] {
    SendFloorLine("SLOTPRESS", 2, 2, 1, 1, 256, 504);
    bare_timer->start(0);
  });
  bare_timer->start(0);
}

void EndBareTimer() { bare_timer.reset(); }

// ---- Macros ----

constexpr int kCommands = 100;

// A macro that repeats `first` and `second` without a pause.
void LoadMacro(const QString& first, const QString& second) {
  auto config = MakeKeymap(30);
  auto macro = MakeItem<MacroConfigItem>(keywords::kTypeMacro, kUnmappedScanCode);
  for (int i = 0; i < kCommands; i += 2) macro->press_commands << first << second;
  config->items.append(macro.release());
  Load(std::move(config));
}

void LoadFingerMacro() {
  LoadMacro(QStringLiteral("press_rel:(0.25,0.75)"), QStringLiteral("release_rel:(0.25,0.75)"));
}

void LoadKeyMacro() { LoadMacro(QStringLiteral("keyboard_press:44"), QStringLiteral("keyboard_release:44")); }

void PlayMacro() { SendKey(QEvent::KeyPress, kUnmappedScanCode); }

void FloorFingerMacro() {
  for (int i = 0; i < kCommands; i += 2) {
    SendFloorLine("SLOTMULTIPRESS", 18, 18, 320, 540);
    SendFloorLine("SLOTMULTIRELEASE", 18);
  }
}

void FloorKeyMacro() {
  for (int i = 0; i < kCommands; i += 2) {
    SendFloorLine("KBDPR", 44, 1);
    SendFloorLine("KBDRL", 44, 0);
  }
}

}  // namespace

std::vector<Path> TimedPaths() {
  constexpr auto kNone = nullptr;
  return {
      {"walk_tick", 1, 1, StartWalk, Pass, EndWalk, StartBareTimer, Pass, EndBareTimer, 0},
      {"macro_finger", kCommands, kCommands, LoadFingerMacro, PlayMacro, kNone, kNone, FloorFingerMacro, kNone, 0},
      {"macro_key", kCommands, kCommands, LoadKeyMacro, PlayMacro, kNone, kNone, FloorKeyMacro, kNone, 0},
  };
}

}  // namespace taviinputmanager::bench
