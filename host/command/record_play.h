#ifndef HOST_COMMAND_RECORD_PLAY_H_
#define HOST_COMMAND_RECORD_PLAY_H_

#include "host/command/subcommands.h"

namespace tavi {

// `tavi record play`
Subcommand RecordPlayCommand();

}  // namespace tavi

#endif  // HOST_COMMAND_RECORD_PLAY_H_
