// How a replay interprets single actions, seen from outside.
#ifndef HOST_RECORD_RECORD_ACTION_CHECK_H_
#define HOST_RECORD_RECORD_ACTION_CHECK_H_

#include <QPointF>
#include <QString>
#include <QVector>

namespace tavi {

struct RecordAction;

struct RecordContact {
  int slot = 0;   // the file's own number
  QPointF point;  // fractions of the display; meaningless for a release
};

// A parsed touch action.
struct RecordTouch {
  enum class Kind { kDropped, kPress, kRelease, kReset };

  Kind kind = Kind::kDropped;
  QVector<RecordContact> contacts;  // the contacts of a press or release
  QString problem;                  // the diagnostic, with the name of its key; empty if there is none
};

RecordTouch ReadTouch(const RecordAction& action);

// "data: ...": what a replay drops of the action, or reads differently; empty if nothing.
QString ActionProblem(const RecordAction& action);

}  // namespace tavi

#endif  // HOST_RECORD_RECORD_ACTION_CHECK_H_
