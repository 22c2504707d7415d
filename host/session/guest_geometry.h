#ifndef HOST_SESSION_GUEST_GEOMETRY_H_
#define HOST_SESSION_GUEST_GEOMETRY_H_

#include <QPointF>
#include <QSize>

namespace tavi {

// How the guest's screen is rotated in the window. Lines contain positions on the touch surface, which is not rotated;
// the user sees the display, which is.
//
// To the library 90 and 270 degrees are rotated, and 180 is the same as 0.
struct GuestGeometry {
  bool IsTurned() const { return rotation == 90 || rotation == 270; }
  QSize DisplaySize() const { return IsTurned() ? touch_surface.transposed() : touch_surface; }

  // The position on the display of a touch surface position, in fractions of the display's width and height.
  QPointF FractionOf(const QPointF& touch) const {
    const double a = touch.x() / qMax(1, touch_surface.width());
    const double b = touch.y() / qMax(1, touch_surface.height());
    if (rotation == 90) return {b, 1.0 - a};
    if (rotation == 270) return {1.0 - b, a};
    return {a, b};
  }

  QSize touch_surface;
  int rotation = 0;  // degrees
};

}  // namespace tavi

#endif  // HOST_SESSION_GUEST_GEOMETRY_H_
