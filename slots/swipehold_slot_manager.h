// The contact of a walk with four keys, and its stick.
#ifndef SLOTS_SWIPEHOLD_SLOT_MANAGER_H_
#define SLOTS_SWIPEHOLD_SLOT_MANAGER_H_

#include <QList>
#include <QPoint>
#include <QPointF>

#include "slots/direction_flags.h"
#include "slots/slot_manager.h"

namespace taviinputmanager {

// Instance 0 is for walks; 1 for the inner walk of a cast, on the cast's own slot; 2 and up have no slot and compute
// the points of virtual sticks.
class SwipeholdSlotManager : public SlotManager {
 public:
  // All indexes except 0, 1 and 2 share one object, which has the index that was requested last.
  static SwipeholdSlotManager* GetInstance(int index);

  bool HasTouch() const override { return directions_.IsAny(); }
  LineBuffer PressLine() override;
  // Clears the keys. Centre, radii and the order of the key presses stay.
  void Reset() override;

  void SetDirectionKey(int direction, bool pressed);
  // Sets the stick's geometry, at the first key of a walk. The centre is a fraction of the display, the radius a
  // fraction of its width on both axes.
  void Configure(const QPointF& relative_center, double relative_radius, bool just_use_last);
  // Both radii become `factor` times their values from Configure.
  void SetRadiusFactor(double factor);

  // The target of the held keys, in pixels.
  QPoint GetTargetPoint() const;
  const QPoint& GetCenter() const { return center_; }
  int GetRadius() const { return radius_; }
  quint32 GetDirectionX() const { return directions_.x; }
  quint32 GetDirectionY() const { return directions_.y; }
  // Only one key counts: the other axis is not held.
  bool IsSingleAxis() const;
  // Keys are held, and they cancel each other.
  bool IsTargetAtCenter() const;
  // The directions in the words on each axis whose word differs from the current one, in the order up, down, left,
  // right.
  QList<int> DiffDirections(quint32 x_flags, quint32 y_flags) const;

 private:
  SwipeholdSlotManager(int index, int slot_id);

  int index_;
  DirectionFlags directions_;
  DirectionFlags last_directions_;  // the key pressed last on each axis; a release does not clear it
  int radius_ = 0;                  // pixels
  int diagonal_radius_ = 0;
  int base_radius_ = 0;  // without the factor of the radius switch
  int base_diagonal_radius_ = 0;
  QPoint center_;  // pixels
  bool just_use_last_ = false;
};

}  // namespace taviinputmanager

#endif  // SLOTS_SWIPEHOLD_SLOT_MANAGER_H_
