#ifndef HOST_RECORD_COMMAND_H_
#define HOST_RECORD_COMMAND_H_

#include "host/subcommands.h"

namespace tavi {

// `tavi record`: what can be done with record files.
Subcommand RecordCommand();

}  // namespace tavi

#endif  // HOST_RECORD_COMMAND_H_
