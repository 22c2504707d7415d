#ifndef HOST_PICTURE_KEYMAP_OVERLAY_H_
#define HOST_PICTURE_KEYMAP_OVERLAY_H_

#include <QColor>
#include <QRectF>
#include <QSizeF>
#include <QVector>

#include "host/picture/overlay_marks.h"

class QPainter;

namespace tavi {

QColor ColorOf(OverlayMark::Family family);

// Draws a keymap's items over the guest view: each key at the point where it acts, and a list of those without a point.
//
// Main thread.
class KeymapOverlay {
 public:
  void SetMarks(const QVector<OverlayMark>& marks) { marks_ = marks; }
  bool IsEmpty() const { return marks_.isEmpty(); }
  // A part of the view that is covered by something else: keys avoid it as they avoid each other.
  void SetCovered(const QRectF& covered) { covered_ = covered; }

  // `view` is the size of the guest view in the painter's units; its top left corner is at 0, 0.
  void Paint(QPainter* painter, const QSizeF& view) const;

 private:
  QVector<OverlayMark> marks_;
  QRectF covered_;  // in the painter's units; empty: nothing
};

}  // namespace tavi

#endif  // HOST_PICTURE_KEYMAP_OVERLAY_H_
