#include "host/picture/keymap_picture.h"

#include <algorithm>

#include <QBuffer>
#include <QPainter>
#include <QPixmap>

#include "host/look/theme.h"
#include "host/picture/keymap_overlay.h"
#include "host/picture/svg_paint_device.h"
#include "host/picture/svg_writer.h"

namespace tavi {

namespace {

// The shorter side of a view at which keys and letters have the same size as in the window.
constexpr double kUsualSide = 720;
constexpr int kGridLines = 10;  // in each direction

void PaintBackground(QPainter* painter, const QImage& background, const QSizeF& view) {
  if (!background.isNull()) {
    painter->drawPixmap(QRectF(QPointF(), view), QPixmap::fromImage(background), QRectF(background.rect()));
    return;
  }
  painter->fillRect(QRectF(QPointF(), view), theme::Colors().guest);
  painter->setPen(QPen(theme::Colors().grid, 1));
  for (int i = 1; i < kGridLines; ++i) {
    const double x = view.width() * i / kGridLines;
    const double y = view.height() * i / kGridLines;
    painter->drawLine(QPointF(x, 0), QPointF(x, view.height()));
    painter->drawLine(QPointF(0, y), QPointF(view.width(), y));
  }
}

void Paint(QPaintDevice* device, const KeymapDrawing& drawing) {
  QPainter painter(device);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
  const double scale = std::max(1.0, std::min(drawing.size.width(), drawing.size.height()) / kUsualSide);
  painter.scale(scale, scale);
  const QSizeF view = QSizeF(drawing.size) / scale;
  PaintBackground(&painter, drawing.background, view);
  KeymapOverlay overlay;
  overlay.SetMarks(drawing.marks);
  overlay.Paint(&painter, view);
}

}  // namespace

QByteArray DrawKeymapAsSvg(const KeymapDrawing& drawing) {
  SvgWriter svg(drawing.size, drawing.title);
  SvgPaintDevice page(drawing.size, &svg);
  Paint(&page, drawing);
  return svg.Finish();
}

QByteArray DrawKeymapAsPng(const KeymapDrawing& drawing) {
  QImage image(drawing.size, QImage::Format_RGB32);
  if (image.isNull()) return {};
  Paint(&image, drawing);
  QByteArray png;
  QBuffer buffer(&png);
  image.save(&buffer, "PNG");
  return png;
}

}  // namespace tavi
