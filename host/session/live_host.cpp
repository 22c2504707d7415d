#include "host/session/live_host.h"

#include <QMetaMethod>

#include "host/gamepad/pad_input.h"
#include "host/session/host_functions.h"

namespace tavi {

using taviinputmanager::WindowGeometry;
using Source = TimelineEntry::Source;

namespace {

constexpr QSize kDefaultGuest(1280, 720);

quint64 Pack(const QSize& size) {
  return static_cast<quint64>(size.width()) << 32 | static_cast<quint64>(size.height());
}

}  // namespace

// The callbacks for the library.
struct LiveHostFunctions : TellingFunctions<LiveHost> {
  static LiveHost* Host() { return LiveHost::GetInstance(); }

  // Targets first: drawing may take a while.
  static void SendEvent(const char* data, int length) {
    Host()->SendLine(data, length);
    TellingFunctions::SendEvent(data, length);
  }
  static void SendText(const char* data, int length) {
    Host()->SendLine(data, length);
    TellingFunctions::SendText(data, length);
  }

  static WindowGeometry GetWindowGeometry() { return Host()->ViewGeometry(); }
  static int GetDisplayRotation() { return Host()->Geometry().rotation; }
  static bool IsTextInputActive() { return Host()->HasTextField(); }
  static int GetJoystickType(int device) { return KindOfDevice(device); }
  static bool IsEscapeBackEnabled() { return true; }
  // Aims and macros need the pointer's distance from its corner.
  static QRect GetDisplayRect() {
    const WindowGeometry view = Host()->ViewGeometry();
    return {{view.x, view.y}, Host()->Geometry().DisplaySize()};
  }
  static QRect GetTouchRect() { return {QPoint(0, 0), Host()->GuestSize()}; }
  static bool IsPrimaryDisplay(int display) { return display == LiveHost::kDisplay; }

  static void OnInputStatusChanged(int status, const QString& key) {
    TellingFunctions::OnInputStatusChanged(status, key);
    Host()->SetInputStatus(status, key);
  }
  static void SetGravity(double x, double y, double z) {
    TellingFunctions::SetGravity(x, y, z);
    Host()->SetGravity(x, y, z);
  }
};

LiveHost* LiveHost::GetInstance() {
  static LiveHost instance;
  return &instance;
}

LiveHost::LiveHost() : table_(CallbacksOf<LiveHostFunctions>()), guest_size_(Pack(kDefaultGuest)) {}

void LiveHost::Start(Corner corner) {
  corner_ = std::move(corner);
  if (clock_.isValid()) return;  // the library is initialized once
  clock_.start();
  InitializeLibrary<LiveHostFunctions>(&table_);
}

void LiveHost::SetGuestSize(const QSize& size) {
  guest_size_ = Pack(size);
  targets_.SetSurface(size);
}

QSize LiveHost::GuestSize() const {
  const quint64 packed = guest_size_;
  return {static_cast<int>(packed >> 32), static_cast<int>(packed & 0xFFFFFFFF)};
}

void LiveHost::SetTextField(bool focused) {
  if (focused == text_field_) return;
  text_field_ = focused;
  Q_EMIT TextFieldChanged(focused);
}

WindowGeometry LiveHost::ViewGeometry() const {
  const QSize size = ViewSize();
  const QPoint corner = corner_ ? corner_(size) : QPoint();
  return {corner.x(), corner.y(), size.width(), size.height()};
}

void LiveHost::SendLine(const char* data, int length) {
  if (line_sink_) line_sink_(data, length);
  targets_.Send(data, length);
}

void LiveHost::connectNotify(const QMetaMethod& signal) {
  if (signal == QMetaMethod::fromSignal(&LiveHost::EntryAdded)) is_heard_ = true;
}

void LiveHost::Add(Source source, const QString& text) {
  const TimelineEntry entry{clock_.elapsed(), source, text};
  QMetaObject::invokeMethod(this, [this, entry] { Q_EMIT EntryAdded(entry); });
}

void LiveHost::SetInputStatus(int status, const QString& key) {
  QMetaObject::invokeMethod(this, [this, status, key] {
    status_ = status;
    Q_EMIT InputStatusChanged(status, key);
  });
}

void LiveHost::SetGravity(double x, double y, double z) {
  QMetaObject::invokeMethod(this, [this, x, y, z] { Q_EMIT GravityChanged(x, y, z); });
}

}  // namespace tavi
