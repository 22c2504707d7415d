// The position of a replay in its record.
#ifndef RECORD_REPLAY_CONTEXT_H_
#define RECORD_REPLAY_CONTEXT_H_

#include <memory>

#include "record/record_action.h"
#include "taviinputmanager/types.h"

namespace taviinputmanager {

class RecordActions;

// Filled by RecordFileUtils::LoadRecord, then used by one replay on its thread.
struct ReplayContext {
  std::shared_ptr<RecordActions> actions;
  RecordInfo info;
  RecordAction current_action;  // the action due next; one without a type means none
  double speed_ratio = 1.0;     // not read: the speed is in `actions`
  int next_delay = 0;           // milliseconds from now to current_action

  // Sets the speed of the whole record, multiplied by the one of its own control.
  void ApplySpeed(double ratio);
  // Move to the first action, and to the next one.
  void First();
  void Next();
  // Copies the action that is due next. False if there is none, or if `action` is null.
  bool CurrentAction(RecordAction* out) const;
  // Subtracts elapsed time, in milliseconds, from the delay; at least 0 remains.
  void ReduceDelay(int elapsed);

 private:
  // Moves to the next action after items of a merged record without actions.
  void SkipWhatIsEmpty();
};

}  // namespace taviinputmanager

#endif  // RECORD_REPLAY_CONTEXT_H_
