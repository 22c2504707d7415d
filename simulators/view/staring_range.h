// The area of a view contact, and what happens to a contact that leaves it.
#ifndef SIMULATORS_VIEW_STARING_RANGE_H_
#define SIMULATORS_VIEW_STARING_RANGE_H_

#include <QPoint>

class QPointF;
class QSizeF;
class QString;

namespace taviinputmanager {

class PositionSlotManager;

// Everything is in display pixels, for the display at the time of Prepare. The mouse's view contact has an area, and
// the view contact of a gamepad's right stick one of its own.
class StaringRange {
 public:
  // Computes the area again. `centre` and `size`, that of the user's own range, are fractions of the display.
  void Prepare(const QPointF& centre, const QSizeF& size);

  // Where the contact is pressed.
  const QPoint& GetCentre() const { return centre_; }

  // With `auto_reset`, a contact outside the rectangle of `range_mode` is removed from the display: the view turns
  // without limit by swipes from the centre to the edge. Otherwise it is moved back into the user's range and stays
  // down, whatever the mode. The caller sends the result.
  void Apply(PositionSlotManager* finger, bool auto_reset, const QString& range_mode) const;

 private:
  // All four are inside. A rectangle whose right is left of its left has no inside.
  struct Bounds {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool Contains(const QPoint& point) const;
    QPoint Nearest(const QPoint& point) const;
  };

  const Bounds& BoundsOf(const QString& range_mode) const;

  Bounds user_range_;            // may extend beyond the display
  Bounds user_range_in_window_;  // the same, clipped to the window range
  Bounds window_range_;          // the display without a thin border
  Bounds padded_range_;          // the display without a tenth on each side
  QPoint centre_;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_VIEW_STARING_RANGE_H_
