// Looking around with a contact on another point while a key is held.
#ifndef SIMULATORS_VIEW_OBSERVE_SYNC_WORKER_H_
#define SIMULATORS_VIEW_OBSERVE_SYNC_WORKER_H_

#include <optional>

#include <QPoint>
#include <QTimer>

#include "core/event_handler.h"
#include "keymap/observe_config_item.h"
#include "simulators/relative_counts.h"

namespace taviinputmanager {

// Uses MouseSlotManager's contact, which view control uses otherwise. Each line moves it on from its position; there is
// no range. Counts that arrive while it is up are spent by the first move after its press.
//
//   key down             40 ms     counts                     counts        key up
//   view finger lifts    (block)   press on the item's point  moves         lifts
//
// Works on a copy of the item: the release may come after its keymap was deleted. Main thread.
class ObserveSyncWorker : public EventHandler {
  Q_OBJECT

 public:
  static ObserveSyncWorker* GetInstance();

  // Does nothing for null, for items of other kinds, and while an item is active. Blocks for 40 ms.
  void OnObservePress(const tavikeymapmanager::ConfigItem* item);
  // Releases the contact, with or without an item.
  void OnObserveRelease();
  // The counts of one host event; ignored while no item is active.
  void OnObserveRelativeInput(int dx, int dy);

 public Q_SLOTS:
  // This behaviour has no timing: the timer never runs.
  void ObserveTimerOutTime();

 Q_SIGNALS:
  // Emitted around a hold. The owner of the relative counts passes them to this worker.
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
