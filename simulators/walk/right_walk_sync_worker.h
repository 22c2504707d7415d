// The finger that walks a character towards a right click.
#ifndef SIMULATORS_WALK_RIGHT_WALK_SYNC_WORKER_H_
#define SIMULATORS_WALK_RIGHT_WALK_SYNC_WORKER_H_

#include <optional>

#include <QTimer>

#include "core/event_handler.h"
#include "core/turns.h"
#include "keymap/mouse_right_walk_config_item.h"

class QMouseEvent;

namespace taviinputmanager {

class MouseSwipeholdSlotManager;

// Drives slot 4.
//
//   press ---- slide from the stick's centre to the target, blocking ---- (held) ---- release
//     moves while held: the target follows the pointer
//     released within 300 ms, beyond the radius: walks on for a time that grows with the distance
//     released later, or inside the radius: the finger lifts at once
//     pressed again while it walks on: the finger moves to the new target without lifting
//
// Main thread. Keeps a copy of the item, so that the keymap may go while a walk is on.
class RightWalkSyncWorker : public EventHandler {
  Q_OBJECT

 public:
  static RightWalkSyncWorker* GetInstance();

  // `item` null moves a finger that is down by the item of the last press, and puts none down. The event's position is
  // read as pixels of the display, whatever the window's size.
  virtual void Press(const tavikeymapmanager::MouseRightWalkConfigItem* item, QMouseEvent* event);
  // `item` null lifts the finger.
  virtual void Release(const tavikeymapmanager::MouseRightWalkConfigItem* item, QMouseEvent* event);
  // Nothing while the finger is up.
  virtual void OnMouseMove(QMouseEvent* event);
  // Lifts the finger; the release is sent in any case.
  virtual void StopWalk();

 public Q_SLOTS:
  void ContinueWalkTimerOutTime() { StopWalk(); }

 private:
  RightWalkSyncWorker();

  // How far the character has to go, in radii of the stick.
  static double DistanceOf(const tavikeymapmanager::MouseRightWalkConfigItem& item, const QMouseEvent* event);
  void SlideTo(const tavikeymapmanager::MouseRightWalkConfigItem& item, const QPoint& target, const QSize& display);
  void MoveFinger(const QPoint& position);

  MouseSwipeholdSlotManager* finger_;  // the singleton
  QTimer continue_timer_;              // runs while a short click walks on; its timeout stops it
  std::optional<tavikeymapmanager::MouseRightWalkConfigItem> walk_item_;  // of the walk in force
  Turns events_;                                                          // a newer one ends a slide
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_WALK_RIGHT_WALK_SYNC_WORKER_H_
