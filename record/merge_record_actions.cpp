#include "record/merge_record_actions.h"

#include <algorithm>

#include "record/record_action.h"
#include "record/record_format.h"

namespace taviinputmanager {

bool MergeRecordActions::IsEmpty() const {
  return std::all_of(items.begin(), items.end(), [](const auto& item) { return !item || item->IsEmpty(); });
}

bool MergeRecordActions::IsThrough() const {
  const bool is_last_pass = repeat_index >= control.repeat_times;
  return (IsLastItem() && is_last_pass && (!current || current->IsThrough())) || IsEmpty();
}

bool MergeRecordActions::First(RecordAction* action, int* delay) {
  delays_issued.clear();
  if (!RecordActions::First(action, delay)) return false;
  action_index = 0;
  return EnterCurrentItem(action, delay);
}

bool MergeRecordActions::Next(RecordAction* action, int* delay) {
  if (NextOfItem(action, delay)) return true;
  return IsLastItem() ? RepeatList(action, delay) : LeaveItem(action, delay);
}

bool MergeRecordActions::EnterCurrentItem(RecordAction* action, int* delay) {
  current = items.value(action_index);
  if (!current) return false;
  current->speed = current->control.speed_ratio * speed;
  const bool has_action = current->First(action, delay);
  has_empty_item_ = !has_action && current->IsEmpty();
  return has_action;
}

bool MergeRecordActions::NextOfItem(RecordAction* action, int* delay) {
  if (!current || has_empty_item_) return false;
  while (!current->Next(action, delay)) {
    if (current->IsThrough()) return false;
  }
  return true;
}

bool MergeRecordActions::RepeatList(RecordAction* action, int* delay) {
  if (repeat_index >= control.repeat_times) return false;
  if (RepeatDelay(action, delay)) return true;
  ++repeat_index;
  action_index = 0;
  return EnterCurrentItem(action, delay);
}

bool MergeRecordActions::LeaveItem(RecordAction* action, int* delay) {
  const QPair<int, int> gap(action_index, repeat_index);
  if (delays_issued.contains(gap)) {
    ++action_index;
    return EnterCurrentItem(action, delay);
  }
  delays_issued.insert(gap);
  action->type = record_format::kTypeTimer;
  *delay = current ? current->AtSpeed(current->control.till_next_item_delay) : 0;
  return true;
}

}  // namespace taviinputmanager
