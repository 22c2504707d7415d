// Every conversion of coordinates.
//
// Forms that a position takes, each with its frame of reference:
// - window pixels: a position in the host's view, as in QMouseEvent::pos;
// - display pixels: a position in GetDisplayRect, in the orientation that the window shows;
// - fractions: display pixels over the display's width and height, as keymap items and record files hold them;
// - touch coordinates: integers in GetTouchRect, the guest's unrotated touch surface. All commands carry these.
#ifndef CORE_DISPLAY_GEOMETRY_H_
#define CORE_DISPLAY_GEOMETRY_H_

#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QSize>

#include "taviinputmanager/callbacks.h"

namespace taviinputmanager {

// What an int coordinate holds that no conversion has written. No command goes out for it.
constexpr int kNoPosition = 0x7FFFFFFF;

// Asks the host's table anew at each conversion and keeps nothing. Without table the display is 1280 x 720. A window or
// display of size 0 gives kNoPosition where a division by it would have been needed.
class DisplayGeometry {
 public:
  static DisplayGeometry* GetInstance() {
    static DisplayGeometry instance;
    return &instance;
  }

  void SetCallbacks(InputManagerCallbacks* callbacks) { callbacks_ = callbacks; }

  WindowGeometry GetWindowGeometry() const;
  QRect GetDisplayRect() const;
  // The display's size, turned as the window is: the window's shape decides, not the display's own.
  QSize GetOrientedDisplaySize() const;
  // Window pixels to one display pixel.
  double GetWindowScale() const;
  // Whether that can be divided by: neither window nor display has a size of 0.
  static bool IsScale(double scale);

  QPointF RelativeToDisplay(const QPointF& point) const;
  QPointF DisplayToRelative(const QPointF& point) const;

  // In place, window pixels to touch coordinates. Without table x and y stay as they are.
  void WindowToTouch(int& x, int& y) const;
  // Writes the touch coordinates of a fraction. Without table x and y stay as they are.
  void RelativeToTouch(int& x, int& y, double rel_x, double rel_y) const;
  // In place; window pixels scaled by one factor for both axes, without turning. Without table they stay.
  void WindowPositionToAndroid(int& x, int& y) const;

  // Hands a tilt to the host.
  void SetGravity(int x, int y, int z) const;

  // a + b, drawn towards `c` until it is no further from it than `radius`.
  static QPoint ClampToRadius(const QPoint& a, const QPoint& b, const QPoint& c, double radius);
  // `v` made `length` long. A vector of length 0 stays.
  static QPoint ScaleToLength(const QPoint& v, double length);

 private:
  InputManagerCallbacks* callbacks_ = nullptr;  // the host's
};

}  // namespace taviinputmanager

#endif  // CORE_DISPLAY_GEOMETRY_H_
