#include "slots/slot_manager.h"

#include "core/display_geometry.h"
#include "core/guest_command.h"

namespace taviinputmanager {

SlotManager::SlotManager(int slot_id) : slot_id_(slot_id), display_(DisplayGeometry::GetInstance()) {}

SlotManager::~SlotManager() = default;

LineBuffer SlotManager::UpdateLine() {
  if (slot_id_ == kNoSlot) return {};
  return HasTouch() ? PressLine() : ReleaseLine();
}

LineBuffer SlotManager::PressLineAt(int x, int y) const {
  if (slot_id_ == kNoSlot) return {};
  display_->WindowToTouch(x, y);
  if (x == kNoPosition || y == kNoPosition) return {};
  return guest_command::SlotPress(slot_id_, x, y);
}

LineBuffer SlotManager::RelativePressLineAt(double x, double y) const {
  if (slot_id_ == kNoSlot) return {};
  int touch_x = kNoPosition;
  int touch_y = kNoPosition;
  display_->RelativeToTouch(touch_x, touch_y, x, y);
  if (touch_x == kNoPosition || touch_y == kNoPosition) return {};  // no display to be on
  return guest_command::SlotPress(slot_id_, touch_x, touch_y);
}

LineBuffer SlotManager::ReleaseLine() const {
  return slot_id_ == kNoSlot ? LineBuffer() : guest_command::SlotRelease(slot_id_);
}

}  // namespace taviinputmanager
