// A contact at a position that its owner sets.
#ifndef SLOTS_POSITION_SLOT_MANAGER_H_
#define SLOTS_POSITION_SLOT_MANAGER_H_

#include <QPoint>

#include "slots/slot_manager.h"

namespace taviinputmanager {

// The base class of the simple managers: each feature has a type and an object of its own, and they differ in the slot.
class PositionSlotManager : public SlotManager {
 public:
  bool HasTouch() const override { return !position.isNull(); }
  LineBuffer PressLine() override { return PressLineAt(position.x(), position.y()); }
  void Reset() override { position = QPoint(); }

  // Pixels. (0, 0) means that the contact is up, anything else that it is down. Written by the owning feature.
  QPoint position;

 protected:
  using SlotManager::SlotManager;
};

}  // namespace taviinputmanager

#endif  // SLOTS_POSITION_SLOT_MANAGER_H_
