#include "slots/gravity_fake_slot_manager.h"

namespace taviinputmanager {

GravityFakeSlotManager* GravityFakeSlotManager::GetInstance() {
  static GravityFakeSlotManager instance;
  return &instance;
}

GravityFakeSlotManager::~GravityFakeSlotManager() = default;

void GravityFakeSlotManager::Reset() {
  directions_ = {};
  offset_ = QPointF();
}

bool GravityFakeSlotManager::HasTouch() const { return !offset_.isNull(); }

QString GravityFakeSlotManager::BuildPressCommand() { return {}; }

void GravityFakeSlotManager::Step(double step) {
  offset_ += QPointF(step * DirectionFlags::Sign(directions_.x), step * DirectionFlags::Sign(directions_.y));
}

}  // namespace taviinputmanager
