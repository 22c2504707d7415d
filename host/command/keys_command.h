#ifndef HOST_COMMAND_KEYS_COMMAND_H_
#define HOST_COMMAND_KEYS_COMMAND_H_

#include "host/command/subcommands.h"

namespace tavi {

// `tavi keys`: names and codes of all keys.
Subcommand KeysCommand();

}  // namespace tavi

#endif  // HOST_COMMAND_KEYS_COMMAND_H_
