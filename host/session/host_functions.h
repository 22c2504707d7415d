// The common part of hosts that log the library's calls: they use the same callbacks, except those that return a value.
#ifndef HOST_SESSION_HOST_FUNCTIONS_H_
#define HOST_SESSION_HOST_FUNCTIONS_H_

#include <QString>

#include "host/session/timeline_entry.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

// The callbacks without a result. `Host` has GetInstance(), Add(source, text) and IsHeard(), which says whether anybody
// gets the added entries. They are called on the library's thread of the call. If nobody listens, no text is made,
// because that would be the most expensive part of handling an event. A host derives its callbacks from this, adds
// those with a result, and replaces those that it does more in.
template <typename Host>
struct TellingFunctions {
  using Source = TimelineEntry::Source;

  // `words` creates the text.
  template <typename Words>
  static void Tell(Source source, const Words& words) {
    if (Host::GetInstance()->IsHeard()) Host::GetInstance()->Add(source, words());
  }
  template <typename Words>
  static void Say(const Words& words) {
    Tell(Source::kCallback, words);
  }

  static void SendEvent(const char* data, int length) {
    Tell(Source::kLine, [&] { return QString::fromUtf8(data, length - 1); });  // without the newline
  }
  static void SendText(const char* data, int length) {
    Tell(Source::kText, [&] { return QString::fromUtf8(data, length - 1); });  // without the NUL
  }

  static void OnInputStatusChanged(int status, const QString& key) {
    Say([&] { return QStringLiteral("status %1 %2").arg(status).arg(key).trimmed(); });
  }
  static void OnEscapeKeyOccupied(bool occupied) {
    Say([&] { return QStringLiteral("escape_occupied %1").arg(occupied); });
  }
  static void OnMappedDeviceUsed(bool keyboard_or_mouse) {
    Say([&] { return QStringLiteral("mapped %1").arg(keyboard_or_mouse); });
  }
  static void OnOperationRecorderStarted(const QString& name, int total_sleep_ms) {
    Say([&] { return QStringLiteral("operation %1 %2").arg(name).arg(total_sleep_ms); });
  }
  static void SetGravity(double x, double y, double z) {
    Say([&] { return QStringLiteral("gravity %1 %2 %3").arg(x).arg(y).arg(z); });
  }
  static void OnMouseLockSwitch(const QString& key_text) {
    Say([&] { return QStringLiteral("mouse_lock %1").arg(key_text); });
  }
  static void OnVirtualJoystickChanged(bool enabled) {
    Say([&] { return QStringLiteral("virtual_joystick %1").arg(enabled); });
  }
  static void OnScreenshotRequest(const QString& instruction) {
    Say([&] { return QStringLiteral("screenshot %1").arg(instruction); });
  }
};

// The table of all callbacks of a host.
template <typename Functions>
taviinputmanager::InputManagerCallbacks CallbacksOf() {
  taviinputmanager::InputManagerCallbacks table;
  table.GetWindowGeometry = Functions::GetWindowGeometry;
  table.GetDisplayRotation = Functions::GetDisplayRotation;
  table.IsTextInputActive = Functions::IsTextInputActive;
  table.OnInputStatusChanged = Functions::OnInputStatusChanged;
  table.GetJoystickType = Functions::GetJoystickType;
  table.IsEscapeBackEnabled = Functions::IsEscapeBackEnabled;
  table.OnEscapeKeyOccupied = Functions::OnEscapeKeyOccupied;
  table.GetDisplayRect = Functions::GetDisplayRect;
  table.GetTouchRect = Functions::GetTouchRect;
  table.OnMappedDeviceUsed = Functions::OnMappedDeviceUsed;
  table.OnOperationRecorderStarted = Functions::OnOperationRecorderStarted;
  table.SetGravity = Functions::SetGravity;
  table.IsPrimaryDisplay = Functions::IsPrimaryDisplay;
  table.OnMouseLockSwitch = Functions::OnMouseLockSwitch;
  table.OnVirtualJoystickChanged = Functions::OnVirtualJoystickChanged;
  table.OnScreenshotRequest = Functions::OnScreenshotRequest;
  return table;
}

// Installs the send functions, and initializes the library with a static table.
template <typename Functions>
void InitializeLibrary(taviinputmanager::InputManagerCallbacks* table) {
  taviinputmanager::SetInputEventSendFunc(reinterpret_cast<void*>(Functions::SendEvent));
  taviinputmanager::SetInputTextSendFunc(reinterpret_cast<void*>(Functions::SendText));
  taviinputmanager::Initialize(table, 0, 0);
}

}  // namespace tavi

#endif  // HOST_SESSION_HOST_FUNCTIONS_H_
