// The ways that a record's fingers take.
#ifndef HOST_RECORD_RECORD_PATHS_H_
#define HOST_RECORD_RECORD_PATHS_H_

#include <QMap>
#include <QPointF>
#include <QString>
#include <QVector>

#include "host/record/record_walk.h"

namespace tavi {

struct PathPoint {
  qint64 ms = 0;  // since the start
  QPointF point;  // fractions of the display
};

// One finger from going down to going up.
struct ContactPath {
  QVector<PathPoint> points;  // at least one
  bool is_up = false;         // it went up
  qint64 up_ms = 0;           // then
};

// One part of a merged record.
struct PartSpan {
  QString name;  // the file that it came from; may be empty
  qint64 start_ms = 0;
  qint64 end_ms = 0;
};

struct RecordPaths {
  QVector<ContactPath> contacts;    // in the order of going down
  QVector<PartSpan> parts;          // of a merged record, in the order of playing
  QMap<QString, qint64> not_drawn;  // actions of other types, repeats counted
  WalkResult walk;
};

// More than these would be neither seen nor opened by a viewer; ten minutes of moves at a good mouse's pace are fewer.
constexpr qint64 kMostDrawnSteps = 100000;

RecordPaths FollowContacts(const RecordPart& root);

}  // namespace tavi

#endif  // HOST_RECORD_RECORD_PATHS_H_
