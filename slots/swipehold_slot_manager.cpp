#include "slots/swipehold_slot_manager.h"

#include <QRect>

#include "core/display_geometry.h"
#include "core/input_status_manager.h"
#include "core/numbers.h"

namespace taviinputmanager {
namespace {

constexpr int kWalkSlot = 2;
constexpr int kInnerWalkSlot = 6;  // the slot of casts
constexpr double kDiagonal = 0.70710678118;

bool IsOneKey(quint32 word) { return DirectionFlags::Sign(word) != 0; }

// At a distance of `sign` times `reach` from `from`. A keymap's radius may be any number, so the sum is computed in
// doubles.
int Offset(int from, int sign, int reach) { return Truncate(from + sign * static_cast<double>(reach)); }

}  // namespace

SwipeholdSlotManager::SwipeholdSlotManager(int index, int slot_id) : SlotManager(slot_id), index_(index) {}

SwipeholdSlotManager* SwipeholdSlotManager::GetInstance(int index) {
  static SwipeholdSlotManager walk(0, kWalkSlot);
  static SwipeholdSlotManager inner(1, kInnerWalkSlot);
  static SwipeholdSlotManager left_stick(2, kNoSlot);
  static SwipeholdSlotManager other(3, kNoSlot);
  switch (index) {
    case 0: return &walk;
    case 1: return &inner;
    case 2: return &left_stick;
    default: other.index_ = index; return &other;
  }
}

LineBuffer SwipeholdSlotManager::PressLine() {
  const QPoint target = GetTargetPoint();
  return PressLineAt(target.x(), target.y());
}

void SwipeholdSlotManager::Reset() { directions_ = {}; }

void SwipeholdSlotManager::SetDirectionKey(int direction, bool pressed) {
  directions_.Set(direction, pressed);
  if (!pressed) return;
  switch (direction) {
    case kDirectionUp: last_directions_.y = DirectionFlags::kNegative; break;
    case kDirectionDown: last_directions_.y = DirectionFlags::kPositive; break;
    case kDirectionLeft: last_directions_.x = DirectionFlags::kNegative; break;
    case kDirectionRight: last_directions_.x = DirectionFlags::kPositive; break;
    default: break;
  }
}

void SwipeholdSlotManager::Configure(const QPointF& relative_center, double relative_radius, bool just_use_last) {
  just_use_last_ = just_use_last;
  const QRect display = Display()->GetDisplayRect();
  base_radius_ = Round(display.width() * relative_radius);
  base_diagonal_radius_ = Round(base_radius_ * kDiagonal);
  radius_ = base_radius_;
  diagonal_radius_ = base_diagonal_radius_;
  if (index_ == 0) SetRadiusFactor(InputStatusManager::GetInstance()->GetSwipeholdFactor());
  center_ = QPoint(Round(display.width() * relative_center.x()), Round(display.height() * relative_center.y()));
}

void SwipeholdSlotManager::SetRadiusFactor(double factor) {
  radius_ = Truncate(base_radius_ * factor);
  diagonal_radius_ = Truncate(base_diagonal_radius_ * factor);
}

QPoint SwipeholdSlotManager::GetTargetPoint() const {
  if (just_use_last_ && directions_.x == DirectionFlags::kBoth && directions_.y == 0) {
    return {Offset(center_.x(), DirectionFlags::Sign(last_directions_.x), radius_), center_.y()};
  }
  if (just_use_last_ && directions_.y == DirectionFlags::kBoth && directions_.x == 0) {
    return {center_.x(), Offset(center_.y(), DirectionFlags::Sign(last_directions_.y), radius_)};
  }
  const int sign_x = DirectionFlags::Sign(directions_.x);
  const int sign_y = DirectionFlags::Sign(directions_.y);
  const int reach = sign_x != 0 && sign_y != 0 ? diagonal_radius_ : radius_;
  return {Offset(center_.x(), sign_x, reach), Offset(center_.y(), sign_y, reach)};
}

bool SwipeholdSlotManager::IsSingleAxis() const {
  return (directions_.x == 0 && IsOneKey(directions_.y)) || (directions_.y == 0 && IsOneKey(directions_.x));
}

bool SwipeholdSlotManager::IsTargetAtCenter() const { return directions_.IsAny() && GetTargetPoint() == center_; }

QList<int> SwipeholdSlotManager::DiffDirections(quint32 x_flags, quint32 y_flags) const {
  QList<int> directions;
  if (y_flags != directions_.y) {
    if (y_flags & DirectionFlags::kNegative) directions.append(kDirectionUp);
    if (y_flags & DirectionFlags::kPositive) directions.append(kDirectionDown);
  }
  if (x_flags != directions_.x) {
    if (x_flags & DirectionFlags::kNegative) directions.append(kDirectionLeft);
    if (x_flags & DirectionFlags::kPositive) directions.append(kDirectionRight);
  }
  return directions;
}

}  // namespace taviinputmanager
