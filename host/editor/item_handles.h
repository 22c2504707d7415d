// The draggable parts of an item, and what a drag writes.
#ifndef HOST_EDITOR_ITEM_HANDLES_H_
#define HOST_EDITOR_ITEM_HANDLES_H_

#include <optional>

#include <QPointF>
#include <QSizeF>
#include <QString>
#include <QVector>

#include "keymap/config_item.h"

namespace tavi {

// Positions are pixels of the view, from its top left corner.
struct ItemHandle {
  enum class Shape {
    kPoint,   // a point of the display
    kOffset,  // a point relative to `origin`
    kCircle,  // the edge of a circle around `origin`
    kArea     // the lower right corner of an area around `origin`
  };

  Shape shape = Shape::kPoint;
  QString field;  // the field that a drag writes
  QPointF place;  // where the handle is gripped
  QPointF origin;
  double radius = 0;  // of a circle
  double unit = 1;    // length of a radius of 1 in pixels
};

// The handles of an item on a view of that size, the point first. An item at [0, 0] has no point and no handles. Areas,
// circles and further points that the item does not use are left out.
QVector<ItemHandle> HandlesOf(const tavikeymapmanager::ConfigItem& item, const QSizeF& view);

// The new value of a field: a pair, or one number.
struct HandleValue {
  std::optional<QPointF> pair;
  double number = 0;
};

// The value that moves the handle to `place`, within the limits of the field, rounded to thousandths: finer steps are
// not visible.
HandleValue ValueAt(const ItemHandle& handle, const QPointF& place, const QSizeF& view);

// The point that is `steps` guest pixels away, rounded to a pixel.
QPointF NudgedPoint(const QPointF& point, const QPoint& steps, const QSize& guest);

}  // namespace tavi

#endif  // HOST_EDITOR_ITEM_HANDLES_H_
