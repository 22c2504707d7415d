// Caches the picture of the keymap over the view.
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

// In a large keymap, finding a free place for each key takes as long as many frames, and every line for the guest
// causes a frame. So the overlay is drawn once, and again only when something that affects the picture changes.
class DrawnOverlay {
 public:
  // Like those of KeymapOverlay.
  void SetMarks(const QVector<OverlayMark>& marks);
  void SetCovered(const QRectF& covered);
  void Paint(QPainter* painter, const QSizeF& view);

 private:
  void Draw(const QPainter& painter, const QSizeF& view);

  KeymapOverlay overlay_;
  QPixmap picture_;  // null if outdated
  // The state that the picture was drawn with.
  QSizeF view_;
  QFont font_;
  double pixel_ratio_ = 0;
  const theme::ColorSet* colors_ = nullptr;
};

}  // namespace tavi

#endif  // HOST_WINDOW_VIEW_DRAWN_OVERLAY_H_
