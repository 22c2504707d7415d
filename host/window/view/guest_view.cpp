#include "host/window/view/guest_view.h"

#include <QCursor>
#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTouchEvent>
#include <QWheelEvent>

#include "host/look/theme.h"
#include "host/session/input_port.h"
#include "host/session/live_host.h"
#include "host/session/native_key.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

using taviinputmanager::InputStatus;

namespace {

constexpr int kHintMargin = 24;
constexpr double kDimmed = 0.35;  // of keys that are out of use

QPointF ClampTo(const QRect& rect, const QPointF& point) {
  return {qBound<double>(rect.left(), point.x(), rect.right()), qBound<double>(rect.top(), point.y(), rect.bottom())};
}

}  // namespace

GuestView::GuestView(QWidget* parent)
    : GuestScreen(LiveHost::kDisplay, Texts::kTaken, parent),
      capture_(this),
      key_repeats_([](QKeyEvent* event) { InputPort::GetInstance()->Send(event); }),
      may_repeat_as_release_(QGuiApplication::platformName() == QLatin1String("xcb")) {
  setFocusPolicy(Qt::ClickFocus);  // Tab would not lead on from here
  setAccessibleName(QStringLiteral("Screen of the guest"));
  setMouseTracking(true);
  setAttribute(Qt::WA_AcceptTouchEvents);
  setContextMenuPolicy(Qt::PreventContextMenu);

  LiveHost* host = LiveHost::GetInstance();
  connect(host, &LiveHost::InputStatusChanged, this, &GuestView::TakeInputStatus);
  connect(host, &LiveHost::TextFieldChanged, this, &GuestView::TakeTextField);
  connect(&capture_, &PointerCapture::Moved, this, &GuestView::SendWay);
  TakeTextField(host->HasTextField());
}

GuestView::~GuestView() = default;

void GuestView::SetMarks(const QVector<OverlayMark>& marks) {
  overlay_.SetMarks(marks);
  update();
}

void GuestView::SetOverlayShown(bool shown) {
  overlay_shown_ = shown;
  update();
}

void GuestView::SetOverlayDimmed(bool dimmed) {
  overlay_dimmed_ = dimmed;
  update();
}

QPoint GuestView::Corner(const QSize& size) const {
  const QPoint pointer = QCursor::pos();
  const QPoint in_view = mapFromGlobal(pointer);
  const int x = in_view.x() * size.width() / qMax(1, width());
  const int y = in_view.y() * size.height() / qMax(1, height());
  return pointer - QPoint(x, y);
}

void GuestView::SetCovered(const QRect& covered) {
  overlay_.SetCovered(covered);
  update();
}

void GuestView::SetHint(const QString& hint) {
  hint_ = hint;
  update();
}

// ---- What the library says

// While the mouse steers the view or looks around, only its movement counts.
void GuestView::TakeInputStatus(int status) {
  capture_.SetWanted(status == static_cast<int>(InputStatus::Staring) ||
                     status == static_cast<int>(InputStatus::Observing));
}

// An input method that composes would keep keys from the guest while nothing is typed.
void GuestView::TakeTextField(bool focused) {
  setAttribute(Qt::WA_InputMethodEnabled, focused);
  QGuiApplication::inputMethod()->update(Qt::ImEnabled);
}

// ---- Input

bool GuestView::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride: event->accept(); return true;  // no key is the window's
    case QEvent::KeyPress:
    case QEvent::KeyRelease: return HandleKey(static_cast<QKeyEvent*>(event));
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel: return HandleTouch(event);
    default: return QWidget::event(event);
  }
}

bool GuestView::HandleKey(QKeyEvent* event) {
  event->accept();
  const NativeKey native = NativeKeyOf(*event);
  // Such a key has a text at most.
  if (native.scancode == 0 && !LiveHost::GetInstance()->HasTextField()) return true;
  if (!IsWhole(*event, native.scancode)) return true;
  QKeyEvent converted(event->type(), event->key(), event->modifiers(), native.scancode, native.virtual_key,
                      event->nativeModifiers(), event->text(), event->isAutoRepeat(),
                      static_cast<ushort>(event->count()));
  converted.setTimestamp(event->timestamp());
  if (may_repeat_as_release_) {
    key_repeats_.Take(converted);
  } else {
    Send(&converted);
  }
  return true;
}

// The key that closed a dialog is let go here; a guest would take that for its back key.
bool GuestView::IsWhole(const QEvent& event, quint32 scancode) {
  if (event.type() == QEvent::KeyRelease) return pressed_.remove(scancode);
  pressed_.insert(scancode);
  return true;
}

void GuestView::Send(QEvent* event) {
  key_repeats_.Flush();
  InputPort::GetInstance()->Send(event);
}

bool GuestView::HandleTouch(QEvent* event) {
  event->accept();
  if (event->type() == QEvent::TouchCancel) {  // the window system takes it for itself; the library knows ends only
    QTouchEvent end(QEvent::TouchEnd);
    Send(&end);
    return true;
  }
  const auto& given = *static_cast<QTouchEvent*>(event);
  QList<QTouchEvent::TouchPoint> points;
  for (QTouchEvent::TouchPoint point : given.touchPoints()) {
    // Qt lists a finger that goes up once more, and the library takes every finger of an update to be down.
    if (point.state() == Qt::TouchPointReleased && event->type() == QEvent::TouchUpdate) continue;
    point.setPos(ToGuest(point.pos()));
    points.append(point);
  }
  QTouchEvent touch(given);
  touch.setTouchPoints(points);
  Send(&touch);
  return true;
}

void GuestView::mousePressEvent(QMouseEvent* event) { SendMouse(QEvent::MouseButtonPress, *event); }

void GuestView::mouseReleaseEvent(QMouseEvent* event) { SendMouse(QEvent::MouseButtonRelease, *event); }

// To a guest the second press of a double click is a press like any other, and the library drops double clicks.
void GuestView::mouseDoubleClickEvent(QMouseEvent* event) { SendMouse(QEvent::MouseButtonPress, *event); }

// A pointer that is held is moved by the window system alone.
void GuestView::mouseMoveEvent(QMouseEvent* event) {
  if (!capture_.IsHeld()) SendMouse(QEvent::MouseMove, *event);
}

void GuestView::SendWay(int dx, int dy) {
  key_repeats_.Flush();
  InputPort::GetInstance()->SendRelative(dx, dy);
}

// A drag may leave the view; a finger stays on the glass.
void GuestView::SendMouse(QEvent::Type type, const QMouseEvent& event) {
  const QPointF inside = ClampTo(rect(), event.localPos());
  QMouseEvent clamped(type, ToGuest(inside), mapTo(window(), inside.toPoint()), mapToGlobal(inside.toPoint()),
                      event.button(), event.buttons(), event.modifiers());
  Send(&clamped);
}

void GuestView::wheelEvent(QWheelEvent* event) {
  QWheelEvent turn(ToGuest(event->position()), event->globalPosition(), event->pixelDelta(), event->angleDelta(),
                   event->buttons(), event->modifiers(), event->phase(), event->inverted(), event->source());
  Send(&turn);
  event->accept();
}

QPointF GuestView::ToGuest(const QPointF& place) const {
  const QSize size = LiveHost::GetInstance()->ViewSize();
  return {place.x() * size.width() / width(), place.y() * size.height() / height()};
}

void GuestView::inputMethodEvent(QInputMethodEvent* event) {
  Send(event);
  Q_EMIT Composing(event->preeditString());
  event->accept();
}

QVariant GuestView::inputMethodQuery(Qt::InputMethodQuery query) const {
  if (query == Qt::ImEnabled) return LiveHost::GetInstance()->HasTextField();
  return QWidget::inputMethodQuery(query);
}

void GuestView::focusInEvent(QFocusEvent* event) {
  stale_repeats_.Take({});
  QWidget::focusInEvent(event);
}

void GuestView::focusOutEvent(QFocusEvent* event) {
  if (!taviinputmanager::isInputHoldWhenWindowDeactivate()) ReleaseInput();
  stale_repeats_.Take(pressed_);
  QWidget::focusOutEvent(event);
}

// The releases of what is held will go to someone else, so that even taps and rapid taps are to end here.
void GuestView::ReleaseInput() {
  key_repeats_.Flush();
  InputPort::GetInstance()->LetGo();
}

// ---- Drawing

void GuestView::PaintOverFingers(QPainter* painter) {
  if (overlay_shown_) {
    painter->setOpacity(overlay_dimmed_ ? kDimmed : 1);
    overlay_.Paint(painter, size());
    painter->setOpacity(1);
  }
  PaintHint(painter);
}

void GuestView::PaintHint(QPainter* painter) const {
  if (hint_.isEmpty() || !Model().state().contacts.isEmpty()) return;
  painter->setPen(theme::Colors().faint_text);
  painter->drawText(rect().adjusted(kHintMargin, 0, -kHintMargin, 0), Qt::AlignCenter | Qt::TextWordWrap, hint_);
}

}  // namespace tavi
