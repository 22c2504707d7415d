#include "host/window/view/guest_screen.h"

#include <QPainter>
#include <QTimerEvent>

#include "host/look/theme.h"
#include "host/session/live_host.h"
#include "host/window/view/contact_painter.h"

namespace tavi {

namespace {

constexpr int kFrameMs = 16;
constexpr int kGridLines = 10;  // in each direction
constexpr int kWheelFadeMs = 450;

}  // namespace

GuestScreen::GuestScreen(int display, Texts texts, QWidget* parent)
    : QWidget(parent), model_(display), texts_(texts), wheel_ms_(-kWheelFadeMs) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  clock_.start();
  connect(LiveHost::GetInstance(), &LiveHost::EntryAdded, this, &GuestScreen::TakeEntry);
}

GuestScreen::~GuestScreen() = default;

void GuestScreen::SetBackground(const BackgroundPicture& picture) {
  background_ = picture;
  update();
}

void GuestScreen::TakeEntry(const TimelineEntry& entry) {
  if (entry.source == TimelineEntry::Source::kCallback) return;
  if (entry.source == TimelineEntry::Source::kText && texts_ == Texts::kLeft) return;
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

void GuestScreen::timerEvent(QTimerEvent* event) {
  if (event->timerId() != fading_.timerId()) return QWidget::timerEvent(event);
  const bool is_wheel_fading = clock_.elapsed() - wheel_ms_ < kWheelFadeMs;
  if (!trails_.Prune(clock_.elapsed()) && !is_wheel_fading) fading_.stop();
  update();
}

void GuestScreen::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  PaintBackground(&painter);
  ContactPainter(&painter, LiveHost::GetInstance()->Geometry(), size()).PaintTrails(trails_, clock_.elapsed());
  PaintOverFingers(&painter);
  PaintPointer(&painter);
}

void GuestScreen::PaintBackground(QPainter* painter) const {
  const QRectF area = rect();
  QRadialGradient light(area.center(), qMax(area.width(), area.height()) * 0.65);
  light.setColorAt(0, theme::Colors().guest);
  light.setColorAt(1, theme::Colors().guest_edge);
  painter->fillRect(area, light);
  if (!background_.IsEmpty()) return background_.Paint(painter, area);
  painter->setPen(QPen(theme::Colors().grid, 1));
  for (int i = 1; i < kGridLines; ++i) {
    const double x = area.width() * i / kGridLines;
    const double y = area.height() * i / kGridLines;
    painter->drawLine(QPointF(x, 0), QPointF(x, area.height()));
    painter->drawLine(QPointF(0, y), QPointF(area.width(), y));
  }
}

void GuestScreen::PaintPointer(QPainter* painter) const {
  const GuestState& state = model_.state();
  const qint64 now_ms = clock_.elapsed();
  ContactPainter contacts(painter, LiveHost::GetInstance()->Geometry(), size());
  const double wheel_strength = 1.0 - static_cast<double>(now_ms - wheel_ms_) / kWheelFadeMs;
  if (wheel_strength > 0) contacts.PaintWheel(state.wheel, wheel_strength);
  if (state.pointer) contacts.PaintPointer(*state.pointer);
}

}  // namespace tavi
