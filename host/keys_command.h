#ifndef HOST_KEYS_COMMAND_H_
#define HOST_KEYS_COMMAND_H_

#include "host/subcommands.h"

namespace tavi {

// `tavi keys`: names and codes of all keys.
Subcommand KeysCommand();

}  // namespace tavi

#endif  // HOST_KEYS_COMMAND_H_
