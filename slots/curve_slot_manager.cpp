#include "slots/curve_slot_manager.h"

namespace taviinputmanager {
namespace {

constexpr int kSlot = 5;

}  // namespace

CurveSlotManager* CurveSlotManager::GetInstance() {
  static CurveSlotManager instance;
  return &instance;
}

CurveSlotManager::CurveSlotManager() : SlotManager(kSlot) {}

bool CurveSlotManager::HasTouch() const { return !point_.isNull(); }

LineBuffer CurveSlotManager::PressLine() { return RelativePressLineAt(point_.x(), point_.y()); }

void CurveSlotManager::Reset() {
  point_ = QPointF();
  origin_ = QPointF();
}

void CurveSlotManager::SetOffset(double dx, double dy) { point_ = origin_ + QPointF(dx, dy); }

}  // namespace taviinputmanager
