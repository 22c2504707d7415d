#ifndef HOST_SESSION_GUEST_GEOMETRY_H_
#define HOST_SESSION_GUEST_GEOMETRY_H_

#include <QPointF>
#include <QSize>

namespace tavi {

// How the guest's screen is turned in the window. Lines hold places of the touch surface, which does not turn; people
// see the display, which does.
//
// To the library a quarter and three quarters are turned, and half a turn is as none.
struct GuestGeometry {
  bool IsTurned() const { return rotation == 90 || rotation == 270; }
  QSize DisplaySize() const { return IsTurned() ? touch_surface.transposed() : touch_surface; }

  // Where on the display a place of the touch surface is seen, in fractions of its width and height.
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
