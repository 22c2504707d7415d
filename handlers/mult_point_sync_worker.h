// From the host's touch points to the guest's.
#ifndef HANDLERS_MULT_POINT_SYNC_WORKER_H_
#define HANDLERS_MULT_POINT_SYNC_WORKER_H_

#include <QMap>
#include <QSet>

#include "core/event_handler.h"
#include "core/turns.h"
#include "qt/touch_events.h"

namespace taviinputmanager {

// Each touch point gets a slot of MultPointSlotManager for as long as it lasts, and a line of its own at each event. A
// point that finds no free slot is left out, and is offered one again at its next event.
//
// No reset reaches the points known here: the next gesture forgets them. Slots of a gesture whose end never came stay
// taken. An event that comes from inside a send is the newer picture: what is left of the older one is dropped. Main
// thread.
class MultPointSyncWorker : public EventHandler {
 public:
  static MultPointSyncWorker* GetInstance();

  // A begin forgets the points known and presses the event's; an update releases those that the event does not have any
  // more and presses or moves the rest; anything else ends the gesture and releases all.
  void OnTouchEvent(QTouchEvent* event);

 private:
  MultPointSyncWorker() = default;

  void Begin(const QList<qt::TouchPoint>& points);
  void Update(const QList<qt::TouchPoint>& points);
  // The slot that the point has, moved there, or one from the pool; may be none.
  int SlotFor(const qt::TouchPoint& point);
  // Releases every known point that is not in `kept`, in ascending order of their ids.
  void ReleaseExcept(const QSet<int>& kept);
  // `slot` may be none.
  void Press(const qt::TouchPoint& point, int slot);

  QMap<int, int> touches_;  // from touch point id to slot
  Turns events_;
};

}  // namespace taviinputmanager

#endif  // HANDLERS_MULT_POINT_SYNC_WORKER_H_
