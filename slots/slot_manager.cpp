#include "slots/slot_manager.h"

#include "core/display_geometry.h"
#include "core/guest_command.h"

namespace taviinputmanager {

SlotManager::SlotManager(int slot_id) : slot_id_(slot_id), display_(DisplayGeometry::GetInstance()) {}

SlotManager::~SlotManager() = default;

LineBuffer SlotManager::UpdateLine() {
  const int id = slot_id_;
  if (id == kNoSlot) return {};
  return HasTouch() ? CheckedPressLine(id) : ReleaseLine();
}

LineBuffer SlotManager::CheckedPressLine(int id) {
  LineBuffer line = PressLine();
  if (!IsDown(id)) line.Clear();
  return line;
}

LineBuffer SlotManager::PressLineAt(int x, int y) const {
  const int id = slot_id_;  // the call to the host may select another one
  if (id == kNoSlot) return {};
  display_->WindowToTouch(x, y);
  if (x == kNoPosition || y == kNoPosition) return {};
  return guest_command::SlotPress(id, x, y);
}

LineBuffer SlotManager::RelativePressLineAt(double x, double y) const {
  const int id = slot_id_;
  if (id == kNoSlot) return {};
  int touch_x = kNoPosition;
  int touch_y = kNoPosition;
  display_->RelativeToTouch(touch_x, touch_y, x, y);
  if (touch_x == kNoPosition || touch_y == kNoPosition) return {};  // there is no display
  return guest_command::SlotPress(id, touch_x, touch_y);
}

LineBuffer SlotManager::ReleaseLine() const {
  return slot_id_ == kNoSlot ? LineBuffer() : guest_command::SlotRelease(slot_id_);
}

}  // namespace taviinputmanager
