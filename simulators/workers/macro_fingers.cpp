#include "simulators/workers/macro_fingers.h"

#include <algorithm>
#include <utility>

#include "core/guest_command.h"
#include "simulators/workers/macro_points.h"
#include "slots/macro_slot_manager.h"

namespace taviinputmanager {

using guest_command::Contacts;
using guest_command::Slots;

QString MacroFingers::Press(const QString& list) {
  MacroSlotManager* pool = MacroSlotManager::GetInstance();
  // Once is enough: at the end a point is lifted once, however often it was pressed, and a loop may press for hours.
  if (!pressed_points_.contains(list)) pressed_points_.append(list);
  Contacts contacts;
  for (const QString& element : SplitMacroPoints(list)) {
    const QPointF point = ReadMacroPoint(element);
    if (point.isNull()) continue;  // no point
    const auto touch = MacroPointToTouch(point);
    if (!touch) continue;  // no display
    const int slot = pool->Allocate(point);
    if (slot == SlotManager::kNoSlot) continue;  // all fingers of macros are down
    contacts.append({slot, touch->x(), touch->y()});
    if (IsMouseWord(element)) mouse_point_ = point;
  }
  return contacts.isEmpty() ? QString() : guest_command::SlotMultiPress(contacts);
}

QString MacroFingers::Release(const QString& list) { return ReleaseElements(SplitMacroPoints(list)); }

QString MacroFingers::ReleasePressed() { return ReleaseElements(std::exchange(pressed_points_, {})); }

QString MacroFingers::ReleaseElements(const QStringList& elements) {
  Slots released;
  for (const QString& element : elements) {
    const QPointF point = TakeReleasePoint(element);
    if (point.isNull()) continue;  // no point, or nothing was pressed at the pointer
    const int slot = MacroSlotManager::GetInstance()->FreeAt(point);
    if (slot != SlotManager::kNoSlot) released.append(slot);
  }
  return released.isEmpty() ? QString() : guest_command::SlotMultiRelease(released);
}

QPointF MacroFingers::TakeReleasePoint(const QString& element) {
  return IsMouseWord(element) ? std::exchange(mouse_point_, QPointF()) : ReadMacroPoint(element);
}

QString MacroFingers::ReleaseAll() {
  MacroSlotManager* pool = MacroSlotManager::GetInstance();
  Slots released;
  for (const int slot : pool->ActiveSlots()) released.append(slot);
  if (released.isEmpty()) return {};
  std::sort(released.begin(), released.end());
  for (const int slot : released) pool->Free(slot);
  return guest_command::SlotMultiRelease(released);
}

MacroFingers::Halves MacroFingers::Split(const QString& list) const {
  Halves halves;
  for (const QString& element : SplitMacroPoints(list)) {
    const bool is_held_mouse = IsMouseWord(element) && !mouse_point_.isNull();
    const QPointF point = is_held_mouse ? mouse_point_ : ReadMacroPoint(element);
    if (point.isNull()) continue;  // no point
    const bool is_down = MacroSlotManager::GetInstance()->Contains(point);
    (is_down ? halves.release : halves.press) += element + QLatin1Char(kMacroPointSeparator);
  }
  return halves;
}

}  // namespace taviinputmanager
