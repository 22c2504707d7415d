#include "slots/eye_slot_manager.h"

#include "core/numbers.h"

namespace taviinputmanager {
namespace {

constexpr int kSlot = 7;

}  // namespace

EyeSlotManager* EyeSlotManager::GetInstance() {
  static EyeSlotManager instance;
  return &instance;
}

EyeSlotManager::EyeSlotManager() : PositionSlotManager(kSlot) {}

void EyeSlotManager::Reset() {
  PositionSlotManager::Reset();
  directions_ = {};
  home = QPoint();
}

void EyeSlotManager::Step(int step) {
  const double way = step;
  position.rx() = Truncate(position.x() + way * DirectionFlags::Sign(directions_.x));
  position.ry() = Truncate(position.y() + way * DirectionFlags::Sign(directions_.y));
}

}  // namespace taviinputmanager
