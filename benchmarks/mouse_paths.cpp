// The mouse: dragging a contact, and view control with relative counts.
#include <limits>

#include <QMouseEvent>

#include "benchmarks/bench_host.h"
#include "benchmarks/floor.h"
#include "benchmarks/path.h"
#include "keymap/tavikeymapmanager.h"
#include "taviinputmanager/taviinputmanager.h"

namespace taviinputmanager::bench {

using namespace tavikeymapmanager;

namespace {

void SendMouse(QEvent::Type type, const QPointF& at) {
  const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
  const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, at, at, button, held, Qt::NoModifier);
  OnQtInputEvent(&event);
}

// Moves less than 2 ms apart are dropped.
constexpr int kBetweenMovesMs = 3;

void StartDrag() {
  Load(MakeKeymap(30));
  SendMouse(QEvent::MouseButtonPress, {640, 360});
  SetClockStride(kBetweenMovesMs);
}

void Drag() {
  static QMouseEvent event(QEvent::MouseMove, QPointF(641, 361), QPointF(641, 361), Qt::NoButton, Qt::LeftButton,
                           Qt::NoModifier);
  OnQtInputEvent(&event);
}

void EndDrag() {
  SetClockStride(0);
  SendMouse(QEvent::MouseButtonRelease, {641, 361});
}

void FloorDrag() {
  ReadClock();
  SendFloorLine("SLOTPRESS", 1, 1, 1, 1, 641, 361);
}

// `interval_ms`: the minimum time between lines.
void LookAround(int interval_ms) {
  auto config = MakeKeymap(30);
  auto staring = MakeItem<StaringConfigItem>(keywords::kTypeStaring, kUnmappedScanCode);
  staring->range_mode = keywords::kRangeWindow;
  staring->press_interval_ms = staring->move_interval_ms = interval_ms;
  config->items.append(staring.release());
  Load(std::move(config));
  QKeyEvent press = MakeKey(QEvent::KeyPress, kUnmappedScanCode);
  OnQtInputEvent(&press);
}

void StartLooking() {
  LookAround(0);
  OnWindowsWmRelativeInputEvent(0, 0);  // presses the contact at the centre
}

void StartThrottled() { LookAround(std::numeric_limits<int>::max()); }

void Look() {
  OnWindowsWmRelativeInputEvent(3, -2);
  OnWindowsWmRelativeInputEvent(-3, 2);
}

void FloorLook() {
  ReadClock();
  SendFloorLine("SLOTPRESS", 1, 1, 1, 1, 643, 358);
  ReadClock();
  SendFloorLine("SLOTPRESS", 1, 1, 1, 1, 640, 360);
}

}  // namespace

std::vector<Path> MousePaths() {
  constexpr auto kNone = nullptr;
  return {
      {"drag_move", 1, 1, StartDrag, Drag, EndDrag, kNone, FloorDrag, kNone, 0},
      {"view_move", 2, 2, StartLooking, Look, kNone, kNone, FloorLook, kNone, 0},
      {"throttled_move", 1, 0, StartThrottled, [] { OnWindowsWmRelativeInputEvent(3, -2); }, kNone, kNone, ReadClock,
       kNone, 0},
  };
}

}  // namespace taviinputmanager::bench
