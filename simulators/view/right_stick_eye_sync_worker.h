// The contact that turns the view with a gamepad's right stick.
#ifndef SIMULATORS_VIEW_RIGHT_STICK_EYE_SYNC_WORKER_H_
#define SIMULATORS_VIEW_RIGHT_STICK_EYE_SYNC_WORKER_H_

#include "core/event_handler.h"
#include "core/turns.h"
#include "simulators/view/staring_range.h"

class QPointF;

namespace tavikeymapmanager {
struct JoystickRightEyeConfigItem;
}

namespace taviinputmanager {

class JoystickRightStickSlotManager;

// Uses slot 9. The stick sets a speed: each event moves the contact on from its position. The first event after a
// release presses it at the centre of its area, and an event that leaves the area releases it.
//
// Main thread. Reads the item only during a call; the area and the speed are those of the last press.
class RightStickEyeSyncWorker : public EventHandler {
 public:
  static RightStickEyeSyncWorker* GetInstance();

  // `stick` is from -1 to 1 on each axis, y downwards; null means at rest, and releases. Does nothing without an item.
  void OnStick(const tavikeymapmanager::JoystickRightEyeConfigItem* item, const QPointF& stick);

 private:
  RightStickEyeSyncWorker();

  // Before the contact is pressed.
  void LayOut(const tavikeymapmanager::JoystickRightEyeConfigItem& item);
  void MoveBy(const QPointF& stick);

  JoystickRightStickSlotManager* finger_;  // the singleton
  StaringRange range_;
  double stick_sensitivity_ = 0;  // 1 is the item's 100 per cent
  int display_width_ = 0;         // pixels
  Turns events_;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_VIEW_RIGHT_STICK_EYE_SYNC_WORKER_H_
