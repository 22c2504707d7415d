#include "record/replay_context.h"

#include "core/numbers.h"
#include "record/record_actions.h"

namespace taviinputmanager {

void ReplayContext::ApplySpeed(double ratio) {
  if (actions) actions->speed = ratio * actions->control.speed_ratio;
}

void ReplayContext::First() {
  current_action = RecordAction();
  if (actions && !actions->First(&current_action, &next_delay)) SkipWhatIsEmpty();
}

void ReplayContext::Next() {
  current_action = RecordAction();
  if (actions && !actions->Next(&current_action, &next_delay)) SkipWhatIsEmpty();
}

void ReplayContext::SkipWhatIsEmpty() {
  while (!actions->IsThrough() && !actions->Next(&current_action, &next_delay)) {
  }
}

bool ReplayContext::CurrentAction(RecordAction* out) const {
  if (!out) return false;
  *out = current_action;
  return !current_action.type.isEmpty();
}

void ReplayContext::ReduceDelay(int elapsed) {
  if (elapsed < next_delay) {
    next_delay = AddSaturated(next_delay, NegateSaturated(elapsed));  // a clock that was set back adds time
  } else {
    next_delay = 0;
  }
}

}  // namespace taviinputmanager
