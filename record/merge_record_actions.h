// A record of records: a playlist.
#ifndef RECORD_MERGE_RECORD_ACTIONS_H_
#define RECORD_MERGE_RECORD_ACTIONS_H_

#include <memory>

#include <QList>
#include <QPair>
#include <QSet>

#include "record/record_actions.h"

namespace taviinputmanager {

// Plays its items in turn, each with all its repeats, and repeats the whole according to its own control. Speeds are
// multiplied over the levels, again at each entry into an item.
//
// Between two items there is one pause, even of 0 ms, and even after an item without actions. After the last item of a
// pass there is none. An item without actions, such as a list of only such items, plays nothing else: neither its
// repeats nor its own pauses. First and Next return false when they enter one, and the next call of Next gives the
// pause after it. Within an inner list Next continues by itself.
class MergeRecordActions : public RecordActions {
 public:
  using Items = QList<std::shared_ptr<RecordActions>>;

  bool First(RecordAction* action, int* delay) override;
  bool Next(RecordAction* action, int* delay) override;
  // Whether no item has actions.
  bool IsEmpty() const override;
  bool IsThrough() const override;

  Items items;                             // a null item has nothing to play
  std::shared_ptr<RecordActions> current;  // the current item; null before the first
  // The pauses between items that were given in this run: (action_index, repeat_index). The item before a pause is
  // still `current` when the pause is over, so this shows that it is.
  QSet<QPair<int, int>> delays_issued;

 private:
  bool EnterCurrentItem(RecordAction* action, int* delay);
  // The next step of the current item; in an inner list, past its items without actions.
  bool NextOfItem(RecordAction* action, int* delay);
  bool IsLastItem() const { return action_index >= items.size() - 1; }
  // What follows the last item: the list's own pause, its next repeat, or the end.
  bool RepeatList(RecordAction* action, int* delay);
  // What follows any other item: a pause, and at the next call the next item.
  bool LeaveItem(RecordAction* action, int* delay);

  bool has_empty_item_ = false;  // `current` was entered and is empty
};

}  // namespace taviinputmanager

#endif  // RECORD_MERGE_RECORD_ACTIONS_H_
