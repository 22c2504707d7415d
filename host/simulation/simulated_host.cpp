#include "host/simulation/simulated_host.h"

#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

using taviinputmanager::WindowGeometry;
using Source = TimelineEntry::Source;

QString FormatEntry(const TimelineEntry& entry) {
  QString mark;
  if (entry.source == Source::kText) mark = QStringLiteral("text ");
  if (entry.source == Source::kCallback) mark = QStringLiteral("! ");
  return QStringLiteral("%1ms ").arg(entry.ms) + mark + entry.text;
}

QString FormatLine(const TimelineEntry& entry) {
  return FormatEntry(entry).replace(QLatin1Char('\n'), QLatin1String("\\n")) + QLatin1Char('\n');
}

// The plain functions that the library is given.
struct HostFunctions {
  static SimulatedHost* Host() { return SimulatedHost::GetInstance(); }
  static void Say(const QString& text) { Host()->Say(text); }

  static void SendEvent(const char* data, int length) {
    Host()->Add(Source::kLine, QString::fromUtf8(data, length - 1));  // without the newline
  }
  static void SendText(const char* data, int length) {
    Host()->Add(Source::kText, QString::fromUtf8(data, length - 1));  // without the NUL
  }

  static WindowGeometry GetWindowGeometry() { return Host()->window; }
  static int GetDisplayRotation() { return Host()->rotation; }
  static bool IsTextInputActive() { return Host()->text_input; }
  static void OnInputStatusChanged(int status, const QString& message) {
    Say(QStringLiteral("status %1 %2").arg(status).arg(message).trimmed());
  }
  static int GetJoystickType(int /*device*/) { return Host()->joystick_type; }
  static bool IsEscapeBackEnabled() { return Host()->escape_back; }
  static void OnEscapeKeyOccupied(bool occupied) { Say(QStringLiteral("escape_occupied %1").arg(occupied)); }
  static QRect GetDisplayRect() { return Host()->display; }
  static QRect GetTouchRect() { return Host()->touch; }
  static void OnMappedDeviceUsed(bool keyboard_or_mouse) { Say(QStringLiteral("mapped %1").arg(keyboard_or_mouse)); }
  static void OnOperationRecorderStarted(const QString& name, int total_sleep_ms) {
    Say(QStringLiteral("operation %1 %2").arg(name).arg(total_sleep_ms));
  }
  static void SetGravity(double x, double y, double z) { Say(QStringLiteral("gravity %1 %2 %3").arg(x).arg(y).arg(z)); }
  static bool IsPrimaryDisplay(int display) { return display == Host()->primary_display; }
  static void OnMouseLockSwitch(const QString& key_text) { Say(QStringLiteral("mouse_lock %1").arg(key_text)); }
  static void OnVirtualJoystickChanged(bool enabled) { Say(QStringLiteral("virtual_joystick %1").arg(enabled)); }
  static void OnScreenshotRequest(const QString& instruction) { Say(QStringLiteral("screenshot %1").arg(instruction)); }

  static taviinputmanager::InputManagerCallbacks Table() {
    taviinputmanager::InputManagerCallbacks table;
    table.GetWindowGeometry = GetWindowGeometry;
    table.GetDisplayRotation = GetDisplayRotation;
    table.IsTextInputActive = IsTextInputActive;
    table.OnInputStatusChanged = OnInputStatusChanged;
    table.GetJoystickType = GetJoystickType;
    table.IsEscapeBackEnabled = IsEscapeBackEnabled;
    table.OnEscapeKeyOccupied = OnEscapeKeyOccupied;
    table.GetDisplayRect = GetDisplayRect;
    table.GetTouchRect = GetTouchRect;
    table.OnMappedDeviceUsed = OnMappedDeviceUsed;
    table.OnOperationRecorderStarted = OnOperationRecorderStarted;
    table.SetGravity = SetGravity;
    table.IsPrimaryDisplay = IsPrimaryDisplay;
    table.OnMouseLockSwitch = OnMouseLockSwitch;
    table.OnVirtualJoystickChanged = OnVirtualJoystickChanged;
    table.OnScreenshotRequest = OnScreenshotRequest;
    return table;
  }
};

SimulatedHost* SimulatedHost::GetInstance() {
  static SimulatedHost instance;
  return &instance;
}

SimulatedHost::SimulatedHost() : table(HostFunctions::Table()) {}

void SimulatedHost::Start(std::function<qint64()> now) {
  now_ = std::move(now);
  StartTimeline();
  taviinputmanager::SetInputEventSendFunc(reinterpret_cast<void*>(HostFunctions::SendEvent));
  taviinputmanager::SetInputTextSendFunc(reinterpret_cast<void*>(HostFunctions::SendText));
  taviinputmanager::Initialize(&table, 0, 0);
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
}

}  // namespace tavi
