#include "host/window/window_host.h"

#include <QCursor>
#include <QWidget>

#include "host/window/pad_input.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

using taviinputmanager::WindowGeometry;
using Source = TimelineEntry::Source;

namespace {

constexpr QSize kDefaultGuest(1280, 720);

quint64 Pack(const QSize& size) {
  return static_cast<quint64>(size.width()) << 32 | static_cast<quint64>(size.height());
}

}  // namespace

// The plain functions that the library is given.
struct WindowHostFunctions {
  static WindowHost* Host() { return WindowHost::GetInstance(); }
  static void Say(const QString& text) { Host()->Add(Source::kCallback, text); }

  static void SendEvent(const char* data, int length) {
    Host()->Add(Source::kLine, QString::fromUtf8(data, length - 1));  // without the newline
  }
  static void SendText(const char* data, int length) {
    Host()->Add(Source::kText, QString::fromUtf8(data, length - 1));  // without the NUL
  }

  static WindowGeometry GetWindowGeometry() { return Host()->Geometry(); }
  static int GetDisplayRotation() { return 0; }
  static bool IsTextInputActive() { return Host()->HasTextField(); }
  static void OnInputStatusChanged(int status, const QString& key) {
    Say(QStringLiteral("status %1 %2").arg(status).arg(key).trimmed());
    Host()->SetInputStatus(status, key);
  }
  static int GetJoystickType(int device) { return KindOfDevice(device); }
  static bool IsEscapeBackEnabled() { return true; }
  static void OnEscapeKeyOccupied(bool occupied) { Say(QStringLiteral("escape_occupied %1").arg(occupied)); }
  static QRect GetDisplayRect() { return {QPoint(0, 0), Host()->GuestSize()}; }
  static QRect GetTouchRect() { return {QPoint(0, 0), Host()->GuestSize()}; }
  static void OnMappedDeviceUsed(bool keyboard_or_mouse) { Say(QStringLiteral("mapped %1").arg(keyboard_or_mouse)); }
  static void OnOperationRecorderStarted(const QString& name, int total_sleep_ms) {
    Say(QStringLiteral("operation %1 %2").arg(name).arg(total_sleep_ms));
  }
  static void SetGravity(double x, double y, double z) {
    Say(QStringLiteral("gravity %1 %2 %3").arg(x).arg(y).arg(z));
    Host()->SetGravity(x, y, z);
  }
  static bool IsPrimaryDisplay(int display) { return display == WindowHost::kDisplay; }
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

WindowHost* WindowHost::GetInstance() {
  static WindowHost instance;
  return &instance;
}

WindowHost::WindowHost() : table_(WindowHostFunctions::Table()), guest_size_(Pack(kDefaultGuest)) {}

void WindowHost::Start(QWidget* view) {
  view_ = view;
  if (clock_.isValid()) return;  // the library is initialised once
  clock_.start();
  taviinputmanager::SetInputEventSendFunc(reinterpret_cast<void*>(WindowHostFunctions::SendEvent));
  taviinputmanager::SetInputTextSendFunc(reinterpret_cast<void*>(WindowHostFunctions::SendText));
  taviinputmanager::Initialize(&table_, 0, 0);
}

void WindowHost::SetGuestSize(const QSize& size) { guest_size_ = Pack(size); }

QSize WindowHost::GuestSize() const {
  const quint64 packed = guest_size_;
  return {static_cast<int>(packed >> 32), static_cast<int>(packed & 0xFFFFFFFF)};
}

void WindowHost::SetTextField(bool focused) {
  if (focused == text_field_) return;
  text_field_ = focused;
  Q_EMIT TextFieldChanged(focused);
}

// Places come in pixels of the guest, so this is a view as large as the guest. Its corner is such that the pointer less
// the corner is the pointer's place in the guest.
WindowGeometry WindowHost::Geometry() const {
  const QSize guest = GuestSize();
  if (!view_) return {0, 0, guest.width(), guest.height()};
  const QPoint pointer = QCursor::pos();
  const QPoint in_view = view_->mapFromGlobal(pointer);
  const int x = in_view.x() * guest.width() / qMax(1, view_->width());
  const int y = in_view.y() * guest.height() / qMax(1, view_->height());
  return {pointer.x() - x, pointer.y() - y, guest.width(), guest.height()};
}

void WindowHost::Add(Source source, const QString& text) {
  const TimelineEntry entry{clock_.elapsed(), source, text};
  QMetaObject::invokeMethod(this, [this, entry] { Q_EMIT EntryAdded(entry); });
}

void WindowHost::SetInputStatus(int status, const QString& key) {
  QMetaObject::invokeMethod(this, [this, status, key] {
    status_ = status;
    Q_EMIT InputStatusChanged(status, key);
  });
}

void WindowHost::SetGravity(double x, double y, double z) {
  QMetaObject::invokeMethod(this, [this, x, y, z] { Q_EMIT GravityChanged(x, y, z); });
}

}  // namespace tavi
