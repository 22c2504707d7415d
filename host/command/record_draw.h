#ifndef HOST_COMMAND_RECORD_DRAW_H_
#define HOST_COMMAND_RECORD_DRAW_H_

#include "host/command/subcommands.h"

namespace tavi {

// `tavi record draw`
Subcommand RecordDrawCommand();

}  // namespace tavi

#endif  // HOST_COMMAND_RECORD_DRAW_H_
