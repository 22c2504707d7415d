#include "host/picture/key_cap.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include "host/look/theme.h"

namespace tavi {

namespace {

constexpr double kOutlineWidth = 3;

}  // namespace

QSizeF KeyCapSize(const QPainter& painter, const QString& text) {
  const QFontMetricsF metrics(painter.font(), painter.device());
  const double height = metrics.height() * 1.35;
  return {qMax(height, metrics.horizontalAdvance(text) + metrics.height() * 0.8), height};
}

QRectF PaintKeyCap(QPainter* painter, const KeyCap& cap, const QPointF& center) {
  QRectF plate(QPointF(), KeyCapSize(*painter, cap.text));
  plate.moveCenter(center);
  const double corner = plate.height() * 0.28;
  painter->setPen(QPen(cap.color, 1.5));
  painter->setBrush(cap.is_down ? cap.color : theme::Colors().plate);
  painter->drawRoundedRect(plate, corner, corner);
  painter->setPen(cap.is_down ? theme::Colors().on_lit : theme::Colors().text);
  painter->drawText(plate, Qt::AlignCenter, cap.text);
  return plate;
}

void PaintOutlinedText(QPainter* painter, const QString& text, const QPointF& center, const QColor& color) {
  const QFontMetricsF metrics(painter->font(), painter->device());
  QPainterPath path;
  path.addText(center.x() - metrics.horizontalAdvance(text) / 2,
               center.y() + (metrics.ascent() - metrics.descent()) / 2, painter->font(), text);
  painter->setBrush(Qt::NoBrush);
  painter->strokePath(path, QPen(theme::Colors().plate, kOutlineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter->fillPath(path, color);
}

}  // namespace tavi
