#ifndef HOST_COMMAND_WINDOW_COMMAND_H_
#define HOST_COMMAND_WINDOW_COMMAND_H_

#include "host/command/subcommands.h"

namespace tavi {

// `tavi window`: tries keymaps in a window.
Subcommand WindowCommand();

}  // namespace tavi

#endif  // HOST_COMMAND_WINDOW_COMMAND_H_
