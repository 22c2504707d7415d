#ifndef HOST_COMMAND_RECORD_MERGE_H_
#define HOST_COMMAND_RECORD_MERGE_H_

#include <QString>
#include <QStringList>
#include <QVector>

#include "host/command/subcommands.h"
#include "taviinputmanager/types.h"

namespace tavi {

struct MergeOrder {
  QString target;
  QVector<MergeParam> records;  // in the order of playing
  QString problem;              // what is wrong with the command line; empty when nothing is
};

// "-o TARGET FILE [--times N] [--delay MS] [--speed X] [--gap MS] FILE ...": what stands behind a file is about it.
MergeOrder ReadMergeOrder(const QStringList& arguments);

// `tavi record merge`
Subcommand RecordMergeCommand();

}  // namespace tavi

#endif  // HOST_COMMAND_RECORD_MERGE_H_
