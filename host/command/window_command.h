#ifndef HOST_COMMAND_WINDOW_COMMAND_H_
#define HOST_COMMAND_WINDOW_COMMAND_H_

#include "host/command/subcommands.h"

namespace tavi {

// `tavi window`: keymaps tried out in a window.
Subcommand WindowCommand();

}  // namespace tavi

#endif  // HOST_COMMAND_WINDOW_COMMAND_H_
