// Looking around on a second point for as long as a key is held.
#ifndef SIMULATORS_VIEW_OBSERVE_SYNC_WORKER_H_
#define SIMULATORS_VIEW_OBSERVE_SYNC_WORKER_H_

#include <optional>

#include <QPoint>
#include <QTimer>

#include "core/event_handler.h"
#include "keymap/observe_config_item.h"
#include "simulators/relative_counts.h"

namespace taviinputmanager {

// Drives MouseSlotManager's finger, which view control has otherwise. Each send moves it on from where it is; there is
// no range. Counts of while it is up are spent by the first move after its press.
//
//   key down             40 ms     counts                     counts        key up
//   view finger lifts    (block)   press on the item's point  moves         lifts
//
// Works on a copy of the item: the release may come after its keymap is gone. Main thread.
class ObserveSyncWorker : public EventHandler {
  Q_OBJECT

 public:
  static ObserveSyncWorker* GetInstance();

  // Nothing for null, for items of other kinds, and while an item is in force. Blocks for 40 ms.
  void OnObservePress(const tavikeymapmanager::ConfigItem* item);
  // Lifts the finger, item or not.
  void OnObserveRelease();
  // Counts of one host event; nothing while no item is in force.
  void OnObserveRelativeInput(int dx, int dy);

 public Q_SLOTS:
  // Nothing happens with time in this behaviour, so far: the timer never runs.
  void ObserveTimerOutTime();

 Q_SIGNALS:
  // Around a hold. Whoever has the relative counts hands them over to this worker.
  void sigSubscribeWmRelativeInputEvent();
  void sigUnSubscribeWmRelativeInputEvent();

 private:
  ObserveSyncWorker();
  ~ObserveSyncWorker() override;

  void MoveFinger();
  void LiftFinger();

  std::optional<tavikeymapmanager::ObserveConfigItem> observe_item_;  // while its key is held
  QTimer observe_timer_;
  QPoint observe_centre_;       // display pixels
  RelativeCounts accumulated_;  // not spent yet
  qint64 last_send_ms_ = 0;     // since the epoch
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_VIEW_OBSERVE_SYNC_WORKER_H_
