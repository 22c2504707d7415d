// Where a replay stands in its record.
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
  RecordAction current_action;  // due next; one without a type is none
  double speed_ratio = 1.0;     // not read: the speed is in `actions`
  int next_delay = 0;           // milliseconds from now to current_action

  // Sets the speed of the whole record, on top of what its own control says.
  void ApplySpeed(double ratio);
  // Moves to the first action, and to the next one.
  void First();
  void Next();
  // Copies the action that is due next. False when there is none, or no place to copy it to.
  bool CurrentAction(RecordAction* out) const;
  // Takes time that has passed, in milliseconds, off the delay; 0 is its floor.
  void ReduceDelay(int elapsed);

 private:
  // To the next action behind items of a merged record that have none.
  void SkipWhatIsEmpty();
};

}  // namespace taviinputmanager

#endif  // RECORD_REPLAY_CONTEXT_H_
