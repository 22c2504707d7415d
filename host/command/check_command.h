#ifndef HOST_COMMAND_CHECK_COMMAND_H_
#define HOST_COMMAND_CHECK_COMMAND_H_

#include "host/command/subcommands.h"

namespace tavi {

// `tavi check`: reports the diagnostics of keymap files.
Subcommand CheckCommand();

}  // namespace tavi

#endif  // HOST_COMMAND_CHECK_COMMAND_H_
