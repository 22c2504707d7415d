#include "host/window/window_host.h"

#include <QCursor>
#include <QWidget>

#include "host/simulation/host_functions.h"
#include "host/window/pad_input.h"

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
struct WindowHostFunctions : TellingFunctions<WindowHost> {
  static WindowHost* Host() { return WindowHost::GetInstance(); }

  static WindowGeometry GetWindowGeometry() { return Host()->ViewGeometry(); }
  static int GetDisplayRotation() { return Host()->Geometry().rotation; }
  static bool IsTextInputActive() { return Host()->HasTextField(); }
  static int GetJoystickType(int device) { return KindOfDevice(device); }
  static bool IsEscapeBackEnabled() { return true; }
  // Aims and macros ask how far the pointer is from its corner.
  static QRect GetDisplayRect() {
    const WindowGeometry view = Host()->ViewGeometry();
    return {{view.x, view.y}, Host()->Geometry().DisplaySize()};
  }
  static QRect GetTouchRect() { return {QPoint(0, 0), Host()->GuestSize()}; }
  static bool IsPrimaryDisplay(int display) { return display == WindowHost::kDisplay; }

  static void OnInputStatusChanged(int status, const QString& key) {
    TellingFunctions::OnInputStatusChanged(status, key);
    Host()->SetInputStatus(status, key);
  }
  static void SetGravity(double x, double y, double z) {
    TellingFunctions::SetGravity(x, y, z);
    Host()->SetGravity(x, y, z);
  }
};

WindowHost* WindowHost::GetInstance() {
  static WindowHost instance;
  return &instance;
}

WindowHost::WindowHost() : table_(CallbacksOf<WindowHostFunctions>()), guest_size_(Pack(kDefaultGuest)) {}

void WindowHost::Start(QWidget* view) {
  view_ = view;
  if (clock_.isValid()) return;  // the library is initialised once
  clock_.start();
  InitializeLibrary<WindowHostFunctions>(&table_);
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

// The corner is such that the pointer less the corner is the pointer's place in the view as the library is told of it.
WindowGeometry WindowHost::ViewGeometry() const {
  const QSize size = ViewSize();
  if (!view_) return {0, 0, size.width(), size.height()};
  const QPoint pointer = QCursor::pos();
  const QPoint in_view = view_->mapFromGlobal(pointer);
  const int x = in_view.x() * size.width() / qMax(1, view_->width());
  const int y = in_view.y() * size.height() / qMax(1, view_->height());
  return {pointer.x() - x, pointer.y() - y, size.width(), size.height()};
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
