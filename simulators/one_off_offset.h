// The one-time jump of a contact on a button at its first real movement.
#ifndef SIMULATORS_ONE_OFF_OFFSET_H_
#define SIMULATORS_ONE_OFF_OFFSET_H_

#include <QPoint>
#include <QPointF>

namespace taviinputmanager {

struct RelativeCounts;

// Many games ignore the first pixels of a drag: the offset moves the contact past them at once. It is applied once per
// press, in the direction of the raw counts, and its length does not depend on the sensitivity.
class OneOffOffset {
 public:
  // Call at a press. `enabled` is the item's setting; without it, the press has no offset.
  void Start(bool enabled);
  // Call at a movement of an item that has the offset enabled. `counts` are those since the press, `sensitivity` is
  // display pixels per count, `threshold` and `length` are display pixels: the distance that triggers the offset, and
  // its size.
  void OnMovement(const RelativeCounts& counts, const QPointF& sensitivity, double threshold, double length);

  // The offset that was applied in this press, display pixels; (0, 0) before.
  const QPoint& Get() const { return offset_; }

 private:
  bool swipe_pending_ = false;
  QPoint offset_;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_ONE_OFF_OFFSET_H_
