// The jump that a finger on a button makes once, at the first real movement.
#ifndef SIMULATORS_ONE_OFF_OFFSET_H_
#define SIMULATORS_ONE_OFF_OFFSET_H_

#include <QPoint>
#include <QPointF>

namespace taviinputmanager {

struct RelativeCounts;

// Many games ignore the first pixels of a drag: the offset carries the finger past them at once. It is taken once a
// press, in the direction of the raw counts, and its length depends on no sensitivity.
class OneOffOffset {
 public:
  // At a press. `enabled` as the item says; a press without it takes no offset.
  void Start(bool enabled);
  // At a movement of an item that has the offset enabled. `counts` are those since the press, `sensitivity` is display
  // pixels a count, `threshold` and `length` are display pixels: the way that triggers the offset, and how far it
  // jumps.
  void OnMovement(const RelativeCounts& counts, const QPointF& sensitivity, double threshold, double length);

  // What was taken in this press, display pixels; (0, 0) before.
  const QPoint& Get() const { return offset_; }

 private:
  bool swipe_pending_ = false;
  QPoint offset_;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_ONE_OFF_OFFSET_H_
