// A list of actions that grows as time passes.
#ifndef RECORD_ACTION_TRACK_H_
#define RECORD_ACTION_TRACK_H_

#include <memory>
#include <utility>

#include <QList>

#include "record/json/shared_texts.h"
#include "record/record_action.h"

namespace taviinputmanager {

// Each action's timing is the gap to the one before it, from the low 32 bits of both times.
class ActionTrack {
 public:
  ActionTrack();
  ActionTrack(const ActionTrack&) = delete;
  ActionTrack& operator=(const ActionTrack&) = delete;
  ~ActionTrack();

  // Empty again, and the gap before the first action begins now.
  void Start();
  // `action` as it is, but for its timing.
  void Add(RecordAction action);
  void Add(std::unique_ptr<RecordAction> action);
  void Clear();
  // What was recorded, which is the caller's from then on; empty again.
  QList<RecordAction*> Take() { return std::exchange(actions_, {}); }
  // Goes on as if the time since `pause_time`, milliseconds since the epoch, had not passed.
  void SkipSince(qint64 pause_time);

  const QList<RecordAction*>& Actions() const { return actions_; }

 private:
  qint64 last_time_;              // of the last action or of the start, milliseconds since the epoch
  QList<RecordAction*> actions_;  // owned
  SharedTexts texts_;             // a long recording has few words
};

}  // namespace taviinputmanager

#endif  // RECORD_ACTION_TRACK_H_
