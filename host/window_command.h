#ifndef HOST_WINDOW_COMMAND_H_
#define HOST_WINDOW_COMMAND_H_

#include "host/subcommands.h"

namespace tavi {

// `tavi window`: keymaps tried out in a window.
Subcommand WindowCommand();

}  // namespace tavi

#endif  // HOST_WINDOW_COMMAND_H_
