// Positions on the guest's touch surface, in touch coordinates.
#ifndef GUEST_LINE_GEOMETRY_H_
#define GUEST_LINE_GEOMETRY_H_

#include <algorithm>

namespace taviguest {

struct Point {
  int x = 0;
  int y = 0;
};

struct Size {
  int width = 0;
  int height = 0;
};

// The nearest position on the surface: positions at and beyond its edge may arrive.
inline Point PlaceOnSurface(const Point& place, const Size& surface) {
  return {std::clamp(place.x, 0, surface.width - 1), std::clamp(place.y, 0, surface.height - 1)};
}

}  // namespace taviguest

#endif  // GUEST_LINE_GEOMETRY_H_
