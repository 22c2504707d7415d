#ifndef HOST_COMMAND_SIMULATE_COMMAND_H_
#define HOST_COMMAND_SIMULATE_COMMAND_H_

#include "host/command/subcommands.h"

namespace tavi {

// `tavi simulate`: runs a script of input on virtual time.
Subcommand SimulateCommand();

}  // namespace tavi

#endif  // HOST_COMMAND_SIMULATE_COMMAND_H_
