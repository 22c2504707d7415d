// What of an item can be dragged over the guest view, and what a drag writes.
#ifndef HOST_EDITOR_ITEM_HANDLES_H_
#define HOST_EDITOR_ITEM_HANDLES_H_

#include <optional>

#include <QPointF>
#include <QSizeF>
#include <QString>
#include <QVector>

#include "keymap/config_item.h"

namespace tavi {

// Places are pixels of the view, its top left at 0, 0.
struct ItemHandle {
  enum class Shape {
    kPoint,   // a point of the display
    kOffset,  // a point beside `origin`
    kCircle,  // the rim of a circle around `origin`
    kArea     // the lower right corner of an area around `origin`
  };

  Shape shape = Shape::kPoint;
  QString field;  // that a drag writes
  QPointF place;  // where it is gripped
  QPointF origin;
  double radius = 0;  // of a circle
  double unit = 1;    // pixels of a radius of 1
};

// The handles of an item on a view of that size, the point first. An item at [0, 0] has no place, and no handles.
// Areas, circles and further points that the item does not use are left out.
QVector<ItemHandle> HandlesOf(const tavikeymapmanager::ConfigItem& item, const QSizeF& view);

// What a field is to have: a pair, or one number.
struct HandleValue {
  std::optional<QPointF> pair;
  double number = 0;
};

// The value that puts the handle to `place`, within what the field may have. It has no more digits than the eye can
// tell apart: thousandths.
HandleValue ValueAt(const ItemHandle& handle, const QPointF& place, const QSizeF& view);

// The point that lies `steps` pixels of the guest aside, on a pixel.
QPointF NudgedPoint(const QPointF& point, const QPoint& steps, const QSize& guest);

}  // namespace tavi

#endif  // HOST_EDITOR_ITEM_HANDLES_H_
