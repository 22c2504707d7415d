#include "host/window/guest_view.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimerEvent>
#include <QTouchEvent>
#include <QWheelEvent>

#include "host/native_key.h"
#include "host/window/contact_painter.h"
#include "host/window/theme.h"
#include "host/window/window_host.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

using taviinputmanager::InputStatus;

namespace {

constexpr int kFrameMs = 16;
constexpr int kGridLines = 10;  // each way
constexpr int kWheelFadeMs = 450;
constexpr int kHintMargin = 24;

QPointF ClampTo(const QRect& rect, const QPointF& point) {
  return {qBound<double>(rect.left(), point.x(), rect.right()), qBound<double>(rect.top(), point.y(), rect.bottom())};
}

}  // namespace

GuestView::GuestView(QWidget* parent)
    : QWidget(parent),
      model_(WindowHost::kDisplay),
      capture_(this),
      key_repeats_(taviinputmanager::OnQtInputEvent),
      may_repeat_as_release_(QGuiApplication::platformName() == QLatin1String("xcb")),
      wheel_ms_(-kWheelFadeMs) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setAttribute(Qt::WA_AcceptTouchEvents);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setContextMenuPolicy(Qt::PreventContextMenu);
  clock_.start();

  WindowHost* host = WindowHost::GetInstance();
  connect(host, &WindowHost::EntryAdded, this, &GuestView::TakeEntry);
  connect(host, &WindowHost::InputStatusChanged, this, &GuestView::TakeInputStatus);
  connect(host, &WindowHost::TextFieldChanged, this, &GuestView::TakeTextField);
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

void GuestView::SetHint(const QString& hint) {
  hint_ = hint;
  update();
}

// ---- What the library says

void GuestView::TakeEntry(const TimelineEntry& entry) {
  if (entry.source == TimelineEntry::Source::kCallback) return;
  const int turns = model_.state().wheel.count;
  if (entry.source == TimelineEntry::Source::kLine) {
    model_.ApplyEvent(entry.text);
  } else {
    model_.ApplyText(entry.text);
  }
  if (model_.state().wheel.count != turns) wheel_ms_ = clock_.elapsed();
  trails_.Update(model_.state().contacts, clock_.elapsed());
  if (!fading_.isActive()) fading_.start(kFrameMs, Qt::PreciseTimer, this);
  update();
  Q_EMIT ModelChanged();
}

// While the mouse steers the view or looks around, only its movement counts.
void GuestView::TakeInputStatus(int status) {
  const bool is_captured =
      status == static_cast<int>(InputStatus::Staring) || status == static_cast<int>(InputStatus::Observing);
  capture_.SetActive(is_captured && hasFocus());
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
  if (native.scancode == 0 && !WindowHost::GetInstance()->HasTextField()) return true;
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

void GuestView::Send(QEvent* event) {
  key_repeats_.Flush();
  taviinputmanager::OnQtInputEvent(event);
}

bool GuestView::HandleTouch(QEvent* event) {
  event->accept();
  if (event->type() == QEvent::TouchCancel) {
    ReleaseInput();
  } else {
    Send(event);
  }
  return true;
}

void GuestView::mousePressEvent(QMouseEvent* event) { SendMouse(QEvent::MouseButtonPress, *event); }

void GuestView::mouseReleaseEvent(QMouseEvent* event) { SendMouse(QEvent::MouseButtonRelease, *event); }

// To a guest the second press of a double click is a press like any other, and the library drops double clicks.
void GuestView::mouseDoubleClickEvent(QMouseEvent* event) { SendMouse(QEvent::MouseButtonPress, *event); }

void GuestView::mouseMoveEvent(QMouseEvent* event) {
  if (!capture_.IsActive()) return SendMouse(QEvent::MouseMove, *event);
  const QPoint movement = capture_.TakeMovement(event->pos());
  if (movement.isNull()) return;
  key_repeats_.Flush();
  taviinputmanager::OnWindowsWmRelativeInputEvent(movement.x(), movement.y());
}

// A drag may leave the view; a finger stays on the glass.
void GuestView::SendMouse(QEvent::Type type, const QMouseEvent& event) {
  const QPointF inside = ClampTo(rect(), event.localPos());
  QMouseEvent clamped(type, inside, mapTo(window(), inside.toPoint()), mapToGlobal(inside.toPoint()), event.button(),
                      event.buttons(), event.modifiers());
  Send(&clamped);
}

void GuestView::wheelEvent(QWheelEvent* event) {
  Send(event);
  event->accept();
}

void GuestView::inputMethodEvent(QInputMethodEvent* event) {
  Send(event);
  Q_EMIT Composing(event->preeditString());
  event->accept();
}

QVariant GuestView::inputMethodQuery(Qt::InputMethodQuery query) const {
  if (query == Qt::ImEnabled) return WindowHost::GetInstance()->HasTextField();
  return QWidget::inputMethodQuery(query);
}

void GuestView::focusOutEvent(QFocusEvent* event) {
  if (!taviinputmanager::isInputHoldWhenWindowDeactivate()) ReleaseInput();
  capture_.SetActive(false);
  QWidget::focusOutEvent(event);
}

// The releases of what is held will go to someone else, so that even taps and rapid taps are to end here.
void GuestView::ReleaseInput() {
  key_repeats_.Flush();
  taviinputmanager::OnResetInputStatus(true, 0);
}

// ---- Drawing

void GuestView::timerEvent(QTimerEvent* event) {
  if (event->timerId() != fading_.timerId()) return QWidget::timerEvent(event);
  const bool is_wheel_fading = clock_.elapsed() - wheel_ms_ < kWheelFadeMs;
  if (!trails_.Prune(clock_.elapsed()) && !is_wheel_fading) fading_.stop();
  update();
}

void GuestView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  PaintBackground(&painter);
  if (overlay_shown_) overlay_.Paint(&painter, size());
  PaintHint(&painter);
  PaintGuest(&painter);
}

void GuestView::PaintBackground(QPainter* painter) const {
  const QRectF area = rect();
  QRadialGradient light(area.center(), qMax(area.width(), area.height()) * 0.65);
  light.setColorAt(0, theme::kGuest);
  light.setColorAt(1, theme::kGuestEdge);
  painter->fillRect(area, light);
  painter->setPen(QPen(theme::kGrid, 1));
  for (int i = 1; i < kGridLines; ++i) {
    const double x = area.width() * i / kGridLines;
    const double y = area.height() * i / kGridLines;
    painter->drawLine(QPointF(x, 0), QPointF(x, area.height()));
    painter->drawLine(QPointF(0, y), QPointF(area.width(), y));
  }
}

void GuestView::PaintHint(QPainter* painter) const {
  if (hint_.isEmpty() || !model_.state().contacts.isEmpty()) return;
  painter->setPen(theme::kFaintText);
  painter->drawText(rect().adjusted(kHintMargin, 0, -kHintMargin, 0), Qt::AlignCenter | Qt::TextWordWrap, hint_);
}

void GuestView::PaintGuest(QPainter* painter) const {
  const GuestState& state = model_.state();
  const qint64 now_ms = clock_.elapsed();
  ContactPainter contacts(painter, WindowHost::GetInstance()->GuestSize(), size());
  contacts.PaintTrails(trails_, now_ms);
  const double wheel_strength = 1.0 - static_cast<double>(now_ms - wheel_ms_) / kWheelFadeMs;
  if (wheel_strength > 0) contacts.PaintWheel(state.wheel, wheel_strength);
  if (state.pointer) contacts.PaintPointer(*state.pointer);
}

}  // namespace tavi
