#include "host/record/record_walk.h"

#include <algorithm>
#include <limits>

#include "host/record/record_file.h"

namespace tavi {

using End = WalkResult::End;

namespace {

// Each delay is truncated separately, as in a replay; a value that is not a number counts as none.
int AtSpeed(int ms, double speed) {
  const double delay = 1.0 / (speed > 0 ? speed : 1.0) * ms;
  if (!(delay > 0)) return 0;
  return static_cast<int>(std::min<double>(delay, std::numeric_limits<int>::max()));
}

bool HasActions(const RecordPart& part) {
  return !part.actions.empty() || std::any_of(part.parts.begin(), part.parts.end(), HasActions);
}

// Functions that take a step return whether to continue.
class Walker {
 public:
  Walker(const std::function<void(const WalkStep&)>& visit, qint64 most_steps)
      : visit_(visit), steps_left_(most_steps) {}

  WalkResult Walk(const RecordPart& root, double speed) {
    WalkList(root, speed * root.control.speed_ratio, true);
    return result_;
  }

 private:
  // A list without anything to play is not repeated either.
  bool WalkList(const RecordPart& list, double speed, bool is_root) {
    if (!HasActions(list)) return true;
    for (int repeat = 1;; ++repeat) {
      if (!(list.is_merged ? WalkParts(list, speed, is_root) : WalkActions(list, speed))) return false;
      if (repeat >= list.control.repeat_times) return true;
      if (list.control.repeat_delay > 0 && !Pause(AtSpeed(list.control.repeat_delay, speed))) return false;
    }
  }

  bool WalkActions(const RecordPart& list, double speed) {
    return std::all_of(list.actions.begin(), list.actions.end(),
                       [&](const RecordAction& action) { return Act(action, AtSpeed(action.timing, speed)); });
  }

  bool WalkParts(const RecordPart& list, double speed, bool is_root) {
    const int count = static_cast<int>(list.parts.size());
    for (int i = 0; i < count; ++i) {
      const RecordPart& part = list.parts[static_cast<std::size_t>(i)];
      const double part_speed = speed * part.control.speed_ratio;
      if (is_root) part_ = i;
      if (!WalkList(part, part_speed, false)) return false;
      if (i < count - 1 && !Pause(AtSpeed(part.control.till_next_item_delay, part_speed))) return false;
    }
    return true;
  }

  bool Act(const RecordAction& action, int delay_ms) {
    if (action.type.isEmpty()) return Stop(End::kNoType);  // immediately, without its delay
    if (!Step(delay_ms, &action)) return false;
    ++result_.actions;
    return true;
  }

  bool Pause(int delay_ms) { return Step(delay_ms, nullptr); }

  bool Step(int delay_ms, const RecordAction* action) {
    if (steps_left_ == 0) return Stop(End::kLimit);
    --steps_left_;
    result_.total_ms += delay_ms;
    visit_({result_.total_ms, part_, action});
    return true;
  }

  bool Stop(End end) {
    result_.end = end;
    return false;
  }

  const std::function<void(const WalkStep&)>& visit_;
  WalkResult result_;
  qint64 steps_left_;
  int part_ = 0;
};

}  // namespace

WalkResult WalkRecord(const RecordPart& root, double speed, const std::function<void(const WalkStep&)>& visit,
                      qint64 most_steps) {
  return Walker(visit, most_steps).Walk(root, speed);
}

}  // namespace tavi
