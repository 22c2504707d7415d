#ifndef HOST_PICTURE_KEY_CAP_H_
#define HOST_PICTURE_KEY_CAP_H_

#include <QColor>
#include <QRectF>
#include <QString>

class QPainter;

namespace tavi {

// A key as the window draws it: its name on a rounded plate.
struct KeyCap {
  QString text;
  QColor color;
  bool is_down = false;
};

// Both use the painter's current font.
QSizeF KeyCapSize(const QPainter& painter, const QString& text);
// Returns the plate's rectangle.
QRectF PaintKeyCap(QPainter* painter, const KeyCap& cap, const QPointF& center);

// Text centred at `center` that stays legible on any background.
void PaintOutlinedText(QPainter* painter, const QString& text, const QPointF& center, const QColor& color);

}  // namespace tavi

#endif  // HOST_PICTURE_KEY_CAP_H_
