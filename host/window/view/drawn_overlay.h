// The keymap over the view, drawn once for all frames.
#ifndef HOST_WINDOW_VIEW_DRAWN_OVERLAY_H_
#define HOST_WINDOW_VIEW_DRAWN_OVERLAY_H_

#include <QFont>
#include <QPixmap>
#include <QRectF>
#include <QSizeF>
#include <QVector>

#include "host/picture/keymap_overlay.h"

class QPainter;

namespace tavi {

namespace theme {
struct ColorSet;
}

// To find a free place for each key of a large keymap takes as long as many frames, and every line for the guest is a
// frame. So the picture is kept until something of it is another.
class DrawnOverlay {
 public:
  // As KeymapOverlay's.
  void SetMarks(const QVector<OverlayMark>& marks);
  void SetCovered(const QRectF& covered);
  void Paint(QPainter* painter, const QSizeF& view);

 private:
  void Draw(const QPainter& painter, const QSizeF& view);

  KeymapOverlay overlay_;
  QPixmap picture_;  // null: to be drawn
  // What it was drawn for.
  QSizeF view_;
  QFont font_;
  double pixel_ratio_ = 0;
  const theme::ColorSet* colors_ = nullptr;
};

}  // namespace tavi

#endif  // HOST_WINDOW_VIEW_DRAWN_OVERLAY_H_
