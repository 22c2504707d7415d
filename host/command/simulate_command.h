#ifndef HOST_COMMAND_SIMULATE_COMMAND_H_
#define HOST_COMMAND_SIMULATE_COMMAND_H_

#include "host/command/subcommands.h"

namespace tavi {

// `tavi simulate`: a script of input played on a clock of its own.
Subcommand SimulateCommand();

}  // namespace tavi

#endif  // HOST_COMMAND_SIMULATE_COMMAND_H_
