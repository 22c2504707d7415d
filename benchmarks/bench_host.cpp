#include "benchmarks/bench_host.h"

#include <array>
#include <benchmark/benchmark.h>
#include <dlfcn.h>

#include <QDateTime>

#include "keymap/tavikeymapmanager.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/keymap_source.h"

namespace {

qint64 clock_offset_ms = 0;
qint64 clock_stride_ms = 0;

}  // namespace

// Replaces Qt's function: reads the real clock, at its real cost.
qint64 QDateTime::currentMSecsSinceEpoch() noexcept {
  using Clock = qint64 (*)();
  static const auto real = reinterpret_cast<Clock>(dlsym(RTLD_NEXT, "_ZN9QDateTime22currentMSecsSinceEpochEv"));
  clock_offset_ms += clock_stride_ms;
  return real() + clock_offset_ms;
}

namespace taviinputmanager::bench {

using namespace tavikeymapmanager;

namespace {

std::string* recorded = nullptr;

void Note(const char* data, int length) { recorded->append(data, static_cast<std::size_t>(length)); }

InputManagerCallbacks MakeCallbacks() {
  InputManagerCallbacks table;
  table.GetWindowGeometry = [] { return WindowGeometry{0, 0, 1280, 720}; };
  table.GetDisplayRotation = [] { return 0; };
  table.IsTextInputActive = [] { return false; };
  table.OnInputStatusChanged = [](int, const QString&) {};
  table.GetJoystickType = [](int) { return 0; };
  table.IsEscapeBackEnabled = [] { return true; };
  table.OnEscapeKeyOccupied = [](bool occupied) { benchmark::DoNotOptimize(occupied); };
  table.GetDisplayRect = [] { return QRect(0, 0, 1280, 720); };
  table.GetTouchRect = [] { return QRect(0, 0, 1280, 720); };
  table.OnMappedDeviceUsed = [](bool keyboard_or_mouse) { benchmark::DoNotOptimize(keyboard_or_mouse); };
  table.IsPrimaryDisplay = [](int display) { return display == kDisplay; };
  return table;
}

// Four keys instead of one: letters for the walk, arrows for the eye.
template <typename Item>
std::unique_ptr<ConfigItem> MakeFourKeys(const QString& type, const std::array<int, 4>& scancodes) {
  auto item = std::make_unique<Item>();
  item->type = type;
  item->rel_x = 0.2;
  item->rel_y = 0.7;
  const std::array<ConfigKey*, 4> keys = {&item->key_up, &item->key_left, &item->key_down, &item->key_right};
  for (std::size_t i = 0; i < keys.size(); ++i) *keys[i] = MakeItem<ConfigItem>(QString(), scancodes[i])->key;
  return item;
}

// A walk, an eye, and then single keys, every fifth of another class than an ordinary click.
std::unique_ptr<ConfigItem> MakeFiller(int number) {
  const int scancode = kFirstFillerScanCode + number;
  switch (number) {
    case 0: return MakeFourKeys<SwipeholdConfigItem>(keywords::kTypeSwipehold, {kWalkUpScanCode, 30, 31, 32});
    case 1: return MakeFourKeys<EyeConfigItem>(keywords::kTypeEye, {328, 331, 336, 333});
    default: break;
  }
  switch (number % 10) {
    case 3: return MakeItem<BunchClickConfigItem>(keywords::kTypeBunchClick, scancode);
    case 8: return MakeItem<SpellConfigItem>(keywords::kTypeSpell, scancode);
    default: return MakeItem<ComposableConfigItem>(keywords::kTypeClick, scancode);
  }
}

}  // namespace

void Sink(const char* data, int length) {
  benchmark::DoNotOptimize(data);
  benchmark::DoNotOptimize(length);
}

void SetUpHost() {
  static InputManagerCallbacks callbacks = MakeCallbacks();
  static InputRecorderCallbacks recorder{[] {}, [] {}, [] {}, [](const QString&, int) {}};
  SetInputEventSendFunc(reinterpret_cast<void*>(&Sink));
  SetInputTextSendFunc(reinterpret_cast<void*>(&Sink));
  Initialize(&callbacks, 0, 0);
  InitializeRecordCallbacks(&recorder);
}

std::unique_ptr<KeymapConfig> MakeKeymap(int size) {
  auto config = std::make_unique<KeymapConfig>();
  config->settings = new KeymapSettings;
  config->wheel_settings = new WheelSettings;
  for (int number = 0; number < size - 1; ++number) config->items.append(MakeFiller(number).release());
  config->items.append(MakeItem<ComposableConfigItem>(keywords::kTypeClick).release());
  return config;
}

void Load(std::unique_ptr<KeymapConfig> config) {
  test::SetNextKeymap(config.release());
  OnLoadKeymapConfigAndInfo(QStringLiteral("bench.yaml"), QStringLiteral("com.example.game"), QString(), kDisplay);
}

std::string Record(void (*round)()) {
  std::string lines;
  recorded = &lines;
  SetInputEventSendFunc(reinterpret_cast<void*>(&Note));
  round();
  SetInputEventSendFunc(reinterpret_cast<void*>(&Sink));
  return lines;
}

QKeyEvent MakeKey(QEvent::Type type, int scancode) {
  const auto code = static_cast<quint32>(scancode);
  return QKeyEvent(type, Qt::Key_unknown, Qt::NoModifier, code, code, 0);
}

void SetClockStride(int ms) {
  clock_stride_ms = ms;  // the clock keeps its lead: setting it back would delay timers
}

}  // namespace taviinputmanager::bench
