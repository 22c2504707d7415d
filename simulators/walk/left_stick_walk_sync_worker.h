// The contact that walks a character with a gamepad's left stick.
#ifndef SIMULATORS_WALK_LEFT_STICK_WALK_SYNC_WORKER_H_
#define SIMULATORS_WALK_LEFT_STICK_WALK_SYNC_WORKER_H_

#include <QPointF>
#include <QTimer>

#include "core/event_handler.h"
#include "core/turns.h"
#include "keymap/joystick_left_walk_config_item.h"

namespace taviinputmanager {

class JoystickLeftStickSlotManager;

// Uses slot 8. Every movement of the stick becomes a run of steps of an eighth of the radius, 8 ms apart, and blocks
// the thread for that time.
//
//   stick leaves its rest:  press on the centre -- 16 ms, or press_hold_ms and a jump -- step -- 8 ms -- ... -- target
//   stick moves on:         step -- 8 ms -- ... -- target -- 8 ms
//   stick comes to rest:    lift at once; or, with delayed_stop, lift after stop_delay_ms unless the stick leaves again
//   StopWalk while down:    lift, and no step until the stick has come to rest
//
// Main thread. Keeps a copy of the item, because the keymap may be deleted before the stick returns to rest.
class LeftStickWalkSyncWorker : public EventHandler {
  Q_OBJECT

 public:
  static LeftStickWalkSyncWorker* GetInstance();

  // `stick` is from -1 to 1 on each axis, y downwards; null means at rest. Does nothing without an item.
  void OnStick(const tavikeymapmanager::JoystickLeftWalkConfigItem* item, const QPointF& stick);
  // Releases the contact; the release is sent in any case.
  void StopWalk();

 public Q_SLOTS:
  void onStopTimerOutTime();

 private:
  LeftStickWalkSyncWorker();

  void OnRest();
  void PutDown(const QPoint& centre);
  // `jumps`: the first step is the item's longer one.
  void DrawTo(const QPoint& target, bool jumps);
  void MoveFinger(const QPoint& position);
  void LiftFinger();

  JoystickLeftStickSlotManager* finger_;                      // the singleton
  tavikeymapmanager::JoystickLeftWalkConfigItem stick_item_;  // seen last
  bool walk_enabled_ = true;                                  // false: waits for the stick to return to rest
  Turns events_;                                              // a newer one ends a run of steps
  QTimer stop_timer_;                                         // from the stick's rest to the release
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_WALK_LEFT_STICK_WALK_SYNC_WORKER_H_
