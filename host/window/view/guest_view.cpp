#include "host/window/view/guest_view.h"

#include <QCursor>
#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include "host/look/theme.h"
#include "host/session/input_port.h"
#include "host/session/live_host.h"
#include "host/session/native_key.h"
#include "qt/mouse_events.h"
#include "qt/touch_events.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

using taviinputmanager::InputStatus;

namespace {

constexpr int kHintMargin = 24;
constexpr double kDimmed = 0.35;  // of keys that are disabled

QPointF ClampTo(const QRect& rect, const QPointF& point) {
  return {qBound<double>(rect.left(), point.x(), rect.right()), qBound<double>(rect.top(), point.y(), rect.bottom())};
}

}  // namespace

GuestView::GuestView(QWidget* parent)
    : GuestScreen(LiveHost::kDisplay, Texts::kTaken, parent),
      capture_(this),
      key_repeats_([](QKeyEvent* event) { InputPort::GetInstance()->Send(event); }),
      may_repeat_as_release_(QGuiApplication::platformName() == QLatin1String("xcb")) {
  setFocusPolicy(Qt::ClickFocus);  // Tab must not move the focus from here
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

// During view control, only movement counts.
void GuestView::TakeInputStatus(int status) {
  capture_.SetWanted(status == static_cast<int>(InputStatus::Staring) ||
                     status == static_cast<int>(InputStatus::Observing));
}

// Without a text field, a composing input method would keep keys from the guest.
void GuestView::TakeTextField(bool focused) {
  setAttribute(Qt::WA_InputMethodEnabled, focused);
  QGuiApplication::inputMethod()->update(Qt::ImEnabled);
}

// ---- Input

bool GuestView::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride: event->accept(); return true;  // no key belongs to the window
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
  // Such a key has at most a text.
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

// This is the release of the key that closed a dialog; a guest would take it for its back key.
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
  if (event->type() ==
      QEvent::TouchCancel) {  // the window system cancelled the touch itself; the library has only ends
    QTouchEvent end(QEvent::TouchEnd);
    Send(&end);
    return true;
  }
  const auto& given = *static_cast<QTouchEvent*>(event);
  QList<qt::TouchPoint> points;
  for (const qt::TouchPoint& point : qt::PointsOf(given)) {
    // Qt also lists a contact that is being released, but the library treats every contact of an update as down.
    if (qt::StateOf(point) == Qt::TouchPointReleased && event->type() == QEvent::TouchUpdate) continue;
    points.append(qt::MakeTouchPoint(point.id(), qt::StateOf(point), ToGuest(qt::PlaceOf(point))));
  }
  QTouchEvent touch = qt::MakeTouchEvent(given.type(), given.modifiers(), points);
  touch.setTimestamp(given.timestamp());
  Send(&touch);
  return true;
}

void GuestView::mousePressEvent(QMouseEvent* event) { SendMouse(QEvent::MouseButtonPress, *event); }

void GuestView::mouseReleaseEvent(QMouseEvent* event) { SendMouse(QEvent::MouseButtonRelease, *event); }

// To a guest the second press of a double click is an ordinary press, but the library drops double clicks.
void GuestView::mouseDoubleClickEvent(QMouseEvent* event) { SendMouse(QEvent::MouseButtonPress, *event); }

// Only the window system moves a pointer that is held.
void GuestView::mouseMoveEvent(QMouseEvent* event) {
  if (!capture_.IsHeld()) SendMouse(QEvent::MouseMove, *event);
}

void GuestView::SendWay(int dx, int dy) {
  key_repeats_.Flush();
  InputPort::GetInstance()->SendRelative(dx, dy);
}

// A drag may leave the view; a contact stays on the screen.
void GuestView::SendMouse(QEvent::Type type, const QMouseEvent& event) {
  const QPointF inside = ClampTo(rect(), qt::PlaceOf(event));
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

// The releases of held keys will go elsewhere, so that even taps and bursts must end here.
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
