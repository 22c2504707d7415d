// A sequence of actions with its repeats, its pauses and its speed, as a replay plays it.
#ifndef RECORD_RECORD_ACTIONS_H_
#define RECORD_RECORD_ACTIONS_H_

#include "taviinputmanager/types.h"

namespace taviinputmanager {

struct RecordAction;

// The base class of both kinds of record. First starts again and returns the first action, Next each further one; both
// set the milliseconds to wait before it, and return false if there is none. A pause is an action of type "timer".
//
// Pauses and timings are divided by the speed and truncated, one by one: remainders are not carried over.
//
// Threads: created on the main thread, then used by one replay on its thread.
class RecordActions {
 public:
  RecordActions() = default;
  RecordActions(const RecordActions&) = delete;
  RecordActions& operator=(const RecordActions&) = delete;
  virtual ~RecordActions() = default;

  virtual bool First(RecordAction* action, int* delay);
  virtual bool Next(RecordAction* action, int* delay);
  // Whether there is nothing to play at all.
  virtual bool IsEmpty() const { return false; }
  // After a false: whether that was the end. Otherwise an item had nothing to play, and Next continues after it.
  virtual bool IsThrough() const { return true; }

  // The pause between this repeat and the next; false if it was given already, or if there is none. Only the type of
  // the action is set.
  bool RepeatDelay(RecordAction* action, int* delay);
  // Converts milliseconds at normal speed to milliseconds at `speed`.
  int AtSpeed(int ms) const;

  int repeat_index = 1;      // the current repeat, from 1
  int delay_issued_for = 0;  // the repeat after which the last pause was given
  int action_index = 0;
  double speed = 1.0;  // of this level multiplied by all above it; 0 and below mean normal speed
  MergeParam control;
};

}  // namespace taviinputmanager

#endif  // RECORD_RECORD_ACTIONS_H_
