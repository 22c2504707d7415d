#include "record/single_record_actions.h"

#include "record/record_action.h"

namespace taviinputmanager {

SingleRecordActions::~SingleRecordActions() { qDeleteAll(actions); }

bool SingleRecordActions::First(RecordAction* action, int* delay) {
  if (!RecordActions::First(action, delay)) return false;
  action_index = 0;
  return FetchCurrent(action, delay);
}

bool SingleRecordActions::Next(RecordAction* action, int* delay) {
  ++action_index;
  if (FetchCurrent(action, delay)) return true;
  if (repeat_index >= control.repeat_times) return false;
  if (RepeatDelay(action, delay)) return true;  // the index stays past the end, so that the next call comes here again
  ++repeat_index;
  action_index = 0;
  return FetchCurrent(action, delay);
}

bool SingleRecordActions::FetchCurrent(RecordAction* action, int* delay) const {
  if (action_index >= actions.size()) return false;
  *action = *actions.at(action_index);
  *delay = AtSpeed(action->timing);
  return true;
}

}  // namespace taviinputmanager
