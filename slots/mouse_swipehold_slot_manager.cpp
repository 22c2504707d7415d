#include "slots/mouse_swipehold_slot_manager.h"

#include <QTime>

#include "core/clock.h"

namespace taviinputmanager {
namespace {

constexpr int kSlot = 4;

}  // namespace

MouseSwipeholdSlotManager* MouseSwipeholdSlotManager::GetInstance() {
  static MouseSwipeholdSlotManager instance;
  return &instance;
}

MouseSwipeholdSlotManager::MouseSwipeholdSlotManager() : PositionSlotManager(kSlot) {}

int MouseSwipeholdSlotManager::ElapsedSinceLastMove() const {
  return Clock::TimeOfDay().msecsSinceStartOfDay() - last_move_time_;
}

int MouseSwipeholdSlotManager::TouchLastMove() {
  last_move_time_ = Clock::TimeOfDay().msecsSinceStartOfDay();
  return last_move_time_;
}

}  // namespace taviinputmanager
