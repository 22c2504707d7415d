// What a replay walks: a sequence of actions that knows its repeats, its pauses and its speed.
#ifndef RECORD_RECORD_ACTIONS_H_
#define RECORD_RECORD_ACTIONS_H_

#include "taviinputmanager/types.h"

namespace taviinputmanager {

struct RecordAction;

// The base of both shapes of a record. First starts over and gives the first action, Next each further one; both give
// the milliseconds to wait before it, and false when there is none. A pause comes as an action of type "timer".
//
// Pauses and timings are divided by the speed and truncated, one by one: no rest is carried on.
//
// Threads: made on the main thread, then used by one replay on that one's thread.
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
  // After a false: whether that was the end. Else an item had nothing to play, and Next goes on behind it.
  virtual bool IsThrough() const { return true; }

  // The pause between this repeat and the next; false when it was given already, or when there is none. Other fields of
  // the action than its type stay.
  bool RepeatDelay(RecordAction* action, int* delay);
  // Milliseconds at normal speed to milliseconds at `speed`.
  int AtSpeed(int ms) const;

  int repeat_index = 1;      // the repeat that is playing, from 1
  int delay_issued_for = 0;  // the repeat after which a pause was given last
  int action_index = 0;
  double speed = 1.0;  // of this level and all above it; 0 and below play at normal speed
  MergeParam control;
};

}  // namespace taviinputmanager

#endif  // RECORD_RECORD_ACTIONS_H_
