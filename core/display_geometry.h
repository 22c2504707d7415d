// All conversions of coordinates.
//
// The forms of a position, each with its frame of reference:
// - window pixels: a position in the host's view, as in QMouseEvent::pos;
// - display pixels: a position in GetDisplayRect, in the orientation that the window shows;
// - fractions: display pixels divided by the display's width and height, as in keymap items and record files;
// - touch coordinates: integers in GetTouchRect, the guest's unrotated touch surface. All commands contain these.
#ifndef CORE_DISPLAY_GEOMETRY_H_
#define CORE_DISPLAY_GEOMETRY_H_

#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QSize>

#include "taviinputmanager/callbacks.h"

namespace taviinputmanager {

// The value of an int coordinate that no conversion has set. No command is sent for it.
constexpr int kNoPosition = 0x7FFFFFFF;

// Calls the host's table at each conversion and stores nothing. Without a table the display is 1280 x 720. If a window
// or display of size 0 would require a division by 0, the result is kNoPosition.
class DisplayGeometry {
 public:
  static DisplayGeometry* GetInstance() {
    static DisplayGeometry instance;
    return &instance;
  }

  void SetCallbacks(InputManagerCallbacks* callbacks) { callbacks_ = callbacks; }

  WindowGeometry GetWindowGeometry() const;
  QRect GetDisplayRect() const;
  // The display's size, rotated like the window: the window's shape decides, not the display's own.
  QSize GetOrientedDisplaySize() const;
  // Window pixels per display pixel.
  double GetWindowScale() const;
  // Whether this is a valid divisor: neither window nor display has a size of 0.
  static bool IsScale(double scale);

  QPointF RelativeToDisplay(const QPointF& point) const;
  QPointF DisplayToRelative(const QPointF& point) const;

  // In place, window pixels to touch coordinates. Without a table x and y are unchanged.
  void WindowToTouch(int& x, int& y) const;
  // Writes the touch coordinates of a fraction. Without a table x and y are unchanged.
  void RelativeToTouch(int& x, int& y, double rel_x, double rel_y) const;
  // In place; window pixels scaled by one factor for both axes, without rotation. Without a table they are unchanged.
  void WindowPositionToAndroid(int& x, int& y) const;

  // Passes a tilt to the host.
  void SetGravity(int x, int y, int z) const;

  // a + b, moved towards `c` until it is within `radius` of it.
  static QPoint ClampToRadius(const QPoint& a, const QPoint& b, const QPoint& c, double radius);
  // `v`, scaled to `length`. A vector of length 0 is unchanged.
  static QPoint ScaleToLength(const QPoint& v, double length);

 private:
  InputManagerCallbacks* callbacks_ = nullptr;  // owned by the host
};

}  // namespace taviinputmanager

#endif  // CORE_DISPLAY_GEOMETRY_H_
