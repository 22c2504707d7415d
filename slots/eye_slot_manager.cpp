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
  position.rx() = AddSaturated(position.x(), step * DirectionFlags::Sign(directions_.x));
  position.ry() = AddSaturated(position.y(), step * DirectionFlags::Sign(directions_.y));
}

}  // namespace taviinputmanager
