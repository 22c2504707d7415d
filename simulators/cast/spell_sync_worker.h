// The finger of an aimed cast, and what the four triggers share.
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

// How far a cast has come.
enum SpellState : int {
  kSpellAiming = 1,
  kSpellCast = 4,
  kSpellFinished = 6,  // or given up
};

// One subclass, with one object, for each trigger. All drive the finger of SpellSlotManager, which the inner walk
// shares.
//
// Main thread. Presses, cancels and stick events block it for as long as their swipes take. An item passed in is the
// keymap's and valid during the call. The item in force is a copy of it, since a cast may outlive its keymap: a cancel
// runs on through a load, and a joystick keymap goes without a reset. It may also go, or be another one, after each
// line and each question to the host: a swipe whose cast is not in force any more stops where it is.
class SpellSyncWorker : public EventHandler {
  Q_OBJECT

 public:
  ~SpellSyncWorker() override;

  virtual void Press(tavikeymapmanager::SpellConfigItem* item, bool from_joystick) = 0;
  virtual void Release(tavikeymapmanager::SpellConfigItem* item, bool from_joystick) = 0;
  // Whether the event is used up.
  virtual bool OnMouseEvent(QMouseEvent* event) = 0;
  // Whether a cast in force must be finished when another key starts one.
  virtual bool NeedsFinish() const = 0;
  virtual void Finish() = 0;
  // One tick while the pointer aims.
  virtual void Follow();
  // Swipes to the cancel point of `item` and gives the cast up.
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
  // Where the skill button of `item` is.
  static QPoint PressPoint(const tavikeymapmanager::SpellConfigItem* item);
  // Where the pointer aims. The button, while the mouse is captured or a walk aims.
  static QPoint CalculateTargetPoint(const tavikeymapmanager::SpellConfigItem* item);
  // Puts the finger there, or down there; a point of (0, 0) lifts it.
  void MoveFinger(const QPoint& point);
  // From the button to the target. Blocks for the time of the swipe.
  void SwipeToTarget(const tavikeymapmanager::SpellConfigItem* item, const QPoint& from, const QPoint& to);
  // To where a cast is given up. Blocks likewise.
  void SwipeToCancel(const tavikeymapmanager::SpellConfigItem* item, const QPoint& from, const QPoint& to);
  // `state` is a SpellState; others mean nothing. Nothing is subscribed or ended without an item in force.
  // kSpellFinished drops the item. For kSpellAiming `pressed` is the keymap's own record of the item in force; without
  // it the copy is asked for the inner walk.
  void ChangeSpellState(int state, tavikeymapmanager::SpellConfigItem* pressed = nullptr);
  // Stops the walk if `item`, just cast, says so.
  void AfterCast(const tavikeymapmanager::SpellConfigItem* item);

  // The item in force, or null. The inner walk of an item of a derived class is known to the keymap's own record only,
  // not to the copy.
  const tavikeymapmanager::SpellConfigItem* GetSpellItem() const { return spell_item_.get(); }

 Q_SIGNALS:
  void sigSubscribeSwipehold();
  void sigUnSubscribeSwipehold();
  // `item` is the keymap's own, where it is known.
  void sigEntrustToInnerSwipehold(tavikeymapmanager::SpellConfigItem& item);
  // `item` is the copy. `not_sync_data`: the ordinary walk takes the keys over.
  void sigCancelEntrustToInnerSwipehold(tavikeymapmanager::SpellConfigItem& item, bool not_sync_data);

 public Q_SLOTS:
  // The time on the cancel point is over: lifts the finger.
  void CancelTimerOutTime();

 protected:
  SpellSyncWorker();

  // ---- What several triggers do alike ----
  // Presses and aims: a swipe from the button to the target, or the target alone where a walk or a stick aims.
  void PressAndAim(tavikeymapmanager::SpellConfigItem* item, bool from_joystick);
  // Casts if `item` has the key of the one in force.
  void CastOnRelease(tavikeymapmanager::SpellConfigItem* item);
  // Brings the finger back to the button and lifts it.
  void FinishAiming();

  // ---- The item in force ----
  // Puts a copy of `item` in force.
  void StoreItem(const tavikeymapmanager::SpellConfigItem& item);
  void DropItem();
  // For those that go on after a line or a question.
  unsigned CurrentCast() const { return casts_.Current(); }
  bool IsCastOver(unsigned cast) const { return casts_.IsOver(cast); }
  bool IsFromJoystick() const { return from_joystick_; }
  void SetFromJoystick(bool from_joystick) { from_joystick_ = from_joystick; }
  SpellState GetSpellState() const { return spell_state_; }

  // ---- The finger; display pixels ----
  void LiftFinger();
  // Puts the finger there, and blocks; nothing once `cast` is over.
  void StepTo(const QPoint& point, int pause_ms, unsigned cast);
  // Where the item in force sends the finger for a direction of the walk.
  QPoint WalkPoint(const QPointF& direction) const;

 private:
  void BeginAim(tavikeymapmanager::SpellConfigItem* pressed);
  void EndAim(bool not_sync_data);
  void SwipeAlongCurve(const tavikeymapmanager::SpellConfigItem& item, const QPoint& from, const QPoint& to,
                       unsigned cast);
  void LiftAfter(int delay_ms);
  // The finger on its way to `target`, in steps of that many pixels. Blocks for the time of the way.
  void SlideTowards(const QPoint& target, double step, unsigned cast);

  using Item = std::shared_ptr<tavikeymapmanager::SpellConfigItem>;

  Item spell_item_;  // also held by each operation that works with it
  Turns casts_;      // one begins as the item changes
  bool from_joystick_ = false;
  SpellState spell_state_ = kSpellFinished;
  QTimer* cancel_timer_;
  RelativeCounts accumulated_;  // since the aim began
  OneOffOffset spell_offset_;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_CAST_SPELL_SYNC_WORKER_H_
