// Aimed casts.
#ifndef SIMULATORS_CAST_SPELL_EVENT_SIMULATOR_H_
#define SIMULATORS_CAST_SPELL_EVENT_SIMULATOR_H_

#include <memory>

#include <QPointF>
#include <QSet>

#include "simulators/event_simulator.h"

class QMouseEvent;
class QTimer;

namespace tavikeymapmanager {
struct SpellCancelConfigItem;
struct SpellConfigItem;
struct SwipeholdConfigItem;
}  // namespace tavikeymapmanager

namespace taviinputmanager {

class JoystickAxisEvent;
class SpellSyncWorker;

// Handles the items "Spell" and "SpellCancel": selects the worker for an item's trigger and connects it with the
// pointer, the relative counts, the stick and the walk.
class SpellEventSimulator : public EventSimulator {
  Q_OBJECT

 public:
  static SpellEventSimulator* GetInstance() {
    static SpellEventSimulator instance;
    return &instance;
  }
  ~SpellEventSimulator() override;

  void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;
  void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) override;

  // While a cast is in progress, relative counts and the right stick go only here.
  bool IsSpellActive() const;
  void OnRelativeInput(int dx, int dy);
  void OnJoystickAxis(JoystickAxisEvent* event);
  // Whether a mouse event ends a cast that waits for it, and is consumed by that.
  bool OnMouseEvent(QMouseEvent* event);
  // Ends a cast in progress.
  void ForceStop();

 Q_SIGNALS:
  // A key of type "SpellCancel" was pressed; fire keys react to it as well.
  void sigSpellCancelPressed(tavikeymapmanager::SpellCancelConfigItem& item);

 public Q_SLOTS:
  // The walk's direction has changed to `point`, a unit vector or (0, 0).
  void OnSwipeholdTargetPointChanged(QPointF& point);

 private Q_SLOTS:
  void TimerOutTime();

 private:
  SpellEventSimulator();

  void PressSpell(tavikeymapmanager::SpellConfigItem* item, bool from_joystick);
  void PressCancel(tavikeymapmanager::SpellCancelConfigItem* item);
  void FinishOtherKey(const tavikeymapmanager::SpellConfigItem& next);
  // Whether the item of the current worker aims with the pointer, outside view control.
  bool FollowsPointer() const;
  // Detaches the current worker and returns it; may be null.
  SpellSyncWorker* TakeWorker();

  void ConnectWorkersOnce();
  void ConnectWorker(SpellSyncWorker* worker);
  void SubscribeSwipehold();
  void UnsubscribeSwipehold();
  void EntrustToInnerSwipehold(SpellSyncWorker* worker, tavikeymapmanager::SpellConfigItem& item);
  void CancelEntrustToInnerSwipehold(SpellSyncWorker* worker, bool not_sync_data);

  SpellSyncWorker* current_worker_ = nullptr;  // of the current or last cast; one of the four singletons
  // What the walk received for the latest aim; kept until the next.
  std::unique_ptr<tavikeymapmanager::SwipeholdConfigItem> inner_item_;
  QTimer* follow_timer_;
  bool is_connected_ = false;
  QSet<SpellSyncWorker*> inner_walkers_;  // whose current cast has an inner walk
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_CAST_SPELL_EVENT_SIMULATOR_H_
