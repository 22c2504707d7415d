#ifndef HOST_COMMAND_RECORD_INFO_H_
#define HOST_COMMAND_RECORD_INFO_H_

#include <QString>

#include "host/command/subcommands.h"

namespace tavi {

struct RecordFile;

// The description of a playable record, as lines of text.
QString DescribeRecord(const QString& name, const RecordFile& record);

// `tavi record info`
Subcommand RecordInfoCommand();

}  // namespace tavi

#endif  // HOST_COMMAND_RECORD_INFO_H_
