// What a keymap puts on the guest's screen, as data: where each item acts and by which keys.
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

// Points and sizes are fractions of the display, x of its width and y of its height, unless a field says otherwise.
struct OverlayMark {
  enum class Shape {
    kButton,     // keys at a point
    kDirections  // four keys around a point
  };
  enum class Family { kTap, kWalk, kView, kCast, kMacro };

  // Whether it has a place on the screen; others are told in a list.
  bool HasPlace() const { return !point.isNull(); }

  Shape shape = Shape::kButton;
  Family family = Family::kTap;
  QPointF point;
  QStringList keys;       // of a button, any of them; of directions: up, right, down, left, empty where there is none
  QString label;          // what the author calls the item, or its type
  double radius = 0;      // of the stick, fraction of the display's WIDTH; 0: none
  QSizeF range;           // of the view area around the point; empty: none
  QVector<QPointF> path;  // of a curve, offsets from the point
};

// How an item of this type is told apart.
OverlayMark::Family FamilyOf(const QString& type);

// In the order of the items, those on one point with one shape and label joined.
QVector<OverlayMark> MarksOf(const tavikeymapmanager::LoadResult& keymap);

// Where an item is marked; a null point when it has no place.
QPointF PlaceOf(const tavikeymapmanager::ConfigItem& item);

// The marks of two keymaps that are in use together, joined in the same way.
QVector<OverlayMark> MergeMarks(QVector<OverlayMark> marks, const QVector<OverlayMark>& others);

}  // namespace tavi

#endif  // HOST_PICTURE_OVERLAY_MARKS_H_
