#include "guest_view.h"

#include <cstdio>
#include <keymap/scan_codes.h>
#include <taviinputmanager/taviinputmanager.h>

#include <QCursor>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPainter>

#include "guest_events.h"

namespace tavi = taviinputmanager;

namespace {

constexpr int kDisplay = 1;            // the guest's own number of its display
constexpr QSize kGuest(1920, 1080);    // pixels of its display, and of its touch surface
constexpr int kPassKey = Qt::Key_F12;  // keys of the window's own
constexpr int kTextKey = Qt::Key_F11;  // stands for a guest that tells of its text fields
constexpr int kNotch = 120;            // of a wheel, in eighths of a degree

GuestView* view = nullptr;

// Qt gives a key's native code: on Windows the one that the library wants, and under X11 and Wayland that of X11. 0 for
// a key that has no scan code.
quint32 WindowsScanCode(const QKeyEvent& event) {
#ifdef Q_OS_WIN
  return event.nativeScanCode();
#else
  const int linux_code = static_cast<int>(event.nativeScanCode()) - tavikeymapmanager::kX11KeyOffset;
  return static_cast<quint32>(tavikeymapmanager::ScanCodeOfLinuxKey(linux_code));
#endif
}

}  // namespace

// The library's callbacks are plain functions. Most are called from within the functions of the library that the view
// calls, on the main thread. Those that may come on another thread say so.
struct Callbacks {
  // To the guest. A real host writes to a socket; this must not block.
  static void Send(const char* line, int length) {
    std::fwrite(line, 1, static_cast<std::size_t>(length), stdout);
    std::fflush(stdout);
  }

  // The view as large as the guest, since places are handed over in the guest's pixels. The library asks how far the
  // pointer is from the corner, so the corner is put where that comes out in the guest's pixels too.
  static QRect GetDisplayRect() {
    if (!view) return {QPoint(0, 0), kGuest};
    const QPoint pointer = QCursor::pos();
    return {pointer - view->ToGuest(view->mapFromGlobal(pointer)).toPoint(), kGuest};
  }
  static tavi::WindowGeometry GetWindowGeometry() {
    const QRect rect = GetDisplayRect();
    return {rect.x(), rect.y(), rect.width(), rect.height()};
  }

  // Also on threads of the library: constants here, atomics in a host whose guest turns.
  static QRect GetTouchRect() { return {QPoint(0, 0), kGuest}; }
  static int GetDisplayRotation() { return 0; }

  static bool IsTextInputActive() { return view && view->text_field_; }
  static bool IsEscapeBackEnabled() { return true; }
  static bool IsPrimaryDisplay(int display) { return display == kDisplay; }

  // Also on the thread of a replay, so it is posted.
  static void OnInputStatusChanged(int status, const QString&) {
    if (!view) return;
    const bool captured = status == static_cast<int>(tavi::InputStatus::Staring) ||
                          status == static_cast<int>(tavi::InputStatus::Observing);
    QMetaObject::invokeMethod(
        view, [captured] { view->SetCaptured(captured); }, Qt::QueuedConnection);
  }
};

GuestView::GuestView() {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setAttribute(Qt::WA_AcceptTouchEvents);
  view = this;
}

// Gestures may be under way, so the library may still ask.
GuestView::~GuestView() { view = nullptr; }

void GuestView::Start(const QString& keymap) {
  static tavi::InputManagerCallbacks callbacks;  // lives as long as the library
  callbacks.GetWindowGeometry = Callbacks::GetWindowGeometry;
  callbacks.GetDisplayRect = Callbacks::GetDisplayRect;
  callbacks.GetTouchRect = Callbacks::GetTouchRect;
  callbacks.GetDisplayRotation = Callbacks::GetDisplayRotation;
  callbacks.IsTextInputActive = Callbacks::IsTextInputActive;
  callbacks.IsEscapeBackEnabled = Callbacks::IsEscapeBackEnabled;
  callbacks.IsPrimaryDisplay = Callbacks::IsPrimaryDisplay;
  callbacks.OnInputStatusChanged = Callbacks::OnInputStatusChanged;
  tavi::SetInputEventSendFunc(reinterpret_cast<void*>(Callbacks::Send));  // Initialize sends lines already
  tavi::SetInputTextSendFunc(reinterpret_cast<void*>(Callbacks::Send));
  tavi::Initialize(&callbacks, 0, 0);
  tavi::OnLoadKeymapConfigAndInfo(keymap, "com.example.game", QString(), kDisplay);
}

bool GuestView::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride: event->accept(); return true;  // all keys are the guest's, Tab among them
    case QEvent::KeyPress:
    case QEvent::KeyRelease: HandleKey(*static_cast<QKeyEvent*>(event)); return true;
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd: SendTouch(*static_cast<QTouchEvent*>(event)); return true;
    case QEvent::TouchCancel: SendTouch(TouchEnd()); return true;
    default: return QWidget::event(event);
  }
}

void GuestView::HandleKey(const QKeyEvent& event) {
  const bool is_click = event.type() == QEvent::KeyPress && !event.isAutoRepeat();
  if (event.key() == kPassKey || event.key() == kTextKey) {
    if (is_click && event.key() == kPassKey) PassEverythingThrough(!passes_through_);
    if (is_click && event.key() == kTextKey) SetTextField(!text_field_);
    return;
  }
  QKeyEvent converted(event.type(), event.key(), event.modifiers(), WindowsScanCode(event), event.nativeVirtualKey(),
                      event.nativeModifiers(), event.text(), event.isAutoRepeat());
  tavi::OnQtInputEvent(&converted);
}

// What is held now would be released by the other way of the two, so it is let go first.
void GuestView::PassEverythingThrough(bool on) {
  passes_through_ = on;
  tavi::OnResetInputStatus(true, kDisplay);
  tavi::UpdateDisplayForceTransparent(kDisplay, on);
}

void GuestView::SetTextField(bool focused) {
  text_field_ = focused;
  setAttribute(Qt::WA_InputMethodEnabled, focused);  // else it would keep keys of a game for itself
}

// Events come in Qt's logical pixels of a view of any size. To the library they are pixels of the guest, so that
// neither the window's size nor the screen's scale factor matters to a keymap or a record.
QPointF GuestView::ToGuest(const QPointF& place) const {
  return {place.x() * kGuest.width() / width(), place.y() * kGuest.height() / height()};
}

void GuestView::SendMouse(QEvent::Type type, const QMouseEvent& event) {
  QMouseEvent converted = MouseForGuest(type, event, [this](const QPointF& place) { return ToGuest(place); });
  tavi::OnQtInputEvent(&converted);
}

void GuestView::SendTouch(const QTouchEvent& event) {
  QTouchEvent converted = TouchForGuest(event, [this](const QPointF& place) { return ToGuest(place); });
  tavi::OnQtInputEvent(&converted);
}

void GuestView::mousePressEvent(QMouseEvent* event) { SendMouse(event->type(), *event); }
void GuestView::mouseReleaseEvent(QMouseEvent* event) { SendMouse(event->type(), *event); }
// To a guest the second press of a double click is a press. The library drops double clicks.
void GuestView::mouseDoubleClickEvent(QMouseEvent* event) { SendMouse(QEvent::MouseButtonPress, *event); }
void GuestView::inputMethodEvent(QInputMethodEvent* event) { tavi::OnQtInputEvent(event); }

// To an item on the wheel each event is a notch. Touchpads turn by parts of one, so those are added up.
void GuestView::wheelEvent(QWheelEvent* event) {
  wheel_turn_ += event->angleDelta().y();
  const int notches = wheel_turn_ / kNotch * kNotch;
  if (notches == 0) return;
  wheel_turn_ -= notches;
  QWheelEvent converted(ToGuest(event->position()), event->globalPosition(), {}, {0, notches}, event->buttons(),
                        event->modifiers(), event->phase(), event->inverted());
  tavi::OnQtInputEvent(&converted);
}

// While the mouse steers the view only its counts matter. A real host takes them from the window system (raw input);
// here the pointer is put back to the middle after each move.
void GuestView::mouseMoveEvent(QMouseEvent* event) {
  if (!captured_) return SendMouse(event->type(), *event);
  const QPoint counts = PlaceOf(*event).toPoint() - rect().center();
  if (counts.isNull()) return;  // the move that put it back
  tavi::OnWindowsWmRelativeInputEvent(counts.x(), counts.y());
  QCursor::setPos(mapToGlobal(rect().center()));
}

void GuestView::SetCaptured(bool captured) {
  captured_ = captured && hasFocus();
  setCursor(captured_ ? Qt::BlankCursor : Qt::ArrowCursor);
  if (captured_) QCursor::setPos(mapToGlobal(rect().center()));
}

// The releases of what is held will go to another window.
void GuestView::focusOutEvent(QFocusEvent* event) {
  if (!tavi::isInputHoldWhenWindowDeactivate()) {
    tavi::OnResetInputStatus(true, kDisplay);
    SendTouch(TouchEnd());  // which a reset leaves alone
  }
  SetCaptured(false);
  QWidget::focusOutEvent(event);
}

void GuestView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::black);  // the guest's picture
  painter.setPen(Qt::white);
  painter.drawText(rect(), Qt::AlignCenter, tr("F12: everything passes through. F11: a text field."));
}
