// One stick that four keys hold: the timing of its contact.
#ifndef SIMULATORS_WALK_SWIPEHOLD_ASYNC_WORKER_H_
#define SIMULATORS_WALK_SWIPEHOLD_ASYNC_WORKER_H_

#include <optional>

#include <QPoint>
#include <QPointF>
#include <QTimer>

#include "core/event_handler.h"
#include "keymap/swipehold_config_item.h"
#include "simulators/walk/swipe_path.h"
#include "simulators/walk/swipe_wave.h"

namespace taviinputmanager {

class SwipeholdSlotManager;

// The state machine of a walk. The keys are in the slot manager with the same index; the running timer is the state:
//
//   idle ............ none, no key held
//   first slide ..... first_press_timer
//   holding ......... none, keys held
//   moving .......... subsequent_press_timer
//   wiggling ........ input_compensatory_timer
//   centre hold ..... hold_center_timer
//
// A walk of 6 steps, with 4 steps after a change of keys and a rest on the centre:
//
//   key down       first_press_delay_ms   first_press_step_ms
//   on the centre -------- step 1 ------- step 2 ... step 5 ------- exact target, (wiggle,) held
//   key change     subsequent_step_ms
//   -------------- step 1 - step 2 - step 3 - exact target, (wiggle,) held
//   last key up: on the centre for hold_center_ms, then up; without that rest, up
//   last key up during the slide: the next tick ends it, as above
//   "Click": no step; the first tick jumps to the target
//   a new key within press_gap_ms of the finger going up: the press blocks for the rest of the gap
//
// A walk keeps the values of the item that it began with; from a later press it takes only the keys and the
// subsequent_mode. The item is copied, because timers, replayed keys and releases may outlive its keymap: a reset stops
// no timer here.
//
// Main thread, despite the name.
class SwipeholdAsyncWorker : public EventHandler {
  Q_OBJECT

 public:
  // 0 walks. 1 is the inner walk of a cast and leaves the end of the contact, which it shares, to the cast. 2, the left
  // virtual stick, sends no lines and only reports its point; so does the one object that all other indexes share.
  static SwipeholdAsyncWorker* GetInstance(int index);

  // Does nothing unless `item` is a SwipeholdConfigItem. A press may block for the press gap.
  virtual void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key);
  virtual void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key);
  // Takes over the keys of another walk, given as its flag words: unless they are already this walk's, starts again and
  // presses all of them. Does nothing without an item.
  virtual void ReplayDirections(QPoint flags);

  // The item whose keys ReplayDirections presses; copied. Null: none.
  void SetItem(const tavikeymapmanager::SwipeholdConfigItem* item);

  int GetIndex() const { return index_; }
  // The stick's target from the keys, in radii from its centre. (0, 0) without a key, and for a stick without a radius.
  QPointF GetCurrentPoint() const;
  // The flag words of the keys.
  QPoint GetDirections() const;

  // Resets the walk and releases the contact, regardless of its owner.
  void StopAndRelease();
  // Resets the walk and sends nothing.
  void ClearAll();
  // Ends a first slide at its next tick.
  void ClearPath();
  // A stick at rest moves to its new radius at once, any other with its next target.
  void SetRadiusFactor(double factor);

 Q_SIGNALS:
  // The stick, in radii from its centre; (0, 0) when it is released.
  void sigSwipeholdTargetPointChanged(QPointF& point);
  // For listeners; not emitted.
  void sigSwipeholdDirectionInputDataChanged(QPoint& point);

 public Q_SLOTS:
  void FirstPressTimerOutTime();
  void HoldCenterTimerOutTime();
  void SubsequentPressTimerOutTime();
  void InputCompensatoryTimerOutTime();

 private:
  explicit SwipeholdAsyncWorker(int index);
  ~SwipeholdAsyncWorker() override;

  SwipeholdSlotManager* Slot() const;
  void SetUpTimer(QTimer* timer, void (SwipeholdAsyncWorker::*slot)());

  // Holds or releases the direction of `item` that belongs to `key`.
  void ApplyKey(const tavikeymapmanager::SwipeholdConfigItem& item, const tavikeymapmanager::ConfigKey& key,
                bool pressed);
  const tavikeymapmanager::ConfigKey& KeyOf(int direction) const;
  void StartWalk();
  void WaitForPressGap();
  // Continues the walk after a change of its keys.
  void FollowKeys(const QString& subsequent_mode);
  void RetargetSlide();
  // Moves the contact by calling `move`, and reports it: the host may end the walk during the call.
  void MoveAlong(QPoint pixels, const QTimer& move);
  void StartSubsequentMove();
  // Jumps to the keys' target: the exact position, or the end of the walk.
  void ApplyDirectionState();
  void RestOnTarget();
  void LetGo();
  void StopWave();

  // `pixels` in radii from the centre.
  QPointF ToStick(const QPointF& pixels) const;
  void Report(QPointF point);

  std::optional<tavikeymapmanager::SwipeholdConfigItem> item_;  // of the last press
  tavikeymapmanager::SwipeholdConfigItem walk_;                 // from the start of the walk
  QTimer first_press_timer_;
  QTimer hold_center_timer_;
  QTimer subsequent_press_timer_;
  QTimer input_compensatory_timer_;
  SwipePath path_;
  SwipeWave wave_;
  int move_count_ = 0;        // ticks of the subsequent move
  QPointF position_;          // the contact's position after the last jump or subsequent move, pixels
  QPointF move_delta_;        // of each tick of the subsequent move
  qint64 last_release_time_;  // ms since the epoch
  int index_;
  bool keep_contact_;  // the end of the walk does not release the contact
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_WALK_SWIPEHOLD_ASYNC_WORKER_H_
