// One step of a record.
#ifndef RECORD_RECORD_ACTION_H_
#define RECORD_RECORD_ACTION_H_

#include <QString>

namespace taviinputmanager {

// What happened, and how long after the previous step. An action without a type ends a replay.
struct RecordAction {
  int timing = 0;  // milliseconds at normal speed; for the first action, since the start
  QString type;    // the family; see record_format.h
  QString data;    // what to do
  QString extra1;
  QString extra2;
};

}  // namespace taviinputmanager

#endif  // RECORD_RECORD_ACTION_H_
