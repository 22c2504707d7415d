#include "host/window/view/drawn_overlay.h"

#include <QPaintDevice>
#include <QPainter>

#include "host/look/theme.h"

namespace tavi {

void DrawnOverlay::SetMarks(const QVector<OverlayMark>& marks) {
  overlay_.SetMarks(marks);
  picture_ = QPixmap();
}

void DrawnOverlay::SetCovered(const QRectF& covered) {
  overlay_.SetCovered(covered);
  picture_ = QPixmap();
}

void DrawnOverlay::Paint(QPainter* painter, const QSizeF& view) {
  if (overlay_.IsEmpty()) return;
  const bool is_drawn = !picture_.isNull() && view == view_ && painter->font() == font_ &&
                        painter->device()->devicePixelRatioF() == pixel_ratio_ && &theme::Colors() == colors_;
  if (!is_drawn) Draw(*painter, view);
  painter->drawPixmap(0, 0, picture_);
}

void DrawnOverlay::Draw(const QPainter& painter, const QSizeF& view) {
  view_ = view;
  font_ = painter.font();
  pixel_ratio_ = painter.device()->devicePixelRatioF();
  colors_ = &theme::Colors();
  picture_ = QPixmap((view * pixel_ratio_).toSize());
  picture_.setDevicePixelRatio(pixel_ratio_);
  picture_.fill(Qt::transparent);
  QPainter over(&picture_);
  over.setRenderHints(painter.renderHints());
  over.setFont(font_);
  overlay_.Paint(&over, view_);
}

}  // namespace tavi
