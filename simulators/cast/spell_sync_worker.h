// The contact of an aimed cast: the common part of the four triggers.
#ifndef SIMULATORS_CAST_SPELL_SYNC_WORKER_H_
#define SIMULATORS_CAST_SPELL_SYNC_WORKER_H_

#include <memory>

#include <QPoint>
#include <QPointF>

#include "core/event_handler.h"
#include "core/turns.h"
#include "simulators/one_off_offset.h"
#include "simulators/relative_counts.h"

class QMouseEvent;
class QTimer;

namespace tavikeymapmanager {
struct SpellCancelConfigItem;
struct SpellConfigItem;
}  // namespace tavikeymapmanager

namespace taviinputmanager {

class JoystickAxisEvent;

// The progress of a cast.
enum SpellState : int {
  kSpellAiming = 1,
  kSpellCast = 4,
  kSpellFinished = 6,  // or cancelled
};

// There is one subclass with a single object for each trigger. All of them move the contact of SpellSlotManager, which
// the inner walk shares.
//
// Main thread. Presses, cancels and stick events block it while their swipes run. An item passed in belongs to the
// keymap and is valid during the call. The active item is a copy, because a cast may outlive its keymap: a cancel
// continues during a load, and a gamepad keymap is removed without a reset. The cast may also end or be replaced during
// each line and each question to the host: a swipe whose cast is no longer active stops where it is.
class SpellSyncWorker : public EventHandler {
  Q_OBJECT

 public:
  ~SpellSyncWorker() override;

  virtual void Press(tavikeymapmanager::SpellConfigItem* item, bool from_joystick) = 0;
  virtual void Release(tavikeymapmanager::SpellConfigItem* item, bool from_joystick) = 0;
  // Whether the event is consumed.
  virtual bool OnMouseEvent(QMouseEvent* event) = 0;
  // Whether an active cast must be finished when another key starts one.
  virtual bool NeedsFinish() const = 0;
  virtual void Finish() = 0;
  // One tick while the pointer aims.
  virtual void Follow();
  // Swipes to the cancel point of `item` and cancels the cast.
  virtual void Cancel(tavikeymapmanager::SpellCancelConfigItem* item);
  // Part of a reset of all input.
  virtual void ForceStop();
  virtual bool IsActive() const;
  // The right stick aims.
  virtual void OnJoystickAxis(JoystickAxisEvent* event);
  // Relative mouse counts aim, while the mouse is captured.
  virtual void OnRelativeInput(int dx, int dy);
  // The walk aims: its direction has changed to `point`, a unit vector, or (0, 0) at rest.
  virtual void OnSwipeholdTargetPoint(QPointF point);

  // ---- The steps of a cast; points are display pixels. Without an item they do nothing, and a point is (0, 0) ----
  // The position of the skill button of `item`.
  static QPoint PressPoint(const tavikeymapmanager::SpellConfigItem* item);
  // The target of the pointer. The button, while the mouse is captured or a walk aims.
  static QPoint CalculateTargetPoint(const tavikeymapmanager::SpellConfigItem* item);
  // Moves or presses the contact there; a point of (0, 0) releases it.
  void MoveFinger(const QPoint& point);
  // From the button to the target. Blocks for the duration of the swipe.
  void SwipeToTarget(const tavikeymapmanager::SpellConfigItem* item, const QPoint& from, const QPoint& to);
  // To the cancel point. Blocks as well.
  void SwipeToCancel(const tavikeymapmanager::SpellConfigItem* item, const QPoint& from, const QPoint& to);
  // `state` is a SpellState; other values do nothing. Without an active item, nothing is connected or ended.
  // kSpellFinished removes the item. For kSpellAiming `pressed` is the keymap's own record of the active item; without
  // it, the copy is checked for the inner walk.
  void ChangeSpellState(int state, tavikeymapmanager::SpellConfigItem* pressed = nullptr);
  // Stops the walk if `item`, just cast, requires it.
  void AfterCast(const tavikeymapmanager::SpellConfigItem* item);

  // The active item, or null. For an item of a derived class, only the keymap's own record has the inner walk, not the
  // copy.
  const tavikeymapmanager::SpellConfigItem* GetSpellItem() const { return spell_item_.get(); }

 Q_SIGNALS:
  void sigSubscribeSwipehold();
  void sigUnSubscribeSwipehold();
  // `item` is the keymap's own, if known.
  void sigEntrustToInnerSwipehold(tavikeymapmanager::SpellConfigItem& item);
  // `item` is the copy. `not_sync_data`: the ordinary walk takes over the keys.
  void sigCancelEntrustToInnerSwipehold(tavikeymapmanager::SpellConfigItem& item, bool not_sync_data);

 public Q_SLOTS:
  // The wait on the cancel point is over: releases the contact.
  void CancelTimerOutTime();

 protected:
  SpellSyncWorker();

  // ---- What several triggers do alike ----
  // Presses and aims: a swipe from the button to the target, or just the target if a walk or a stick aims.
  void PressAndAim(tavikeymapmanager::SpellConfigItem* item, bool from_joystick);
  // Casts if `item` has the key of the active one.
  void CastOnRelease(tavikeymapmanager::SpellConfigItem* item);
  // Moves the contact back to the button and releases it.
  void FinishAiming();

  // ---- The item in force ----
  // Makes a copy of `item` the active item.
  void StoreItem(const tavikeymapmanager::SpellConfigItem& item);
  void DropItem();
  // Whether `cast` is still active: check it after a line or a question to the host.
  unsigned CurrentCast() const { return casts_.Current(); }
  bool IsCastOver(unsigned cast) const { return casts_.IsOver(cast); }
  bool IsFromJoystick() const { return from_joystick_; }
  void SetFromJoystick(bool from_joystick) { from_joystick_ = from_joystick; }
  SpellState GetSpellState() const { return spell_state_; }

  // ---- The finger; display pixels ----
  void LiftFinger();
  // Moves or presses the contact there, and blocks; does nothing once `cast` is over.
  void StepTo(const QPoint& point, int pause_ms, unsigned cast);
  // Where the active item moves the contact for a direction of the walk.
  QPoint WalkPoint(const QPointF& direction) const;

 private:
  void BeginAim(tavikeymapmanager::SpellConfigItem* pressed);
  void EndAim(bool not_sync_data);
  void SwipeAlongCurve(const tavikeymapmanager::SpellConfigItem& item, const QPoint& from, const QPoint& to,
                       unsigned cast);
  void LiftAfter(int delay_ms);
  // Moves the contact to `target`, in steps of that many pixels. Blocks for the duration of the movement.
  void SlideTowards(const QPoint& target, double step, unsigned cast);

  using Item = std::shared_ptr<tavikeymapmanager::SpellConfigItem>;

  Item spell_item_;  // also owned by each operation that uses it
  Turns casts_;      // a new one when the item changes
  bool from_joystick_ = false;
  SpellState spell_state_ = kSpellFinished;
  QTimer* cancel_timer_;
  RelativeCounts accumulated_;  // since the aim began
  OneOffOffset spell_offset_;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_CAST_SPELL_SYNC_WORKER_H_
