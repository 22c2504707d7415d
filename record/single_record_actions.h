// A record of a single recording.
#ifndef RECORD_SINGLE_RECORD_ACTIONS_H_
#define RECORD_SINGLE_RECORD_ACTIONS_H_

#include <QList>

#include "record/record_actions.h"

namespace taviinputmanager {

class SingleRecordActions : public RecordActions {
 public:
  ~SingleRecordActions() override;

  bool First(RecordAction* action, int* delay) override;
  bool Next(RecordAction* action, int* delay) override;
  bool IsEmpty() const override { return actions.isEmpty(); }

  QList<RecordAction*> actions;  // owned; none is null

 private:
  bool FetchCurrent(RecordAction* action, int* delay) const;
};

}  // namespace taviinputmanager

#endif  // RECORD_SINGLE_RECORD_ACTIONS_H_
