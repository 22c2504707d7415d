#include "simulators/macro/macro_fingers.h"

#include <algorithm>
#include <utility>

#include <QVarLengthArray>

#include "core/guest_command.h"
#include "keymap/config_key.h"
#include "slots/macro_slot_manager.h"

namespace taviinputmanager {

using guest_command::Contacts;
using guest_command::Slots;

namespace {

// The target position of a contact.
struct Place {
  QPointF point;
  QPoint touch;
  bool is_mouse;
};

// All positions before the first contact is taken: the call to the host may lead to another macro that takes one.
QVarLengthArray<Place, MacroSlotManager::kSlotCount> PlacesOf(const MacroPoints& list) {
  QVarLengthArray<Place, MacroSlotManager::kSlotCount> places;
  for (const MacroPoint& element : list.elements) {
    const QPointF point = element.Now();
    if (point.isNull()) continue;  // not a point
    const auto touch = MacroPointToTouch(point);
    if (touch) places.append({point, *touch, element.is_mouse});  // otherwise there is no display
  }
  return places;
}

auto CountOf(const QString& text, const QStringList& texts) {
  return std::count_if(texts.begin(), texts.end(),
                       [&text](const QString& other) { return tavikeymapmanager::IsSameText(text, other); });
}

}  // namespace

LineBuffer MacroFingers::Press(const MacroPoints& list) {
  MacroSlotManager* pool = MacroSlotManager::GetInstance();
  if (!tavikeymapmanager::IsSameText(list.text, full_points_)) Remember(list.text);
  Contacts contacts;
  for (const Place& place : PlacesOf(list)) {
    const int slot = pool->Allocate(place.point);
    if (slot == SlotManager::kNoSlot) continue;  // all contacts of macros are down
    contacts.append({slot, place.touch.x(), place.touch.y()});
    if (place.is_mouse) mouse_point_ = place.point;
  }
  return contacts.isEmpty() ? LineBuffer() : guest_command::SlotMultiPress(contacts);
}

// At the end, each press releases one contact that is at its point. A loop may press for hours, but never more contacts
// than the pool has can be at one point.
void MacroFingers::Remember(const QString& list) {
  if (CountOf(list, pressed_points_) < MacroSlotManager::kSlotCount) {
    pressed_points_.append(list);
  } else {
    full_points_ = list;
  }
}

LineBuffer MacroFingers::Release(const MacroPoints& list) { return ReleaseElements(list.elements); }

LineBuffer MacroFingers::ReleasePressed() {
  QVector<MacroPoint> pressed;
  full_points_.clear();
  for (const QString& list : std::exchange(pressed_points_, {})) pressed.append(ParseMacroPoint(list));
  return ReleaseElements(pressed);
}

LineBuffer MacroFingers::ReleaseElements(const QVector<MacroPoint>& elements) {
  Slots released;
  for (const MacroPoint& element : elements) {
    const QPointF point = TakeReleasePoint(element);
    if (point.isNull()) continue;  // not a point, or nothing was pressed at the pointer
    const int slot = MacroSlotManager::GetInstance()->FreeAt(point);
    if (slot != SlotManager::kNoSlot) released.append(slot);
  }
  return released.isEmpty() ? LineBuffer() : guest_command::SlotMultiRelease(released);
}

QPointF MacroFingers::TakeReleasePoint(const MacroPoint& element) {
  return element.is_mouse ? std::exchange(mouse_point_, QPointF()) : element.place;
}

LineBuffer MacroFingers::ReleaseAll() {
  MacroSlotManager* pool = MacroSlotManager::GetInstance();
  Slots released;
  for (const int slot : pool->ActiveSlots()) released.append(slot);
  if (released.isEmpty()) return {};
  std::sort(released.begin(), released.end());
  for (const int slot : released) pool->Free(slot);
  return guest_command::SlotMultiRelease(released);
}

MacroFingers::Halves MacroFingers::Split(const MacroPoints& list) const {
  Halves halves;
  for (const MacroPoint& element : list.elements) {
    const bool is_held_mouse = element.is_mouse && !mouse_point_.isNull();
    const QPointF point = is_held_mouse ? mouse_point_ : element.Now();
    if (point.isNull()) continue;  // not a point
    const bool is_down = MacroSlotManager::GetInstance()->Contains(point);
    (is_down ? halves.release : halves.press) += element.element + QLatin1Char(kMacroPointSeparator);
  }
  return halves;
}

}  // namespace taviinputmanager
