// The finger on a shooter's fire button, and its way to the point that gives up a cast.
#ifndef SIMULATORS_VIEW_FIRE_SYNC_WORKER_H_
#define SIMULATORS_VIEW_FIRE_SYNC_WORKER_H_

#include <optional>

#include <QPoint>
#include <QTimer>

#include "core/event_handler.h"
#include "core/turns.h"
#include "keymap/fire_config_item.h"
#include "simulators/one_off_offset.h"
#include "simulators/relative_counts.h"

namespace tavikeymapmanager {
struct SpellCancelConfigItem;
}

namespace taviinputmanager {

// The finger is FireSlotManager's: down on the button from press to release. An item in relative mode also takes the
// relative counts meanwhile, so that the view is steered by the fire finger, and listens to the spell-cancel key.
//
//   fire down     counts                            spell cancel              delay      fire up
//   button ------ button + offset + counts -------- swipe to its point ------ lift ----- lift once more
//
// Works on a copy of the item: the release may come after its keymap is gone. Main thread.
class FireSyncWorker : public EventHandler {
  Q_OBJECT

 public:
  static FireSyncWorker* GetInstance();

  // The key of a Fire item puts the finger down, unless another one holds it. The key of a SpellCancel item takes a
  // finger that is held to the cancel point and ends the hold. Null and items of other kinds do nothing.
  void OnFirePress(const tavikeymapmanager::ConfigItem* item);
  // Lifts the finger, held or not.
  void OnFireRelease();
  // Counts of one host event; nothing while no fire key is held.
  void OnFireRelativeInput(int dx, int dy);

  // Where the item's button is, display pixels; (0, 0) for null.
  static QPoint FirePressPoint(const tavikeymapmanager::FireConfigItem* item);
  // Takes the finger from one point to another, display pixels, in the item's number of even steps, sent without a
  // pause between them. Nothing for null or without steps.
  void SwipeFireFinger(const tavikeymapmanager::FireConfigItem* item, QPoint from, QPoint to);

 public Q_SLOTS:
  // The finger has stood on the cancel point for its time.
  void CancelTimerOutTime();

 Q_SIGNALS:
  // Around a hold in relative mode. Whoever has the relative counts hands them over to this worker.
  void sigSubscribeWmRelativeInputEvent();
  void sigUnSubscribeWmRelativeInputEvent();
  void sigSubscribeSpellCancelKey();
  void sigUnSubscribeSpellCancelKey();

 private:
  FireSyncWorker();
  ~FireSyncWorker() override;

  void StartFire(const tavikeymapmanager::FireConfigItem& item);
  void CancelFire(const tavikeymapmanager::SpellCancelConfigItem& cancel);
  void EndFire();
  // Where the counts of this hold put the finger. `item` is not the one in force, which may go on the way.
  QPoint RelativePoint(const tavikeymapmanager::FireConfigItem& item);
  void LiftFinger();
  void SendFinger();

  std::optional<tavikeymapmanager::FireConfigItem> fire_item_;  // while its key is held
  QTimer cancel_timer_;
  RelativeCounts accumulated_;  // since the press
  OneOffOffset fire_offset_;
  qint64 last_send_ms_ = 0;  // since the epoch; of counts
  Turns holds_;              // one begins as the item changes
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_VIEW_FIRE_SYNC_WORKER_H_
