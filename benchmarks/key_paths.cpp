// Keys: mapped, passed through, and while recording.
#include <QKeyEvent>
#include <QTemporaryDir>

#include "benchmarks/bench_host.h"
#include "benchmarks/floor.h"
#include "benchmarks/path.h"
#include "keymap/tavikeymapmanager.h"
#include "taviinputmanager/taviinputmanager.h"

namespace taviinputmanager::bench {

using namespace tavikeymapmanager;

namespace {

// One event object for each key and direction: a host's window system has only one at a time.
template <QEvent::Type kType, int kScanCode>
void SendKey() {
  static QKeyEvent event = MakeKey(kType, kScanCode);
  OnQtInputEvent(&event);
}

void Press() { SendKey<QEvent::KeyPress, kLastScanCode>(); }
void Release() { SendKey<QEvent::KeyRelease, kLastScanCode>(); }

void Tap() {
  Press();
  Release();
}

void FloorPress() { SendFloorLine("SLOTPRESS", 11, 11, 1, 1, 640, 360); }
void FloorRelease() { SendFloorLine("SLOTRELEASE", 11); }

void FloorTap() {
  FloorPress();
  FloorRelease();
}

// Recorded actions need their time.
void FloorRecordedTap() {
  FloorPress();
  ReadClock();
  FloorRelease();
  ReadClock();
}

template <int kSize>
void LoadItems() {
  Load(MakeKeymap(kSize));
}

// Releasing a key that was never pressed sends nothing; a key that was pressed once may be released any number of
// times.
void LoadAndPress() {
  LoadItems<30>();
  Press();
}

void PassThrough() {
  SendKey<QEvent::KeyPress, kUnmappedScanCode>();
  SendKey<QEvent::KeyRelease, kUnmappedScanCode>();
}

void FloorPassThrough() {
  SendFloorLine("KBDPR", kUnmappedScanCode, 1);
  SendFloorLine("KBDRL", kUnmappedScanCode, 0);
}

template <int kSize>
void LoadPassingItems() {
  auto config = MakeKeymap(kSize);
  config->settings->keyboard_transparent = true;
  Load(std::move(config));
}

constexpr int kRecordedRounds = 20000;

void StartRecording() {
  LoadItems<30>();
  StartRecord(QStringLiteral("com.example.game"), QStringLiteral("Game"));
}

void StopRecording() {
  const QTemporaryDir folder;
  StopRecord(QStringLiteral("com.example.game"), folder.filePath(QStringLiteral("tap.record")));
}

}  // namespace

std::vector<Path> KeyPaths() {
  constexpr auto kNone = nullptr;
  return {
      {"press_30", 1, 1, LoadItems<30>, Press, kNone, kNone, FloorPress, kNone, 0},
      {"release_30", 1, 1, LoadAndPress, Release, kNone, kNone, FloorRelease, kNone, 0},
      {"tap_30", 2, 2, LoadItems<30>, Tap, kNone, kNone, FloorTap, kNone, 0},
      {"tap_1000", 2, 2, LoadItems<1000>, Tap, kNone, kNone, FloorTap, kNone, 0},
      {"pass_through_30", 2, 2, LoadPassingItems<30>, PassThrough, kNone, kNone, FloorPassThrough, kNone, 0},
      {"pass_through_1000", 2, 2, LoadPassingItems<1000>, PassThrough, kNone, kNone, FloorPassThrough, kNone, 0},
      {"recorded_tap", 2, 2, StartRecording, Tap, StopRecording, kNone, FloorRecordedTap, kNone, kRecordedRounds},
  };
}

}  // namespace taviinputmanager::bench
