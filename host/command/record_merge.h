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
  QVector<MergeParam> records;  // in playing order
  QString problem;              // the error in the command line; empty if there is none
};

// "-o TARGET FILE [--times N] [--delay MS] [--speed X] [--gap MS] FILE ...": options after a file apply to it.
MergeOrder ReadMergeOrder(const QStringList& arguments);

// `tavi record merge`
Subcommand RecordMergeCommand();

}  // namespace tavi

#endif  // HOST_COMMAND_RECORD_MERGE_H_
