// The keys and the tilt of the gravity item.
#ifndef SLOTS_GRAVITY_FAKE_SLOT_MANAGER_H_
#define SLOTS_GRAVITY_FAKE_SLOT_MANAGER_H_

#include <QPointF>
#include <QString>

#include "slots/direction_flags.h"

namespace taviinputmanager {

// Has the interface of a slot manager but no slot: it sends nothing to the guest's screen. Main thread only.
class GravityFakeSlotManager {
 public:
  static GravityFakeSlotManager* GetInstance();

  // Resets keys and tilt.
  virtual void Reset();
  virtual ~GravityFakeSlotManager();
  // Whether there is a tilt.
  virtual bool HasTouch() const;
  // Always empty.
  virtual QString BuildPressCommand();

  bool HasDirection() const { return directions_.IsAny(); }
  void SetDirectionKey(int direction, bool pressed) { directions_.Set(direction, pressed); }
  // Changes the tilt by `step` along each axis for which only one key is held.
  void Step(double step);
  const QPointF& GetOffset() const { return offset_; }
  void ClearOffset() { offset_ = QPointF(); }

 private:
  GravityFakeSlotManager() = default;

  DirectionFlags directions_;
  QPointF offset_;
};

}  // namespace taviinputmanager

#endif  // SLOTS_GRAVITY_FAKE_SLOT_MANAGER_H_
