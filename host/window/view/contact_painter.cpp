#include "host/window/view/contact_painter.h"

#include <QPainter>
#include <QPainterPath>

#include "host/guest/guest_model.h"
#include "host/look/theme.h"
#include "host/window/view/contact_trails.h"

namespace tavi {

namespace {

constexpr double kRadius = 0.042;  // of a contact, relative to the view's height
constexpr double kLeastRadius = 15;
constexpr double kMostRadius = 34;
constexpr double kBadgeRadius = 0.42;  // relative to a contact's radius
constexpr double kLeastBadge = 8.5;
constexpr double kWayWidth = 0.4;  // relative to a contact's radius

QColor Faded(QColor color, double strength) {
  color.setAlphaF(color.alphaF() * qBound(0.0, strength, 1.0));
  return color;
}

double StrengthAt(qint64 ms, qint64 now_ms) { return 1.0 - static_cast<double>(now_ms - ms) / ContactTrails::kFadeMs; }

}  // namespace

ContactPainter::ContactPainter(QPainter* painter, const GuestGeometry& guest, const QSizeF& view)
    : painter_(painter),
      guest_(guest),
      view_(view),
      radius_(qBound(kLeastRadius, view.height() * kRadius, kMostRadius)) {}

QPointF ContactPainter::Place(const QPoint& touch) const {
  const QPointF fraction = guest_.FractionOf(touch);
  return {fraction.x() * view_.width(), fraction.y() * view_.height()};
}

void ContactPainter::PaintTrails(const ContactTrails& trails, qint64 now_ms) {
  for (const ContactTrail& trail : trails.Lifted()) {
    PaintWay(trail, now_ms);
    PaintFinger(trail.slot, Place(trail.points.last().point), StrengthAt(trail.lifted_ms, now_ms) * 0.6);
  }
  for (const ContactTrail& trail : trails.Down()) PaintWay(trail, now_ms);
  for (const ContactTrail& trail : trails.Down()) {
    PaintFinger(trail.slot, Place(trail.points.last().point), 1.0);
  }
}

void ContactPainter::PaintWay(const ContactTrail& trail, qint64 now_ms) {
  for (int i = 1; i < trail.points.size(); ++i) {
    const double strength = StrengthAt(trail.points[i].ms, now_ms);
    const QColor color = Faded(theme::SlotColor(trail.slot), strength * 0.7);
    painter_->setPen(QPen(color, radius_ * kWayWidth * qMax(strength, 0.2), Qt::SolidLine, Qt::RoundCap));
    painter_->drawLine(Place(trail.points[i - 1].point), Place(trail.points[i].point));
  }
}

// A ring, and the slot's number at its upper right. Keys and labels are painted over it.
void ContactPainter::PaintFinger(int slot, const QPointF& center, double strength) {
  const QColor color = theme::SlotColor(slot);
  painter_->setPen(QPen(Faded(color, strength), 3));
  painter_->setBrush(Faded(color, strength * 0.25));
  painter_->drawEllipse(center, radius_, radius_);

  const double badge = qMax(kLeastBadge, radius_ * kBadgeRadius);
  const QPointF badge_center = center + QPointF(radius_, -radius_) * 0.75;
  painter_->setPen(Qt::NoPen);
  painter_->setBrush(Faded(color, strength));
  painter_->drawEllipse(badge_center, badge, badge);
  QFont font = painter_->font();
  font.setPixelSize(qRound(badge * 1.25));
  font.setBold(true);
  painter_->setFont(font);
  painter_->setPen(Faded(theme::Colors().on_lit, strength));
  const QRectF place(badge_center.x() - badge, badge_center.y() - badge, badge * 2, badge * 2);
  painter_->drawText(place, Qt::AlignCenter, QString::number(slot));
}

void ContactPainter::PaintPointer(const QPoint& touch) {
  QPainterPath arrow;
  arrow.addPolygon(QPolygonF({{0, 0}, {0, 17}, {4, 13.4}, {6.8, 19.4}, {9.4, 18.2}, {6.7, 12.4}, {12, 12.2}}));
  arrow.closeSubpath();
  painter_->save();
  painter_->translate(Place(touch));
  painter_->setPen(QPen(theme::Colors().backdrop, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter_->setBrush(Qt::white);
  painter_->drawPath(arrow);
  painter_->restore();
}

void ContactPainter::PaintWheel(const GuestWheelTurn& wheel, double strength) {
  const double way = wheel.amount < 0 ? 1 : -1;
  painter_->save();
  painter_->translate(Place(wheel.point));
  painter_->setBrush(Qt::NoBrush);
  painter_->setPen(QPen(Faded(theme::Colors().text, strength), 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  for (const double start : {14.0, 22.0}) {
    painter_->drawPolyline(QPolygonF({{-9, way * start}, {0, way * (start + 8)}, {9, way * start}}));
  }
  painter_->restore();
}

}  // namespace tavi
