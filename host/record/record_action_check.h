// What a replay makes of single actions, seen from outside.
#ifndef HOST_RECORD_RECORD_ACTION_CHECK_H_
#define HOST_RECORD_RECORD_ACTION_CHECK_H_

#include <QPointF>
#include <QString>
#include <QVector>

namespace tavi {

struct RecordAction;

struct RecordContact {
  int slot = 0;   // the file's own number
  QPointF point;  // fractions of the display; of no meaning when the finger goes up
};

// A touch action taken apart.
struct RecordTouch {
  enum class Kind { kDropped, kPress, kRelease, kReset };

  Kind kind = Kind::kDropped;
  QVector<RecordContact> contacts;  // of a press or release: those that take part in it
  QString problem;                  // what is wrong, by the name of its key; empty when nothing is
};

RecordTouch ReadTouch(const RecordAction& action);

// "data: ...": what a replay drops of the action, or reads as something else; empty when all is well.
QString ActionProblem(const RecordAction& action);

}  // namespace tavi

#endif  // HOST_RECORD_RECORD_ACTION_CHECK_H_
