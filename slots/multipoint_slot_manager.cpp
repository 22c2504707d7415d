#include "slots/multipoint_slot_manager.h"

#include <algorithm>

namespace taviinputmanager {

MultipointSlotManager::MultipointSlotManager() : SlotManager(kNoSlot) {}

bool MultipointSlotManager::HasTouch() const { return IsDown(GetSlotId()); }

bool MultipointSlotManager::IsDown(int id) const {
  const Entry* entry = EntryOf(id);
  return entry && entry->in_use;
}

LineBuffer MultipointSlotManager::PressLine() {
  const Entry* entry = EntryOf(GetSlotId());
  return entry ? RelativePressLineAt(entry->x, entry->y) : LineBuffer();
}

void MultipointSlotManager::Reset() {
  for (Entry& entry : entries_) entry.in_use = false;
}

bool MultipointSlotManager::PressAt(double x, double y) {
  Entry* entry = FindPoint(x, y);
  if (!entry) entry = FindFree();
  if (!entry) return false;  // every contact of the pool is down
  *entry = {x, y, true};
  Select(entry);
  return true;
}

bool MultipointSlotManager::SetSlot(int id, double x, double y) {
  Entry* entry = EntryOf(id);
  if (!entry) return false;
  *entry = {x, y, true};
  Select(entry);
  return true;
}

bool MultipointSlotManager::ReleaseAt(double x, double y) {
  Entry* entry = FindPoint(x, y);
  if (!entry) return false;
  entry->in_use = false;
  Select(entry);
  return true;
}

bool MultipointSlotManager::ReleaseSlot(int id) {
  Entry* entry = EntryOf(id);
  if (!entry) return false;
  entry->in_use = false;
  Select(entry);
  return true;
}

MultipointSlotManager::Entry* MultipointSlotManager::FindPoint(double x, double y) {
  const auto at = std::find_if(entries_.begin(), entries_.end(),
                               [x, y](const Entry& entry) { return entry.x == x && entry.y == y; });
  return at == entries_.end() ? nullptr : &*at;
}

MultipointSlotManager::Entry* MultipointSlotManager::FindFree() {
  const auto at = std::find_if(entries_.begin(), entries_.end(), [](const Entry& entry) { return !entry.in_use; });
  return at == entries_.end() ? nullptr : &*at;
}

MultipointSlotManager::Entry* MultipointSlotManager::EntryOf(int id) {
  return const_cast<Entry*>(static_cast<const MultipointSlotManager*>(this)->EntryOf(id));
}

const MultipointSlotManager::Entry* MultipointSlotManager::EntryOf(int id) const {
  const int index = id - kFirstSlot;
  return index >= 0 && index < kSlotCount ? &entries_[static_cast<std::size_t>(index)] : nullptr;
}

void MultipointSlotManager::Select(const Entry* entry) {
  SetSlotId(kFirstSlot + static_cast<int>(entry - entries_.data()));
}

}  // namespace taviinputmanager
