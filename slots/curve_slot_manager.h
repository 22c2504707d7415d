// The contact that follows a curve.
#ifndef SLOTS_CURVE_SLOT_MANAGER_H_
#define SLOTS_CURVE_SLOT_MANAGER_H_

#include <QPointF>

#include "slots/slot_manager.h"

namespace taviinputmanager {

class CurveSlotManager : public SlotManager {
 public:
  static CurveSlotManager* GetInstance();

  bool HasTouch() const override;
  LineBuffer PressLine() override;
  void Reset() override;

  // Both are fractions of the display. A point of (0, 0) means that the contact is up.
  void SetOrigin(const QPointF& origin) { origin_ = origin; }
  void SetOffset(double dx, double dy);

 private:
  CurveSlotManager();

  QPointF point_;
  QPointF origin_;
};

}  // namespace taviinputmanager

#endif  // SLOTS_CURVE_SLOT_MANAGER_H_
