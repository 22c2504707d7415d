#include "record/merge_record_actions.h"

#include <algorithm>

#include "record/record_action.h"
#include "record/record_format.h"

namespace taviinputmanager {

bool MergeRecordActions::IsEmpty() const {
  return std::all_of(items.begin(), items.end(), [](const auto& item) { return item->IsEmpty(); });
}

bool MergeRecordActions::First(RecordAction* action, int* delay) {
  delays_issued.clear();
  if (!RecordActions::First(action, delay)) return false;
  action_index = 0;
  current.reset();
  if (IsEmpty()) return false;
  return EnterCurrentItem(action, delay);
}

bool MergeRecordActions::Next(RecordAction* action, int* delay) {
  if (!current) return false;  // there was nothing to play
  if (current_plays_ && current->Next(action, delay)) return true;
  return Advance(action, delay);
}

bool MergeRecordActions::EnterCurrentItem(RecordAction* action, int* delay) {
  current = items.at(action_index);
  current->speed = current->control.speed_ratio * speed;
  current_plays_ = current->First(action, delay);
  return current_plays_ || Advance(action, delay);
}

bool MergeRecordActions::Advance(RecordAction* action, int* delay) {
  if (action_index >= items.size() - 1) {
    if (repeat_index >= control.repeat_times) return false;
    if (RepeatDelay(action, delay)) return true;
    ++repeat_index;
    action_index = 0;
    return EnterCurrentItem(action, delay);
  }

  const QPair<int, int> gap(action_index, repeat_index);
  if (delays_issued.contains(gap)) {
    ++action_index;
    return EnterCurrentItem(action, delay);
  }
  delays_issued.insert(gap);
  action->type = record_format::kTypeTimer;
  *delay = current->AtSpeed(current->control.till_next_item_delay);
  return true;
}

}  // namespace taviinputmanager
