#include "host/command/guest_uinput_command.h"
#include "host/system/console.h"

namespace tavi {

namespace {

constexpr char kHelp[] =
    "Usage: tavi guest-uinput\n"
    "\n"
    "Plays guest lines on input devices of the Linux kernel. This build does not include\n"
    "the command: it needs Linux.\n"
    "\n"
    "Exit status: 0 when this page was asked for, 2 for everything else.\n"
    "\n"
    "Example: tavi guest-uinput --help\n";

int Run(const Invocation& /*invocation*/) {
  PrintError(QStringLiteral("tavi guest-uinput: this program was built without it; it needs Linux\n"));
  return kExitUsage;
}

}  // namespace

Subcommand GuestUinputCommand() {
  return {"guest-uinput", "plays guest lines on kernel input devices (not in this build)", kHelp, Run};
}

}  // namespace tavi
