// A record of records: a playlist.
#ifndef RECORD_MERGE_RECORD_ACTIONS_H_
#define RECORD_MERGE_RECORD_ACTIONS_H_

#include <memory>

#include <QList>
#include <QPair>
#include <QSet>

#include "record/record_actions.h"

namespace taviinputmanager {

// Plays its items one after another, each with all its repeats, and repeats the whole as its own control says. Speeds
// multiply from level to level, anew at each entry into an item.
//
// Between two items there is one pause, also one of 0 ms, and also behind an item without actions. Behind the last item
// of a pass there is none. A list in which nothing has actions ends at once.
class MergeRecordActions : public RecordActions {
 public:
  using Items = QList<std::shared_ptr<RecordActions>>;

  bool First(RecordAction* action, int* delay) override;
  bool Next(RecordAction* action, int* delay) override;
  bool IsEmpty() const override;

  Items items;
  std::shared_ptr<RecordActions> current;  // the item that plays; null before the first
  // The pauses between items that were given in this run: (action_index, repeat_index). The item before a pause is
  // still `current` when it is over, so this is what tells that it is.
  QSet<QPair<int, int>> delays_issued;

 private:
  bool EnterCurrentItem(RecordAction* action, int* delay);
  // What follows an item that is through: a pause, the next item, the next repeat, or the end.
  bool Advance(RecordAction* action, int* delay);

  bool current_plays_ = false;  // false for an item that had no first action
};

}  // namespace taviinputmanager

#endif  // RECORD_MERGE_RECORD_ACTIONS_H_
