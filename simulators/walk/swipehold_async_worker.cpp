#include "simulators/walk/swipehold_async_worker.h"

#include <algorithm>

#include "core/clock.h"
#include "core/line_buffer.h"
#include "core/numbers.h"
#include "keymap/keymap_functions.h"
#include "simulators/direction_of_key.h"
#include "slots/swipehold_slot_manager.h"

namespace taviinputmanager {

namespace keywords = tavikeymapmanager::keywords;
using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::SwipeholdConfigItem;

namespace {

constexpr int kInnerIndex = 1;

// A timer with a negative interval would be active but never fire.
void StartTimer(QTimer* timer, int ms) { timer->start(std::max(ms, 0)); }

}  // namespace

SwipeholdAsyncWorker* SwipeholdAsyncWorker::GetInstance(int index) {
  switch (index) {
    case 0: {
      static SwipeholdAsyncWorker walk(0);
      return &walk;
    }
    case kInnerIndex: {
      static SwipeholdAsyncWorker inner(kInnerIndex);
      return &inner;
    }
    case 2: {
      static SwipeholdAsyncWorker left_stick(2);
      return &left_stick;
    }
    default: {
      static SwipeholdAsyncWorker other(index);
      other.index_ = index;
      return &other;
    }
  }
}

SwipeholdAsyncWorker::SwipeholdAsyncWorker(int index)
    : last_release_time_(Clock::NowMs()), index_(index), keep_contact_(index == kInnerIndex) {
  SetUpTimer(&first_press_timer_, &SwipeholdAsyncWorker::FirstPressTimerOutTime);
  SetUpTimer(&hold_center_timer_, &SwipeholdAsyncWorker::HoldCenterTimerOutTime);
  SetUpTimer(&subsequent_press_timer_, &SwipeholdAsyncWorker::SubsequentPressTimerOutTime);
  SetUpTimer(&input_compensatory_timer_, &SwipeholdAsyncWorker::InputCompensatoryTimerOutTime);
}

SwipeholdAsyncWorker::~SwipeholdAsyncWorker() = default;

void SwipeholdAsyncWorker::SetUpTimer(QTimer* timer, void (SwipeholdAsyncWorker::*slot)()) {
  timer->setTimerType(Qt::PreciseTimer);
  connect(timer, &QTimer::timeout, this, slot);
}

SwipeholdSlotManager* SwipeholdAsyncWorker::Slot() const { return SwipeholdSlotManager::GetInstance(index_); }

// ---- Keys ----

void SwipeholdAsyncWorker::Press(ConfigItem* item, ConfigKey* key) {
  const auto* stick = dynamic_cast<const SwipeholdConfigItem*>(item);
  if (!stick) return;  // not four keys
  SetItem(stick);
  const bool is_under_way = Slot()->HasTouch();
  ApplyKey(*item_, *key, true);
  if (is_under_way) return FollowKeys(item_->subsequent_mode);
  StartWalk();
}

void SwipeholdAsyncWorker::Release(ConfigItem* item, ConfigKey* key) {
  const auto* stick = dynamic_cast<const SwipeholdConfigItem*>(item);
  if (!stick) return;  // not four keys
  if (input_compensatory_timer_.isActive()) StopWave();
  if (!Slot()->HasTouch()) return;  // nothing was pressed, or a reset has cleared it
  ApplyKey(*stick, *key, false);
  FollowKeys(walk_.subsequent_mode);
}

void SwipeholdAsyncWorker::ReplayDirections(QPoint flags) {
  if (!item_) return;  // there are no keys to press
  const QList<int> directions =
      Slot()->DiffDirections(static_cast<quint32>(flags.x()), static_cast<quint32>(flags.y()));
  if (directions.isEmpty()) return;
  ClearAll();
  // All before the first line: a key that is released during a call to the host must find itself held.
  for (const int direction : directions) {
    // As if from the keyboard, regardless of the device of the configured key.
    ApplyKey(*item_,
             tavikeymapmanager::CreateConfigKey(keywords::kDeviceKeyboard, tavikeymapmanager::kUnsetCode,
                                                KeyOf(direction).scancode),
             true);
  }
  StartWalk();
}

void SwipeholdAsyncWorker::SetItem(const SwipeholdConfigItem* item) {
  if (!item) return item_.reset();
  if (!item_) {
    item_.emplace(*item);
  } else if (item != &*item_) {
    *item_ = *item;
  }
}

void SwipeholdAsyncWorker::ApplyKey(const SwipeholdConfigItem& item, const ConfigKey& key, bool pressed) {
  Slot()->SetDirectionKey(DirectionOfKey(item, key), pressed);
}

const ConfigKey& SwipeholdAsyncWorker::KeyOf(int direction) const {
  switch (direction) {
    case kDirectionUp: return item_->key_up;
    case kDirectionDown: return item_->key_down;
    case kDirectionLeft: return item_->key_left;
    default: return item_->key_right;
  }
}

void SwipeholdAsyncWorker::FollowKeys(const QString& subsequent_mode) {
  if (first_press_timer_.isActive()) return RetargetSlide();
  if (subsequent_mode == keywords::kSubsequentMove) return StartSubsequentMove();
  ApplyDirectionState();
}

// ---- First slide ----

void SwipeholdAsyncWorker::StartWalk() {
  WaitForPressGap();
  SwipeholdSlotManager* slot = Slot();
  const LineBuffer centre =
      item_->no_center_press ? LineBuffer() : slot->RelativePressLineAt(item_->rel_x, item_->rel_y);
  hold_center_timer_.stop();
  walk_ = *item_;
  StartTimer(&first_press_timer_, walk_.first_press_delay_ms);
  slot->Configure({walk_.rel_x, walk_.rel_y}, walk_.radius, walk_.opposite_keys_mode == keywords::kOppositeJustUseLast);
  path_.start = path_.current = slot->GetCenter();
  path_.remaining = walk_.first_press_steps;
  path_.mode = walk_.variable_mode;
  RetargetSlide();
  SendEvent(centre);
}

void SwipeholdAsyncWorker::WaitForPressGap() {
  // A contact that rests on the centre has not been released, so there is no gap to keep. The slot of the walk is
  // checked first.
  if (walk_.hold_center_ms != 0 || item_->press_gap_ms <= 0) return;
  const qint64 elapsed = Clock::NowMs() - last_release_time_;
  if (elapsed >= item_->press_gap_ms) return;
  // Without the pause the guest would merge two walks. If the clock was set back, the pause is still no longer than the
  // gap.
  Clock::Sleep(item_->press_gap_ms - static_cast<int>(std::max<qint64>(elapsed, 0)));
}

void SwipeholdAsyncWorker::RetargetSlide() {
  path_.target = Slot()->GetTargetPoint();
  path_.Rebuild();
}

void SwipeholdAsyncWorker::FirstPressTimerOutTime() {
  const bool is_click = walk_.press_mode == keywords::kPressClick;
  if (is_click || !path_.HasStep()) {
    first_press_timer_.stop();
    return ApplyDirectionState();
  }
  path_.TakeStep();
  StartTimer(&first_press_timer_, walk_.first_press_step_ms);
  MoveAlong(path_.current, first_press_timer_);
}

void SwipeholdAsyncWorker::MoveAlong(QPoint pixels, const QTimer& move) {
  const LineBuffer line = Slot()->PressLineAt(pixels.x(), pixels.y());
  if (!move.isActive()) return;  // the host ended the walk when it was asked for its display
  SendEvent(line);
  if (move.isActive()) Report(ToStick(pixels));
}

// ---- Subsequent moves ----

void SwipeholdAsyncWorker::StartSubsequentMove() {
  if (!Slot()->HasTouch()) {
    subsequent_press_timer_.stop();
    return ApplyDirectionState();
  }
  move_delta_ = (Slot()->GetTargetPoint() - position_) / std::max(walk_.subsequent_steps, 1);
  move_count_ = 0;
  if (!subsequent_press_timer_.isActive()) StartTimer(&subsequent_press_timer_, walk_.subsequent_step_ms);
}

void SwipeholdAsyncWorker::SubsequentPressTimerOutTime() {
  ++move_count_;
  if (walk_.subsequent_steps < 1 || move_count_ == walk_.subsequent_steps) {
    subsequent_press_timer_.stop();
    return ApplyDirectionState();
  }
  position_ += move_delta_;
  MoveAlong({Round(position_.x()), Round(position_.y())}, subsequent_press_timer_);
}

// ---- At the target, and the end ----

void SwipeholdAsyncWorker::ApplyDirectionState() {
  if (Slot()->HasTouch()) return RestOnTarget();
  if (walk_.hold_center_ms <= 0) {
    last_release_time_ = Clock::NowMs();
    return LetGo();
  }
  StartTimer(&hold_center_timer_, walk_.hold_center_ms);
  SendEvent(Slot()->RelativePressLineAt(walk_.rel_x, walk_.rel_y));
  if (!Slot()->HasTouch()) Report(QPointF());
}

void SwipeholdAsyncWorker::RestOnTarget() {
  const QPoint target = Slot()->GetTargetPoint();
  position_ = target;
  if (walk_.compensate) {
    wave_.Start(target);
    StartTimer(&input_compensatory_timer_, walk_.compensate_interval_ms);
  }
  SendEvent(Slot()->UpdateLine());
  if (Slot()->HasTouch()) Report(ToStick(target));
}

void SwipeholdAsyncWorker::LetGo() {
  if (!keep_contact_) SendEvent(Slot()->ReleaseLine());
  if (!Slot()->HasTouch()) Report(QPointF());
}

void SwipeholdAsyncWorker::HoldCenterTimerOutTime() {
  hold_center_timer_.stop();
  LetGo();
}

void SwipeholdAsyncWorker::InputCompensatoryTimerOutTime() {
  const bool is_moving =
      first_press_timer_.isActive() || hold_center_timer_.isActive() || subsequent_press_timer_.isActive();
  if (!walk_.compensate || is_moving) return input_compensatory_timer_.stop();
  if (walk_.compensate_steps < 2) input_compensatory_timer_.stop();  // after this tick
  const auto pixels = wave_.Tick(walk_, Slot()->GetCenter(), Slot()->GetRadius());
  if (wave_.GetRound() == walk_.compensate_rounds) StopWave();
  if (!pixels) return;
  const bool was_held = Slot()->HasTouch();  // a reset does not stop the wave
  const LineBuffer line = Slot()->PressLineAt(Round(pixels->x()), Round(pixels->y()));
  if (Slot()->HasTouch() == was_held) SendEvent(line);
}

void SwipeholdAsyncWorker::StopWave() {
  wave_.Rewind();
  input_compensatory_timer_.stop();
}

// ---- From outside ----

void SwipeholdAsyncWorker::StopAndRelease() {
  ClearAll();
  SendEvent(Slot()->ReleaseLine());
}

void SwipeholdAsyncWorker::ClearAll() {
  ClearPath();
  for (QTimer* timer :
       {&first_press_timer_, &hold_center_timer_, &subsequent_press_timer_, &input_compensatory_timer_}) {
    timer->stop();
  }
  Slot()->Reset();
}

void SwipeholdAsyncWorker::ClearPath() { path_.Clear(); }

void SwipeholdAsyncWorker::SetRadiusFactor(double factor) {
  Slot()->SetRadiusFactor(factor);
  const bool is_timed = first_press_timer_.isActive() || hold_center_timer_.isActive() ||
                        subsequent_press_timer_.isActive() || input_compensatory_timer_.isActive();
  if (Slot()->HasTouch() && !is_timed) ApplyDirectionState();
}

// ---- What others learn ----

QPointF SwipeholdAsyncWorker::GetCurrentPoint() const {
  return Slot()->HasTouch() ? ToStick(Slot()->GetTargetPoint()) : QPointF();
}

QPoint SwipeholdAsyncWorker::GetDirections() const {
  return {static_cast<int>(Slot()->GetDirectionX()), static_cast<int>(Slot()->GetDirectionY())};
}

QPointF SwipeholdAsyncWorker::ToStick(const QPointF& pixels) const {
  const int radius = Slot()->GetRadius();
  if (radius == 0) return {};
  return (pixels - Slot()->GetCenter()) / radius;
}

void SwipeholdAsyncWorker::Report(QPointF point) { Q_EMIT sigSwipeholdTargetPointChanged(point); }

}  // namespace taviinputmanager
