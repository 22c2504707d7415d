#ifndef HOST_COMMAND_PLAY_COMMAND_H_
#define HOST_COMMAND_PLAY_COMMAND_H_

#include "host/command/subcommands.h"

namespace tavi {

// `tavi play`: plays from this machine's devices, without a window. In a build without support, the command only
// reports that.
Subcommand PlayCommand();

}  // namespace tavi

#endif  // HOST_COMMAND_PLAY_COMMAND_H_
