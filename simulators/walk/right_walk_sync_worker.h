// The contact that walks a character towards a right click.
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

// Uses slot 4.
//
//   press ---- slide from the stick's centre to the target, blocking ---- (held) ---- release
//     moves while held: the target follows the pointer
//     released within 300 ms, beyond the radius: walks on for a time that grows with the distance
//     released later, or inside the radius: the finger lifts at once
//     pressed again while it walks on: the finger moves to the new target without lifting
//
// Main thread. Keeps a copy of the item, because the keymap may be deleted during a walk.
class RightWalkSyncWorker : public EventHandler {
  Q_OBJECT

 public:
  static RightWalkSyncWorker* GetInstance();

  // A null `item` moves a contact that is down with the item of the last press, and presses none. The event's position
  // is in pixels of the display, whatever the window's size.
  virtual void Press(const tavikeymapmanager::MouseRightWalkConfigItem* item, QMouseEvent* event);
  // A null `item` releases the contact.
  virtual void Release(const tavikeymapmanager::MouseRightWalkConfigItem* item, QMouseEvent* event);
  // Does nothing while the contact is up.
  virtual void OnMouseMove(QMouseEvent* event);
  // Releases the contact; the release is sent in any case.
  virtual void StopWalk();

 public Q_SLOTS:
  void ContinueWalkTimerOutTime() { StopWalk(); }

 private:
  RightWalkSyncWorker();

  // The distance to the character's target, in radii of the stick.
  static double DistanceOf(const tavikeymapmanager::MouseRightWalkConfigItem& item, const QMouseEvent* event);
  void SlideTo(const tavikeymapmanager::MouseRightWalkConfigItem& item, const QPoint& target, const QSize& display);
  void MoveFinger(const QPoint& position);

  MouseSwipeholdSlotManager* finger_;  // the singleton
  QTimer continue_timer_;              // runs while the character walks after a short click; its timeout stops it
  std::optional<tavikeymapmanager::MouseRightWalkConfigItem> walk_item_;  // of the current walk
  Turns events_;                                                          // a newer one ends a slide
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_WALK_RIGHT_WALK_SYNC_WORKER_H_
