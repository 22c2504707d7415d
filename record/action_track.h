// A list of actions with their times.
#ifndef RECORD_ACTION_TRACK_H_
#define RECORD_ACTION_TRACK_H_

#include <memory>
#include <utility>

#include <QList>

#include "record/json/shared_texts.h"
#include "record/record_action.h"

namespace taviinputmanager {

// Each action's timing is the time since the previous one, from the low 32 bits of both times.
class ActionTrack {
 public:
  ActionTrack();
  ActionTrack(const ActionTrack&) = delete;
  ActionTrack& operator=(const ActionTrack&) = delete;
  ~ActionTrack();

  // Clears the list; the time before the first action starts now.
  void Start();
  // Adds `action` unchanged, except its timing.
  void Add(RecordAction action);
  void Add(std::unique_ptr<RecordAction> action);
  void Clear();
  // Returns the recording, which the caller then owns; the list is empty afterwards.
  QList<RecordAction*> Take() { return std::exchange(actions_, {}); }
  // Continues as if the time since `pause_time`, milliseconds since the epoch, had not passed.
  void SkipSince(qint64 pause_time);

  const QList<RecordAction*>& Actions() const { return actions_; }

 private:
  qint64 last_time_;              // time of the last action or of the start, milliseconds since the epoch
  QList<RecordAction*> actions_;  // owned
  SharedTexts texts_;             // a long recording has few different words
};

}  // namespace taviinputmanager

#endif  // RECORD_ACTION_TRACK_H_
