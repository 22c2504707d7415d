// The finger that turns the view by a gamepad's right stick.
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

// Drives slot 9. The stick gives a speed: each event moves the finger on from where it is. The first event after a lift
// presses it on the centre of its area, and one that leaves the area lifts it.
//
// Main thread. Reads the item during a call only; the area and the speed are those of the last press.
class RightStickEyeSyncWorker : public EventHandler {
 public:
  static RightStickEyeSyncWorker* GetInstance();

  // `stick` is from -1 to 1 on each axis, y downwards; null means at rest, and lifts. Nothing without an item.
  void OnStick(const tavikeymapmanager::JoystickRightEyeConfigItem* item, const QPointF& stick);

 private:
  RightStickEyeSyncWorker();

  // Before the finger goes down.
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
