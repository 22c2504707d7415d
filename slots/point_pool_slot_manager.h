// A pool of eight fingers that are plain entries in a book: its users build the commands.
#ifndef SLOTS_POINT_POOL_SLOT_MANAGER_H_
#define SLOTS_POINT_POOL_SLOT_MANAGER_H_

#include <array>

#include <QPointF>
#include <QSet>

#include "slots/clear_request.h"
#include "slots/slot_manager.h"

namespace taviinputmanager {

// Points are compared as QPointF compares them, which is fuzzy. A null point means that the entry is free, so a contact
// at exactly (0, 0) does not hold its slot.
//
// Main thread, but for Reset.
class PointPoolSlotManager : public SlotManager {
 public:
  static constexpr int kSlotCount = 8;

  // A pool has no touch of its own.
  bool HasTouch() const override { return false; }
  LineBuffer PressLine() override { return {}; }
  // Frees every slot. Any thread.
  void Reset() override { reset_.Make(); }

  // The slot that holds `point`, or a free one, which then holds it; kNoSlot when there is none.
  int Allocate(const QPointF& point);
  // The first free slot, which stays free; kNoSlot when there is none.
  int FindFree() const;
  // Takes a slot for a user who does not keep its point here.
  void Reserve(int id);
  void SetPoint(int id, const QPointF& point);
  void Free(int id);
  // Frees the slot that holds `point` and returns it, or kNoSlot.
  int FreeAt(const QPointF& point);
  bool Contains(const QPointF& point) const;
  // The slots taken.
  QSet<int> ActiveSlots() const;

 protected:
  PointPoolSlotManager() : SlotManager(kFirstSlot) {}

 private:
  static constexpr int kFirstSlot = 18;

  using Points = std::array<QPointF, kSlotCount>;  // entry i is slot kFirstSlot + i

  // -1 for a point that no entry holds.
  int IndexOf(const QPointF& point) const;
  // After a reset that was asked for. The only way to the points.
  Points& Book() const;

  mutable ClearRequest reset_;
  mutable Points points_;
};

}  // namespace taviinputmanager

#endif  // SLOTS_POINT_POOL_SLOT_MANAGER_H_
