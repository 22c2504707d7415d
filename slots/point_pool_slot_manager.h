// A pool of eight contacts that only records points: its users build the commands.
#ifndef SLOTS_POINT_POOL_SLOT_MANAGER_H_
#define SLOTS_POINT_POOL_SLOT_MANAGER_H_

#include <array>

#include <QPointF>
#include <QSet>

#include "slots/clear_request.h"
#include "slots/slot_manager.h"

namespace taviinputmanager {

// Points are compared like QPointF compares them, which is fuzzy. A null point means that the entry is free, so a
// contact at exactly (0, 0) does not keep its slot.
//
// Main thread, except Reset.
class PointPoolSlotManager : public SlotManager {
 public:
  static constexpr int kSlotCount = 8;

  // A pool has no touch of its own.
  bool HasTouch() const override { return false; }
  LineBuffer PressLine() override { return {}; }
  // Frees every slot. Any thread.
  void Reset() override { reset_.Make(); }

  // The slot that has `point`, or a free one, which then has it; kNoSlot if there is none.
  int Allocate(const QPointF& point);
  // The first free slot, which stays free; kNoSlot if there is none.
  int FindFree() const;
  // Takes a slot for a user who does not record its point here.
  void Reserve(int id);
  void SetPoint(int id, const QPointF& point);
  void Free(int id);
  // Frees the slot that has `point` and returns it, or kNoSlot.
  int FreeAt(const QPointF& point);
  bool Contains(const QPointF& point) const;
  // The number of slots taken.
  QSet<int> ActiveSlots() const;

 protected:
  PointPoolSlotManager() : SlotManager(kFirstSlot) {}

 private:
  static constexpr int kFirstSlot = 18;

  using Points = std::array<QPointF, kSlotCount>;  // entry i is slot kFirstSlot + i

  // -1 for a point that no entry has.
  int IndexOf(const QPointF& point) const;
  // Applies a requested reset first. The only access to the points.
  Points& Book() const;

  mutable ClearRequest reset_;
  mutable Points points_;
};

}  // namespace taviinputmanager

#endif  // SLOTS_POINT_POOL_SLOT_MANAGER_H_
