// The contact on a shooter's fire button, and its path to the point that cancels a cast.
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

// The contact is FireSlotManager's: down on the button from press to release. An item in relative mode also takes the
// relative counts meanwhile, so that the fire contact turns the view, and reacts to the spell-cancel key.
//
//   fire down     counts                            spell cancel              delay      fire up
//   button ------ button + offset + counts -------- swipe to its point ------ lift ----- lift once more
//
// Works on a copy of the item: the release may come after its keymap was deleted. Main thread.
class FireSyncWorker : public EventHandler {
  Q_OBJECT

 public:
  static FireSyncWorker* GetInstance();

  // The key of a Fire item presses the contact, unless another one holds it. The key of a SpellCancel item moves a held
  // contact to the cancel point and ends the hold. Null and items of other kinds do nothing.
  void OnFirePress(const tavikeymapmanager::ConfigItem* item);
  // Releases the contact, held or not.
  void OnFireRelease();
  // The counts of one host event; ignored while no fire key is held.
  void OnFireRelativeInput(int dx, int dy);

  // The position of the item's button, display pixels; (0, 0) for null.
  static QPoint FirePressPoint(const tavikeymapmanager::FireConfigItem* item);
  // Moves the contact between two points, display pixels, in the item's number of equal steps, sent without a pause
  // between them. Does nothing for null or without steps.
  void SwipeFireFinger(const tavikeymapmanager::FireConfigItem* item, QPoint from, QPoint to);

 public Q_SLOTS:
  // The wait on the cancel point is over.
  void CancelTimerOutTime();

 Q_SIGNALS:
  // Emitted around a hold in relative mode. The owner of the relative counts passes them to this worker.
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
  // The contact's position from the counts of this hold. `item` is not the active one, which may be deleted meanwhile.
  QPoint RelativePoint(const tavikeymapmanager::FireConfigItem& item);
  void LiftFinger();
  void SendFinger();

  std::optional<tavikeymapmanager::FireConfigItem> fire_item_;  // while its key is held
  QTimer cancel_timer_;
  RelativeCounts accumulated_;  // since the press
  OneOffOffset fire_offset_;
  qint64 last_send_ms_ = 0;  // since the epoch; time of the last counts
  Turns holds_;              // a new one when the item changes
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_VIEW_FIRE_SYNC_WORKER_H_
