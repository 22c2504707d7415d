#ifndef HOST_COMMAND_GUEST_UINPUT_COMMAND_H_
#define HOST_COMMAND_GUEST_UINPUT_COMMAND_H_

#include "host/command/subcommands.h"

namespace tavi {

// `tavi guest-uinput`: a guest that plays its lines on input devices of the Linux kernel. On other systems the command
// only reports that it needs one.
Subcommand GuestUinputCommand();

}  // namespace tavi

#endif  // HOST_COMMAND_GUEST_UINPUT_COMMAND_H_
