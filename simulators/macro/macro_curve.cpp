#include "simulators/macro/macro_curve.h"

#include <limits>

#include "core/guest_command.h"
#include "simulators/macro/macro_points.h"
#include "slots/macro_slot_manager.h"

namespace taviinputmanager {

void MacroCurve::SetLastSleep(int ms) {
  last_sleep_ = ms;
  until_release_ = false;
}

bool MacroCurve::Start(const QString& list) {
  if (slot_ != SlotManager::kNoSlot) return false;
  slot_ = MacroSlotManager::GetInstance()->FindFree();
  if (slot_ == SlotManager::kNoSlot) return false;
  MacroSlotManager::GetInstance()->Reserve(slot_);
  points_ = SplitMacroPoints(list);
  index_ = 0;
  return true;
}

LineBuffer MacroCurve::BuildNextPress() {
  const int slot = slot_;
  const QString element = points_.at(index_++);
  const QPointF point = ReadMacroPoint(element);
  if (point.isNull()) return {};  // not a point: the contact rests
  const auto touch = MacroPointToTouch(point);
  if (!touch || slot_ != slot) return {};  // no display, or the host's answer ended the curve
  return guest_command::SlotMultiPress({{slot, touch->x(), touch->y()}});
}

LineBuffer MacroCurve::BuildRelease() {
  if (slot_ == SlotManager::kNoSlot) return {};  // the settings of the next curve stay
  const int slot = slot_;
  MacroSlotManager::GetInstance()->Free(slot);
  Clear();
  return guest_command::SlotMultiRelease({slot});
}

int MacroCurve::SleepOr(int ms, int fallback) {
  return ms >= 1 && ms < std::numeric_limits<int>::max() ? ms : fallback;
}

}  // namespace taviinputmanager
