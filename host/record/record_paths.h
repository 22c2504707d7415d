// The paths of a record's fingers.
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

// One finger from press to release.
struct ContactPath {
  QVector<PathPoint> points;  // at least one
  bool is_up = false;         // it was lifted
  qint64 up_ms = 0;           // its time, if so
};

// One part of a merged record.
struct PartSpan {
  QString name;  // the file that it came from; may be empty
  qint64 start_ms = 0;
  qint64 end_ms = 0;
};

struct RecordPaths {
  QVector<ContactPath> contacts;    // in order of presses
  QVector<PartSpan> parts;          // for a merged record, in playing order
  QMap<QString, qint64> not_drawn;  // the number of actions of other types, including repeats
  WalkResult walk;
};

// More points would be neither visible nor manageable for a viewer; ten minutes of movement of a good mouse have fewer.
constexpr qint64 kMostDrawnSteps = 100000;

RecordPaths FollowContacts(const RecordPart& root);

}  // namespace tavi

#endif  // HOST_RECORD_RECORD_PATHS_H_
