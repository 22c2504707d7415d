#include "host/simulation/simulated_host.h"

#include "host/session/host_functions.h"

namespace tavi {

using taviinputmanager::WindowGeometry;
using Source = TimelineEntry::Source;

// The callbacks for the library.
struct HostFunctions : TellingFunctions<SimulatedHost> {
  static SimulatedHost* Host() { return SimulatedHost::GetInstance(); }

  static WindowGeometry GetWindowGeometry() { return Host()->window; }
  static int GetDisplayRotation() { return Host()->rotation; }
  static bool IsTextInputActive() { return Host()->text_input; }
  static int GetJoystickType(int /*device*/) { return Host()->joystick_type; }
  static bool IsEscapeBackEnabled() { return Host()->escape_back; }
  static QRect GetDisplayRect() { return Host()->display; }
  static QRect GetTouchRect() { return Host()->touch; }
  static bool IsPrimaryDisplay(int display) { return display == Host()->primary_display; }
};

SimulatedHost* SimulatedHost::GetInstance() {
  static SimulatedHost instance;
  return &instance;
}

SimulatedHost::SimulatedHost() : table(CallbacksOf<HostFunctions>()) {}

void SimulatedHost::Start(std::function<qint64()> now) {
  now_ = std::move(now);
  StartTimeline();
  InitializeLibrary<HostFunctions>(&table);
}

void SimulatedHost::StartTimeline() {
  start_ms_ = now_();
  timeline_.clear();
}

QVector<TimelineEntry> SimulatedHost::TakeTimeline() { return std::exchange(timeline_, {}); }

void SimulatedHost::Add(Source source, const QString& text) {
  const TimelineEntry entry{now_() - start_ms_, source, text};
  if (listener) return listener(entry);
  timeline_.append(entry);
  if (interruption) interruption(entry);
}

}  // namespace tavi
