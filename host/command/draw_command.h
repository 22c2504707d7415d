#ifndef HOST_COMMAND_DRAW_COMMAND_H_
#define HOST_COMMAND_DRAW_COMMAND_H_

#include "host/command/subcommands.h"

namespace tavi {

// `tavi draw`: a keymap as a picture.
Subcommand DrawCommand();

}  // namespace tavi

#endif  // HOST_COMMAND_DRAW_COMMAND_H_
