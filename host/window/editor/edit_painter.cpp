#include "host/window/editor/edit_painter.h"

#include <QFontMetricsF>
#include <QPainter>

#include "host/editor/item_handles.h"
#include "host/editor/yaml_text.h"
#include "host/look/theme.h"
#include "host/picture/key_cap.h"
#include "host/picture/keymap_overlay.h"

namespace tavi {

namespace km = tavikeymapmanager;
using Shape = ItemHandle::Shape;

namespace {

constexpr double kItemRing = 17;
constexpr double kSelectedRing = 20;
constexpr double kGrip = 5.5;
constexpr double kTick = 7;
constexpr double kNumbersGap = 22;

QColor Clear(QColor color, int alpha) {
  color.setAlpha(alpha);
  return color;
}

}  // namespace

void EditPainter::PaintItem(const km::ConfigItem& item) const {
  const QVector<ItemHandle> handles = HandlesOf(item, view_);
  painter_->setBrush(Qt::NoBrush);
  painter_->setPen(QPen(Clear(ColorOf(FamilyOf(item.type)), 0xB0), 1.2, Qt::DotLine));
  for (const ItemHandle& handle : handles) {
    if (handle.field == QLatin1String("point")) painter_->drawEllipse(handle.place, kItemRing, kItemRing);
  }
}

void EditPainter::PaintSelected(const km::ConfigItem& item) const {
  const QVector<ItemHandle> handles = HandlesOf(item, view_);
  for (const ItemHandle& handle : handles) PaintShape(handle);
  for (const ItemHandle& handle : handles) PaintGrip(handle);
  if (!handles.isEmpty()) PaintNumbers(item, handles.first().place);
}

void EditPainter::PaintShape(const ItemHandle& handle) const {
  painter_->setPen(QPen(Clear(theme::Colors().text, 0xC0), 1.2, Qt::DashLine));
  painter_->setBrush(Clear(theme::Colors().text, 0x0C));
  switch (handle.shape) {
    case Shape::kCircle: painter_->drawEllipse(handle.origin, handle.radius, handle.radius); break;
    case Shape::kArea: {
      const QPointF half = handle.place - handle.origin;
      painter_->drawRect(QRectF(handle.origin - half, handle.origin + half));
      break;
    }
    case Shape::kOffset: painter_->drawLine(handle.origin, handle.place); break;
    case Shape::kPoint: break;
  }
}

// The item's own point is a ring with four ticks, so that its key stays legible; all other handles are knobs.
void EditPainter::PaintGrip(const ItemHandle& handle) const {
  if (handle.field != QLatin1String("point")) {
    painter_->setPen(QPen(theme::Colors().backdrop, 1.5));
    painter_->setBrush(theme::Colors().text);
    painter_->drawEllipse(handle.place, kGrip, kGrip);
    return;
  }
  painter_->setBrush(Qt::NoBrush);
  painter_->setPen(QPen(theme::Colors().text, 2));
  painter_->drawEllipse(handle.place, kSelectedRing, kSelectedRing);
  for (const QPointF& way : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)}) {
    painter_->drawLine(handle.place + way * kSelectedRing, handle.place + way * (kSelectedRing + kTick));
  }
}

void EditPainter::PaintNumbers(const km::ConfigItem& item, const QPointF& place) const {
  const QString text = QString::fromUtf8(PairText(item.rel_x, item.rel_y));
  const double half = QFontMetricsF(painter_->font(), painter_->device()).horizontalAdvance(text) / 2;
  const bool is_low = place.y() + kSelectedRing + kTick + kNumbersGap > view_.height();
  const double y = place.y() + (is_low ? -1 : 1) * (kSelectedRing + kNumbersGap);
  PaintOutlinedText(painter_, text, {qMax(half, qMin(place.x(), view_.width() - half)), y}, theme::Colors().text);
}

}  // namespace tavi
