#include "slots/point_pool_slot_manager.h"

namespace taviinputmanager {
namespace {

// The entry of a slot that is taken by number.
constexpr QPointF kPlaceholder(1.0, 1.0);

}  // namespace

PointPoolSlotManager::Points& PointPoolSlotManager::Book() const {
  if (reset_.Take()) points_.fill(QPointF());
  return points_;
}

int PointPoolSlotManager::IndexOf(const QPointF& point) const {
  const Points& points = Book();
  for (int i = 0; i < kSlotCount; ++i) {
    if (points[static_cast<std::size_t>(i)] == point) return i;
  }
  return -1;
}

int PointPoolSlotManager::Allocate(const QPointF& point) {
  const int held = IndexOf(point);
  if (held >= 0) return kFirstSlot + held;
  const int free = FindFree();
  SetPoint(free, point);
  return free;
}

int PointPoolSlotManager::FindFree() const {
  const Points& points = Book();
  for (int i = 0; i < kSlotCount; ++i) {
    if (points[static_cast<std::size_t>(i)].isNull()) return kFirstSlot + i;
  }
  return kNoSlot;
}

void PointPoolSlotManager::Reserve(int id) { SetPoint(id, kPlaceholder); }

void PointPoolSlotManager::SetPoint(int id, const QPointF& point) {
  const int index = id - kFirstSlot;
  if (index < 0 || index >= kSlotCount) return;
  Book()[static_cast<std::size_t>(index)] = point;
}

void PointPoolSlotManager::Free(int id) { SetPoint(id, QPointF()); }

int PointPoolSlotManager::FreeAt(const QPointF& point) {
  const int held = IndexOf(point);
  if (held < 0) return kNoSlot;
  Free(kFirstSlot + held);
  return kFirstSlot + held;
}

bool PointPoolSlotManager::Contains(const QPointF& point) const { return IndexOf(point) >= 0; }

QSet<int> PointPoolSlotManager::ActiveSlots() const {
  const Points& points = Book();
  QSet<int> active;
  for (int i = 0; i < kSlotCount; ++i) {
    if (!points[static_cast<std::size_t>(i)].isNull()) active.insert(kFirstSlot + i);
  }
  return active;
}

}  // namespace taviinputmanager
