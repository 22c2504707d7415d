#ifndef HOST_CHECK_COMMAND_H_
#define HOST_CHECK_COMMAND_H_

#include "host/subcommands.h"

namespace tavi {

// `tavi check`: what is wrong with keymap files.
Subcommand CheckCommand();

}  // namespace tavi

#endif  // HOST_CHECK_COMMAND_H_
