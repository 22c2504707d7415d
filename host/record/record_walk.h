// Walks a record from its first action to its last, as a replay does.
#ifndef HOST_RECORD_RECORD_WALK_H_
#define HOST_RECORD_RECORD_WALK_H_

#include <functional>

#include <QtGlobal>

namespace tavi {

struct RecordAction;
struct RecordPart;

struct WalkStep {
  qint64 at_ms = 0;                      // since the start
  int part = 0;                          // the index of a merged record's part; 0 in a single record
  const RecordAction* action = nullptr;  // null for a pause between repeats or parts, which ends at this time
};

struct WalkResult {
  enum class End {
    kComplete,
    kNoType,  // at an action without a type
    kLimit    // after the maximum number of steps
  };

  qint64 total_ms = 0;  // until the last step
  qint64 actions = 0;   // including repeats
  End end = End::kComplete;
};

// Nested repeats can make a short file play for years; nobody examines more steps than this.
constexpr qint64 kLongestWalk = 1000000;

// Calls `visit` for each step in order, for at most `most_steps`. `speed` is the replay's own, above 0.
WalkResult WalkRecord(const RecordPart& root, double speed, const std::function<void(const WalkStep&)>& visit,
                      qint64 most_steps = kLongestWalk);

}  // namespace tavi

#endif  // HOST_RECORD_RECORD_WALK_H_
