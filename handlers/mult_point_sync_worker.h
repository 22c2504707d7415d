// Converts the host's touch points to contacts.
#ifndef HANDLERS_MULT_POINT_SYNC_WORKER_H_
#define HANDLERS_MULT_POINT_SYNC_WORKER_H_

#include <QMap>
#include <QSet>

#include "core/event_handler.h"
#include "core/turns.h"
#include "qt/touch_events.h"

namespace taviinputmanager {

// Each touch point keeps a slot of MultPointSlotManager while it lasts, and gets a line of its own in each event. A
// point for which there is no free slot is skipped, and tries again in its next event.
//
// Resets do not affect the points recorded here: the next gesture clears them. Slots of a gesture that never ended stay
// taken. An event that arrives during a call to the host is newer: the rest of the older one is dropped. Main thread.
class MultPointSyncWorker : public EventHandler {
 public:
  static MultPointSyncWorker* GetInstance();

  // A begin clears the record and presses the event's points; an update releases points that the event no longer has,
  // and presses or moves the rest; any other event ends the gesture and releases all points.
  void OnTouchEvent(QTouchEvent* event);

 private:
  MultPointSyncWorker() = default;

  void Begin(const QList<qt::TouchPoint>& points);
  void Update(const QList<qt::TouchPoint>& points);
  // The slot of the point, moved there, or one from the pool; may be none.
  int SlotFor(const qt::TouchPoint& point);
  // Releases every recorded point that is not in `kept`, in ascending order of ids.
  void ReleaseExcept(const QSet<int>& kept);
  // `slot` may be none.
  void Press(const qt::TouchPoint& point, int slot);

  QMap<int, int> touches_;  // from touch point id to slot
  Turns events_;
};

}  // namespace taviinputmanager

#endif  // HANDLERS_MULT_POINT_SYNC_WORKER_H_
