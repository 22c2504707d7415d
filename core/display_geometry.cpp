#include "core/display_geometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/numbers.h"
#include "core/pixels.h"

namespace taviinputmanager {
namespace {

constexpr QRect kDefaultDisplay(0, 0, 1280, 720);

// In doubles: the squares of distant points do not fit an int.
double Length(const QPoint& v) {
  const double x = v.x();
  const double y = v.y();
  return std::sqrt(x * x + y * y);
}

// The number of pixels from `first` to `last`, including both; at most the largest int.
int Extent(int first, int last) {
  constexpr qint64 kLongest = std::numeric_limits<int>::max();
  return static_cast<int>(qBound(-kLongest, qint64{last} - first + 1, kLongest));
}

QSize SizeOf(const QRect& rect) { return {Extent(rect.left(), rect.right()), Extent(rect.top(), rect.bottom())}; }

// The last pixel of a size from `first` to `last`; less if the size, or the size minus 1, would not fit an int.
int Measurable(int first, int last) { return static_cast<int>(qint64{first} + Extent(first, last) - 1); }

// With the same top left corner. Qt computes sizes in ints; the host's rectangles may be larger.
QRect Measurable(const QRect& rect) {
  return {rect.topLeft(), QPoint(Measurable(rect.left(), rect.right()), Measurable(rect.top(), rect.bottom()))};
}

QPoint Scaled(const QPoint& v, double numerator, double denominator) {
  return {Truncate(std::round(v.x() * numerator / denominator)), Truncate(std::round(v.y() * numerator / denominator))};
}

}  // namespace

WindowGeometry DisplayGeometry::GetWindowGeometry() const {
  if (!callbacks_) return {0, 0, kDefaultDisplay.width(), kDefaultDisplay.height()};
  return callbacks_->GetWindowGeometry();
}

QRect DisplayGeometry::GetDisplayRect() const {
  return callbacks_ ? Measurable(callbacks_->GetDisplayRect()) : kDefaultDisplay;
}

QSize DisplayGeometry::GetOrientedDisplaySize() const {
  const WindowGeometry window = GetWindowGeometry();
  const QRect display = GetDisplayRect();
  const int longer = std::max(display.width(), display.height());
  const int shorter = std::min(display.width(), display.height());
  return window.width < window.height ? QSize(shorter, longer) : QSize(longer, shorter);
}

double DisplayGeometry::GetWindowScale() const {
  const WindowGeometry window = GetWindowGeometry();
  return static_cast<double>(window.width) / GetOrientedDisplaySize().width();
}

bool DisplayGeometry::IsScale(double scale) { return std::isfinite(scale) && scale != 0; }

QPointF DisplayGeometry::RelativeToDisplay(const QPointF& point) const {
  const QRect display = GetDisplayRect();
  return {point.x() * display.width(), point.y() * display.height()};
}

QPointF DisplayGeometry::DisplayToRelative(const QPointF& point) const {
  const QRect display = GetDisplayRect();
  return {point.x() / display.width(), point.y() / display.height()};
}

void DisplayGeometry::WindowToTouch(int& x, int& y) const {
  if (!callbacks_) return;
  const WindowGeometry window = GetWindowGeometry();
  if (window.width == 0 || window.height == 0) {
    x = y = kNoPosition;
    return;
  }
  RelativeToTouch(x, y, static_cast<double>(x) / window.width, static_cast<double>(y) / window.height);
}

void DisplayGeometry::RelativeToTouch(int& x, int& y, double rel_x, double rel_y) const {
  if (!callbacks_) return;
  if (!std::isfinite(rel_x) || !std::isfinite(rel_y)) {
    x = y = kNoPosition;
    return;
  }
  const QSize touch = SizeOf(callbacks_->GetTouchRect());
  double a = rel_x;
  double b = rel_y;
  switch (callbacks_->GetDisplayRotation()) {
    case 270:
      a = rel_y;
      b = 1.0 - rel_x;
      break;
    case 90:
      a = 1.0 - rel_y;
      b = rel_x;
      break;
    default: break;
  }
  x = Round(touch.width() * a);
  y = Round(touch.height() * b);
}

void DisplayGeometry::WindowPositionToAndroid(int& x, int& y) const {
  if (!callbacks_) return;
  const WindowGeometry window = GetWindowGeometry();
  const QSize touch = SizeOf(callbacks_->GetTouchRect());
  const int rotation = callbacks_->GetDisplayRotation();
  const int across = rotation == 90 || rotation == 270 ? touch.height() : touch.width();
  if (window.width == 0 || across == 0) return;  // no factor to scale by
  const double factor = static_cast<double>(window.width) / across;
  x = Round(x / factor);
  y = Round(y / factor);
}

void DisplayGeometry::SetGravity(int x, int y, int z) const {
  if (callbacks_ && callbacks_->SetGravity) callbacks_->SetGravity(x, y, z);
}

QPoint DisplayGeometry::ClampToRadius(const QPoint& a, const QPoint& b, const QPoint& c, double radius) {
  const QPoint p = Sum(a, b);
  const QPoint d = Difference(p, c);
  const double distance = Length(d);
  return radius < distance ? Sum(c, Scaled(d, radius, distance)) : p;
}

QPoint DisplayGeometry::ScaleToLength(const QPoint& v, double length) {
  const double present = Length(v);
  return present == 0 ? v : Scaled(v, length, present);
}

}  // namespace taviinputmanager
