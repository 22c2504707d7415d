// The overlay of a keymap as data: the point and the keys of each item.
#ifndef HOST_PICTURE_OVERLAY_MARKS_H_
#define HOST_PICTURE_OVERLAY_MARKS_H_

#include <QPointF>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QVector>

namespace tavikeymapmanager {
struct ConfigItem;
struct LoadResult;
}  // namespace tavikeymapmanager

namespace tavi {

// Points and sizes are fractions of the display, x of its width and y of its height, unless stated otherwise.
struct OverlayMark {
  enum class Shape {
    kButton,     // keys at a point
    kDirections  // four keys around a point
  };
  enum class Family { kTap, kWalk, kView, kCast, kMacro };

  // Whether it has a point on the screen; others are shown in a list.
  bool HasPlace() const { return !point.isNull(); }

  Shape shape = Shape::kButton;
  Family family = Family::kTap;
  QPointF point;
  QStringList keys;       // of a button, any of them; of directions: up, right, down, left, empty if there is none
  QString label;          // the item's label, or its type
  double radius = 0;      // of the stick, as a fraction of the display's WIDTH; 0: none
  QSizeF range;           // of the view area around the point; empty: none
  QVector<QPointF> path;  // of a curve, offsets from the point
};

// How items of this type are drawn.
OverlayMark::Family FamilyOf(const QString& type);

// In the order of the items. Marks with the same point, shape and label are merged.
QVector<OverlayMark> MarksOf(const tavikeymapmanager::LoadResult& keymap);

// The position of an item's mark; a null point if it has none.
QPointF PlaceOf(const tavikeymapmanager::ConfigItem& item);

// The marks of two keymaps that are in use together, merged in the same way.
QVector<OverlayMark> MergeMarks(QVector<OverlayMark> marks, const QVector<OverlayMark>& others);

}  // namespace tavi

#endif  // HOST_PICTURE_OVERLAY_MARKS_H_
