#ifndef HOST_DRAW_COMMAND_H_
#define HOST_DRAW_COMMAND_H_

#include "host/subcommands.h"

namespace tavi {

// `tavi draw`: a keymap as a picture.
Subcommand DrawCommand();

}  // namespace tavi

#endif  // HOST_DRAW_COMMAND_H_
