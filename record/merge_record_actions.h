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
// of a pass there is none. An item without actions, which a list of nothing but such items is too, plays nothing else:
// neither its repeats nor pauses of its own. First and Next give false where they enter one, and the Next after that
// gives the pause behind it. Within an inner list Next goes on by itself.
class MergeRecordActions : public RecordActions {
 public:
  using Items = QList<std::shared_ptr<RecordActions>>;

  bool First(RecordAction* action, int* delay) override;
  bool Next(RecordAction* action, int* delay) override;
  // Whether no item has actions.
  bool IsEmpty() const override;
  bool IsThrough() const override;

  Items items;                             // one that is null has nothing to play
  std::shared_ptr<RecordActions> current;  // the item that plays; null before the first
  // The pauses between items that were given in this run: (action_index, repeat_index). The item before a pause is
  // still `current` when it is over, so this is what tells that it is.
  QSet<QPair<int, int>> delays_issued;

 private:
  bool EnterCurrentItem(RecordAction* action, int* delay);
  // The next step of the item that plays; of an inner list, past its items without actions.
  bool NextOfItem(RecordAction* action, int* delay);
  bool IsLastItem() const { return action_index >= items.size() - 1; }
  // What follows the last item: the list's own pause, its next repeat, or the end.
  bool RepeatList(RecordAction* action, int* delay);
  // What follows any other: a pause, and at the next call the next item.
  bool LeaveItem(RecordAction* action, int* delay);

  bool has_empty_item_ = false;  // `current` was entered and is empty
};

}  // namespace taviinputmanager

#endif  // RECORD_MERGE_RECORD_ACTIONS_H_
