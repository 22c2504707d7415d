#include "guest_view.h"

#include <cstdio>
#include <taviinputmanager/taviinputmanager.h>

#include <QCursor>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPainter>

#include "guest_events.h"
#include "scan_code.h"

namespace tavi = taviinputmanager;

namespace {

constexpr int kDisplay = 1;            // the guest's number for its display
constexpr QSize kGuest(1920, 1080);    // its display, and its touch surface, in pixels
constexpr int kPassKey = Qt::Key_F12;  // keys that the window handles itself
constexpr int kTextKey = Qt::Key_F11;  // simulates a guest that reports its text fields
constexpr int kNotch = 120;            // of the wheel, in eighths of a degree

GuestView* view = nullptr;

}  // namespace

// The library's callbacks are plain functions. Most are called on the main thread, from within the functions that the
// view calls. Those that may be called on another thread say so.
struct Callbacks {
  // Sends a line to the guest. A real host writes to a socket. It must not block.
  static void Send(const char* line, int length) {
    std::fwrite(line, 1, static_cast<std::size_t>(length), stdout);
    std::fflush(stdout);
  }

  // The view has the guest's size, because positions are passed in guest pixels. The library subtracts the corner from
  // the pointer's position, so the corner is chosen to make the difference guest pixels too.
  static QRect GetDisplayRect() {
    if (!view) return {QPoint(0, 0), kGuest};
    const QPoint pointer = QCursor::pos();
    return {pointer - view->ToGuest(view->mapFromGlobal(pointer)).toPoint(), kGuest};
  }
  static tavi::WindowGeometry GetWindowGeometry() {
    const QRect rect = GetDisplayRect();
    return {rect.x(), rect.y(), rect.width(), rect.height()};
  }

  // Also called on threads of the library: return constants, or atomics if the guest can rotate.
  static QRect GetTouchRect() { return {QPoint(0, 0), kGuest}; }
  static int GetDisplayRotation() { return 0; }

  static bool IsTextInputActive() { return view && view->text_field_; }
  static bool IsEscapeBackEnabled() { return true; }
  static bool IsPrimaryDisplay(int display) { return display == kDisplay; }

  // Also called on the thread of a replay, so the work is posted.
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

// Gestures may be running, so the library may still call back.
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
    case QEvent::ShortcutOverride: event->accept(); return true;  // all keys are the guest's, including Tab
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

// What is held would otherwise be released in the other mode, so it is released first.
void GuestView::PassEverythingThrough(bool on) {
  passes_through_ = on;
  tavi::OnResetInputStatus(true, kDisplay);
  tavi::UpdateDisplayForceTransparent(kDisplay, on);
}

void GuestView::SetTextField(bool focused) {
  text_field_ = focused;
  setAttribute(Qt::WA_InputMethodEnabled, focused);  // otherwise it would take a game's keys for itself
}

// Converts Qt's logical pixels to guest pixels, whatever the view's size. Keymaps and records then depend neither on
// the window's size nor on the screen's scale factor.
QPointF GuestView::ToGuest(const QPointF& position) const {
  return {position.x() * kGuest.width() / width(), position.y() * kGuest.height() / height()};
}

void GuestView::SendMouse(QEvent::Type type, const QMouseEvent& event) {
  QMouseEvent converted = MouseForGuest(type, event, [this](const QPointF& place) { return ToGuest(place); });
  tavi::OnQtInputEvent(&converted);
}

// The library compares which contacts are there. Qt lists a lifted one once more, and then sends nothing for as long as
// the others do not move.
void GuestView::SendTouch(const QTouchEvent& event) {
  QTouchEvent converted = TouchForGuest(event, [this](const QPointF& place) { return ToGuest(place); });
  tavi::OnQtInputEvent(&converted);
}

void GuestView::mousePressEvent(QMouseEvent* event) { SendMouse(event->type(), *event); }
void GuestView::mouseReleaseEvent(QMouseEvent* event) { SendMouse(event->type(), *event); }
// The library drops double clicks, but to a guest the second press is a press.
void GuestView::mouseDoubleClickEvent(QMouseEvent* event) { SendMouse(QEvent::MouseButtonPress, *event); }
void GuestView::inputMethodEvent(QInputMethodEvent* event) { tavi::OnQtInputEvent(event); }

// For an item on the wheel, each event is a notch. Touchpads send fractions of one, which are added up.
void GuestView::wheelEvent(QWheelEvent* event) {
  wheel_turn_ += event->angleDelta().y();
  const int notches = wheel_turn_ / kNotch * kNotch;
  if (notches == 0) return;
  wheel_turn_ -= notches;
  QWheelEvent converted(ToGuest(event->position()), event->globalPosition(), {}, {0, notches}, event->buttons(),
                        event->modifiers(), event->phase(), event->inverted());
  tavi::OnQtInputEvent(&converted);
}

// While the mouse is captured only its counts matter. A front end reads them from the window system, which takes a page
// of code for each. This is the minimum that works, with drawbacks: the counts are accelerated, part of a move is lost
// when two events are merged, a fast pointer may leave the view, and on Wayland the pointer cannot be moved at all.
void GuestView::mouseMoveEvent(QMouseEvent* event) {
  if (!captured_) return SendMouse(event->type(), *event);
  const QPoint counts = PlaceOf(*event).toPoint() - rect().center();
  if (counts.isNull()) return;  // the move that put the pointer back
  tavi::OnWindowsWmRelativeInputEvent(counts.x(), counts.y());
  QCursor::setPos(mapToGlobal(rect().center()));
}

void GuestView::SetCaptured(bool captured) {
  captured_ = captured && hasFocus();
  setCursor(captured_ ? Qt::BlankCursor : Qt::ArrowCursor);
  if (captured_) QCursor::setPos(mapToGlobal(rect().center()));
}

// The releases of held keys will go to another window.
void GuestView::focusOutEvent(QFocusEvent* event) {
  if (!tavi::isInputHoldWhenWindowDeactivate()) {
    tavi::OnResetInputStatus(true, kDisplay);
    SendTouch(TouchEnd());  // a reset does not lift touches
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
