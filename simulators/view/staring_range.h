// The area that a view finger moves in, and what becomes of a finger that leaves it.
#ifndef SIMULATORS_VIEW_STARING_RANGE_H_
#define SIMULATORS_VIEW_STARING_RANGE_H_

#include <QPoint>

class QPointF;
class QSizeF;
class QString;

namespace taviinputmanager {

class PositionSlotManager;

// Everything is in display pixels, from the display as it was at Prepare. The mouse's view finger has an area, and the
// view finger of a gamepad's right stick one of its own.
class StaringRange {
 public:
  // Lays the area out anew. `centre` and `size`, that of the user's own range, are fractions of the display.
  void Prepare(const QPointF& centre, const QSizeF& size);

  // Where the finger goes down.
  const QPoint& GetCentre() const { return centre_; }

  // With `auto_reset`, a finger outside the rectangle that `range_mode` names is taken off the display: the view turns
  // without end by swipes from the centre to the edge. Without, it is moved back into the user's range and stays down,
  // whatever the mode. The caller sends what has become of it.
  void Apply(PositionSlotManager* finger, bool auto_reset, const QString& range_mode) const;

 private:
  // All four lie inside. A rectangle whose right is left of its left has no inside.
  struct Bounds {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool Contains(const QPoint& point) const;
    QPoint Nearest(const QPoint& point) const;
  };

  const Bounds& BoundsOf(const QString& range_mode) const;

  Bounds user_range_;            // may reach beyond the display
  Bounds user_range_in_window_;  // the same, cut to the window range
  Bounds window_range_;          // the display without a thin rim
  Bounds padded_range_;          // the display without a tenth on each side
  QPoint centre_;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_VIEW_STARING_RANGE_H_
